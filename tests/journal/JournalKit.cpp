#include "JournalKit.h"

#include "core/screen/Control.h"
#include "journal/JournalRecords.h"
#include "platform/PathMapping.h"

#include <atomic>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vistrel::journaltest {

TempFolder::TempFolder(const std::string& tag)
{
    static std::atomic<int> serial{0};
    path_ = fs::temp_directory_path() / ("vistrel-" + tag + "-" + std::to_string(::getpid()) + "-"
                                            + std::to_string(serial++));
    std::error_code ec;
    fs::remove_all(path_, ec);
    fs::create_directories(path_);
}

TempFolder::~TempFolder()
{
    std::error_code ec;
    // A test may have left a folder without write permission.
    for (fs::recursive_directory_iterator it(path_, ec), end; !ec && it != end; it.increment(ec))
        if (it->is_directory(ec))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(path_, ec);
}

std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeFile(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out)
        throw std::runtime_error("cannot write " + path.string());
}

void StationFolders::prepare(const std::string& inventory, const std::string& options) const
{
    writeFile(vistrelFolder() / "Total_Inventory.txt", inventory);
    writeFile(optionsFile(), options);
}

std::string inventoryText(int pairs)
{
    // Plausible, varied pairs; the journal tests never search, so only the
    // shape of the records matters.
    static const char* const quarter[] = {"0.00", "-0.25", "-0.50", "-0.75", "-1.00", "-1.50", "-2.25", "1.25",
        "2.00", "3.50"};
    static const char* const cylinder[] = {"0.00", "-0.25", "-0.50", "-1.00"};
    std::string text;
    for (int i = 1; i <= pairs; ++i) {
        const int a = i * 7;
        text += std::to_string(i) + ',' + quarter[i % 10] + ',' + cylinder[i % 4] + ',' + std::to_string(a % 180)
            + ",0.00," + quarter[(i / 3) % 10] + ',' + cylinder[(i / 2) % 4] + ',' + std::to_string((a + 90) % 180)
            + ",0.00,0,0,0,0,0,62," + std::to_string(i % 3) + ",\"pair " + std::to_string(i) + "\",\"\",\"\"\r\n";
    }
    return text;
}

std::string optionsText(bool refreshOnAddRemove, bool networkJournal, const fs::path& networkFolder)
{
    const std::string folder = networkFolder.empty() ? std::string("C:\\NetworkJournal") : networkFolder.string();
    if (folder.find(',') != std::string::npos)
        throw std::runtime_error("a folder with a comma can't stand in the options file: " + folder);
    return std::string("DEFAULT,BOTH-EQUALLY,NONE,YES,NO,") + (refreshOnAddRemove ? "YES" : "NO")
        + ",NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,100,101,2.50,102,103,2.50,104,"
          "105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,"
        + (networkJournal ? "YES" : "NO") + ',' + folder + ",0,Default,1,32000\r\n";
}

JournalLines splitJournal(const std::string& bytes)
{
    JournalLines result;
    size_t start = 0;
    while (start < bytes.size()) {
        const size_t cr = bytes.find_first_of("\r\n", start);
        if (cr == std::string::npos) {
            result.lines.push_back(bytes.substr(start));
            if (result.whole)
                result.problem = "the last line has no line end: \"" + result.lines.back() + "\"";
            result.whole = false;
            break;
        }
        result.lines.push_back(bytes.substr(start, cr - start));
        if (bytes.compare(cr, 2, "\r\n") != 0) {
            if (result.whole)
                result.problem = "line " + std::to_string(result.lines.size()) + " ends in a bare "
                    + (bytes[cr] == '\r' ? "CR" : "LF") + ": \"" + result.lines.back() + "\"";
            result.whole = false;
            start = cr + 1;
        } else {
            start = cr + 2;
        }
    }
    return result;
}

std::vector<std::string> splitFields(const std::string& line)
{
    std::vector<std::string> fields;
    std::string field;
    std::istringstream in(line);
    while (std::getline(in, field, ','))
        fields.push_back(field);
    if (!line.empty() && line.back() == ',')
        fields.emplace_back();
    return fields;
}

bool isDispensingRecord(const std::string& line, std::string* why)
{
    static const std::regex index("[1-9][0-9]*");
    static const std::regex flag("True|False| [0-9]+");
    static const std::regex person("-?[0-9]+");
    static const std::regex value("-?[0-9]+\\.[0-9][0-9]");
    static const std::regex axis("-?[0-9]{3,}");
    static const std::regex equivalent("\\(-?[0-9]+\\.[0-9][0-9]\\)");
    static const std::regex* const shape[13] = {&index, &flag, &person, &value, &value, &axis, &value, &equivalent,
        &value, &value, &axis, &value, &equivalent};
    const std::vector<std::string> fields = splitFields(line);
    auto fail = [&](const std::string& what) {
        if (why)
            *why = what + " in \"" + line + "\"";
        return false;
    };
    if (fields.size() != 13)
        return fail(std::to_string(fields.size()) + " fields");
    for (size_t k = 0; k < 13; ++k)
        if (!std::regex_match(fields[k], *shape[k]))
            return fail("field " + std::to_string(k + 1) + " \"" + fields[k] + "\" is malformed");
    return true;
}

