#include "CaseLibrary.h"

#include "ByteText.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>

namespace vistrel::devsim {

namespace fs = std::filesystem;

namespace {

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

std::optional<std::string> readWholeFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        return std::nullopt;
    return bytes;
}

bool allDigits(std::string_view s)
{
    return !s.empty() && s.size() <= 6
        && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The files of one example: by transmission number, 0 for a lone file.
using Parts = std::map<int, fs::path>;

void loadTransmissions(DeviceCase& c, const Parts& parts)
{
    if (parts.count(0) && parts.size() > 1) {
        c.problem = "both " + c.name + ".msg and numbered transmissions";
        return;
    }
    int wanted = parts.count(0) ? 0 : 1;
    for (const auto& [number, path] : parts) {
        if (number != wanted) {
            c.problem = "transmission " + std::to_string(wanted) + " (" + c.name + "." + std::to_string(wanted)
                + ".msg) is missing";
            return;
        }
        ++wanted;
        std::optional<std::string> bytes = readWholeFile(path);
        if (!bytes) {
            c.problem = "cannot read " + path.string();
            return;
        }
        if (bytes->empty()) {
            c.problem = path.filename().string() + " is empty";
            return;
        }
        c.transmissions.push_back(std::move(*bytes));
    }
}

}  // namespace

ExpectedReading parseExpected(std::string_view text)
{
    ExpectedReading e;
    e.found = true;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        const size_t eq = line.find('=');
        if (line.empty() || line.front() == '#' || eq == std::string_view::npos)
            continue;
        // Values stand exactly as written: a box may hold blanks.
        const std::string_view key = trimmed(line.substr(0, eq));
        const std::string_view value = line.substr(eq + 1);
        if (key == "left")
            e.left = value;
        else if (key == "right")
            e.right = value;
        else if (key == "reading")
            e.reading = value;
        else if (key == "check")
            e.check = trimmed(value);
        else if (key == "replies")
            e.replies = unescapeBytes(value);
    }
    return e;
}

std::vector<DeviceCase> loadCases(const fs::path& folder, bool numberedTransmissions)
{
    std::map<std::string, Parts> found;
    std::error_code ec;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ec)) {
        if (!entry.is_regular_file(ec) || entry.path().extension() != ".msg")
            continue;
        std::string stem = entry.path().stem().string();
        int number = 0;
        const size_t dot = stem.rfind('.');
        if (numberedTransmissions && dot != std::string::npos && dot > 0 && allDigits(stem.substr(dot + 1))) {
            number = std::stoi(stem.substr(dot + 1));
            stem.resize(dot);
            if (number == 0) {
                found[stem][-1] = entry.path();  // numbering starts at 1
                continue;
            }
        }
        found[stem][number] = entry.path();
    }

    std::vector<DeviceCase> cases;
    for (const auto& [name, parts] : found) {
        DeviceCase c;
        c.name = name;
        if (parts.count(-1))
            c.problem = "transmissions are numbered from 1, not 0";
        else
            loadTransmissions(c, parts);

        const fs::path expectedPath = folder / (name + ".expected");
        if (fs::exists(expectedPath, ec)) {
            const std::optional<std::string> text = readWholeFile(expectedPath);
            try {
                if (text)
                    c.expected = parseExpected(*text);
                else if (c.problem.empty())
                    c.problem = "cannot read " + expectedPath.string();
            } catch (const std::invalid_argument& e) {
                if (c.problem.empty())
                    c.problem = name + ".expected: replies: " + e.what();
            }
        }
        if (!c.problem.empty())
            c.transmissions.clear();
        cases.push_back(std::move(c));
    }
    return cases;
}

std::vector<fs::path> dataFolderCandidates(const std::optional<fs::path>& given, const fs::path& programFolder,
    const fs::path& sourceFolder)
{
    if (given)
        return {*given};
    std::vector<fs::path> candidates{
        programFolder / "devices",
        programFolder / ".." / "share" / "vistrel" / "devices",
        // Installed as a package: the programs in <prefix>/lib/vistrel.
        programFolder / ".." / ".." / "share" / "vistrel" / "devices",
    };
    if (!sourceFolder.empty())
        candidates.push_back(sourceFolder);
    return candidates;
}

std::optional<fs::path> findModelFolder(const std::vector<fs::path>& candidates, std::string_view model)
{
    std::error_code ec;
    for (const fs::path& candidate : candidates) {
        const fs::path folder = candidate / std::string(model);
        if (fs::is_directory(folder, ec))
            return folder.lexically_normal();
    }
    return std::nullopt;
}

}  // namespace vistrel::devsim
