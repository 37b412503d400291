#include "ScriptPlatform.h"

#include "Escape.h"
#include "platform/FileSystem.h"
#include "platform/PathMapping.h"
#include "core/screen/Control.h"
#include "core/screen/Form.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <utility>

namespace vistrel::script {

ScriptPlatform::ScriptPlatform(Output& out, PlatformSettings settings)
    : out_(&out), settings_(std::move(settings)), serial_(out)
{
}

void ScriptPlatform::messageBox(const std::string& title, const std::string& text, MsgIcon)
{
    out_->line("MsgBox: " + escapeValue(title) + " | " + escapeValue(withFolderNames(text)));
}

void ScriptPlatform::runModal(Form& form)
{
    auto queued = answers_.find(&form);
    if (queued != answers_.end() && !queued->second.empty()) {
        Control* button = queued->second.front();
        queued->second.pop_front();
        if (!button)
            return;  // stays up for the statements that follow
        button->click();
        if (form.visible())
            form.closeBox();
    } else if (form.name() == "Frm_ProgramOptions" && form.control("Cmd_Continue")) {
        form.control("Cmd_Continue")->click();
        if (form.visible())
            form.closeBox();
    } else {
        form.closeBox();
    }
    // A screen that refuses to close must not hang the script.
    if (form.visible())
        form.hide();
}

void ScriptPlatform::queueAnswer(Form& form, Control& button)
{
    answers_[&form].push_back(&button);
}

void ScriptPlatform::queueStay(Form& form)
{
    answers_[&form].push_back(nullptr);
}

void ScriptPlatform::shell(const std::string& what)
{
    out_->line("Shell: " + escapeValue(withFolderNames(what)));
}

// A path of the run differs from one machine to the next; the output shows
// the documents and shared folders and the program's own folder as
// <documents>, <shared> and <program>. A folder inside another is named
// first, so that the outer one doesn't swallow it. The rest of such a path,
// up to the line's end, is shown with "/" between its names on every
// system, so that one expected output fits Windows too.
std::string ScriptPlatform::withFolderNames(std::string text) const
{
    const char separator = pathSeparator();
    std::pair<const std::string*, const char*> folders[] = {{&settings_.documentsFolder, "<documents>"},
        {&settings_.sharedFolder, "<shared>"}, {&settings_.programFolder, "<program>"}};
    std::stable_sort(std::begin(folders), std::end(folders),
        [](const auto& a, const auto& b) { return a.first->size() > b.first->size(); });
    for (const auto& [folder, name] : folders) {
        if (folder->empty())
            continue;
        const std::string_view shown(name);
        for (size_t at = text.find(*folder); at != std::string::npos; at = text.find(*folder, at + shown.size()))
            text.replace(at, folder->size(), shown);
    }
    // Only once every folder is named: a line may hold two of them.
    if (separator != '/') {
        for (const std::string_view name : {"<documents>", "<shared>", "<program>"}) {
            for (size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1))
                for (size_t i = at; i < text.size() && text[i] != '\r' && text[i] != '\n'; ++i)
                    if (text[i] == separator)
                        text[i] = '/';
        }
    }
    return text;
}

DateTime ScriptPlatform::now()
{
    if (settings_.frozenNow)
        return *settings_.frozenNow;
    const std::time_t t = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &t);
#else
    localtime_r(&t, &local);
#endif
    return DateTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
        local.tm_sec};
}

// Whether a path lies in the documents, shared or program folder, compared
// as Windows compares names: without case, either slash.
bool ScriptPlatform::inRunFolder(const std::string& path) const
{
    const auto same = [](char a, char b) {
        if (a == '\\')
            a = '/';
        if (b == '\\')
            b = '/';
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    };
    for (const std::string* folder : {&settings_.documentsFolder, &settings_.sharedFolder, &settings_.programFolder}) {
        if (folder->empty() || path.size() < folder->size()
            || !std::equal(folder->begin(), folder->end(), path.begin(), same))
            continue;
        if (path.size() == folder->size() || path[folder->size()] == '/' || path[folder->size()] == '\\'
            || folder->back() == '/' || folder->back() == '\\')
            return true;
    }
    return false;
}

// The station's fixed places on a drive ("C:\NetworkJournal") live in the
// shared folder, so that a run touches nothing outside its own folders.
// Where drive letters are real, the run's folders carry one too: those are
// used as they stand.
std::string ScriptPlatform::nativePath(const std::string& path)
{
    if (!hasDriveLetter(path) || inRunFolder(path))
        return path;
    // The root of a drive always exists where drives are real.
    std::error_code ignored;
    std::filesystem::create_directories(FsPath(driveRootFolder(sharedDataFolder(), path[0])), ignored);
    return mapDriveLetterPath(path, sharedDataFolder());
}

void ScriptPlatform::setFileAttributes(const std::string& path, int attributes)
{
    SetFileFlags(path, (attributes & 1) != 0, (attributes & 2) != 0);
}

void ScriptPlatform::endProcess()
{
    printer_.finish();
    out_->line("End.");
    std::fflush(nullptr);
    if (exitHook_)
        exitHook_();
    std::exit(0);
}

std::optional<DateTime> parseDateTime(const std::string& text)
{
    // YYYY-MM-DD HH:MM:SS, every field in its digits.
    static constexpr char shape[] = "dddd-dd-dd dd:dd:dd";
    if (text.size() != sizeof shape - 1)
        return std::nullopt;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (shape[i] == 'd' ? !digit : text[i] != shape[i])
            return std::nullopt;
    }
    const auto field = [&text](size_t at, size_t len) { return std::stoi(text.substr(at, len)); };
    const DateTime d{field(0, 4), field(5, 2), field(8, 2), field(11, 2), field(14, 2), field(17, 2)};
    if (d.month < 1 || d.month > 12 || d.day < 1 || d.day > 31 || d.hour > 23 || d.minute > 59 || d.second > 59)
        return std::nullopt;
    return d;
}

}  // namespace vistrel::script