long crashPair(long n)
{
    return (n - 1) % CrashPairs + 1;
}

bool crashRecordIsRejection(long n)
{
    return n % 5 == 0;
}

int rejectionCount(long n)
{
    return static_cast<int>(n % 7) + 1;
}

std::string crashRecord(long n)
{
    const MeasuredEye left{-0.25 * static_cast<double>(n % 24), -0.25 * static_cast<double>(n % 5),
        static_cast<std::int16_t>(n % 180), 0.25 * static_cast<double>(n % 3), -0.125 * static_cast<double>(n % 40)};
    const MeasuredEye right{0.25 * static_cast<double>(n % 17), -0.25 * static_cast<double>(n % 4),
        static_cast<std::int16_t>((n * 7) % 180), 0, 0.125 * static_cast<double>(n % 30)};
    const std::string flag = crashRecordIsRejection(n) ? " " + std::to_string(rejectionCount(n)) : "True";
    return DispensingRecord(static_cast<std::int32_t>(crashPair(n)), flag, static_cast<std::int32_t>(n), left, right);
}

std::string hammerLine(int tag, long seq)
{
    const size_t length = 40 + static_cast<size_t>((seq * 131 + tag * 977) % 6000);
    std::string line = "Hammer," + std::to_string(tag) + ',' + std::to_string(seq) + ',';
    line.append(length, static_cast<char>('a' + (tag + seq) % 26));
    return line;
}

void TestPlatform::messageBox(const std::string& title, const std::string& text, MsgIcon)
{
    boxes.push_back({title, text});
}

void TestPlatform::runModal(Form& form)
{
    std::string button = standingAnswer;
    if (!answers.empty()) {
        button = answers.front();
        answers.pop_front();
    }
    if (Control* c = button.empty() ? nullptr : form.control(button))
        c->click();
    else if (Control* go = form.control("Cmd_Continue"))
        go->click();
    if (form.visible())
        form.closeBox();
    if (form.visible())
        form.hide();
}

std::string TestPlatform::nativePath(const std::string& path)
{
    return mapDriveLetterPath(path, shared_.string());
}

void TestPlatform::endProcess()
{
    throw std::runtime_error("the station ended the process");
}

// ---- Child processes ----

namespace {

void check(int rc, const char* what)
{
    if (rc != 0)
        throw std::system_error(rc, std::generic_category(), what);
}

}  // namespace

Child spawnChild(const std::vector<std::string>& argv, bool pipeInput, bool pipeOutput, const fs::path& outputFile,
    const fs::path& errorFile)
{
    int in[2] = {-1, -1};
    int out[2] = {-1, -1};
    if (pipeInput && ::pipe2(in, O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    if (pipeOutput && ::pipe2(out, O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");

    posix_spawn_file_actions_t actions;
    check(posix_spawn_file_actions_init(&actions), "posix_spawn_file_actions_init");
    if (pipeInput)
        check(posix_spawn_file_actions_adddup2(&actions, in[0], 0), "adddup2");
    else
        check(posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0), "addopen");
    const std::string outPath = outputFile.empty() ? std::string("/dev/null") : outputFile.string();
    const std::string errPath = errorFile.empty() ? std::string("/dev/null") : errorFile.string();
    if (pipeOutput)
        check(posix_spawn_file_actions_adddup2(&actions, out[1], 1), "adddup2");
    else
        check(posix_spawn_file_actions_addopen(&actions, 1, outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644),
            "addopen");
    check(posix_spawn_file_actions_addopen(&actions, 2, errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644),
        "addopen");

    std::vector<char*> args;
    for (const std::string& a : argv)
        args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);

    Child child;
    const int rc = posix_spawn(&child.pid, args[0], &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (pipeInput)
        ::close(in[0]);
    if (pipeOutput)
        ::close(out[1]);
    if (rc != 0) {
        if (pipeInput)
            ::close(in[1]);
        if (pipeOutput)
            ::close(out[0]);
        throw std::system_error(rc, std::generic_category(), "posix_spawn " + argv[0]);
    }
    child.input = in[1];
    child.output = out[0];
    return child;
}

bool writeAll(int fd, const std::string& bytes)
{
    // A reader that went away must fail the write, not end the test.
    static const bool ignored = [] {
        ::signal(SIGPIPE, SIG_IGN);
        return true;
    }();
    (void)ignored;
    const char* data = bytes.data();
    size_t left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, left);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        data += n;
        left -= static_cast<size_t>(n);
    }
    return true;
}

std::string readAll(int fd)
{
    std::string text;
    char buffer[4096];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return text;
        text.append(buffer, static_cast<size_t>(n));
    }
}

int reap(pid_t pid)
{
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "waitpid");
    }
    return status;
}

std::string describeStatus(int status)
{
    if (WIFEXITED(status))
        return "exit code " + std::to_string(WEXITSTATUS(status));
    if (WIFSIGNALED(status))
        return "signal " + std::to_string(WTERMSIG(status));
    return "status " + std::to_string(status);
}

}  // namespace vistrel::journaltest
