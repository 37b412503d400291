#pragma once

// What the journal tests share: throw-away folders laid out as a station
// expects them, inventory and options files, a platform that answers the
// station's questions from a queue, a reader of journal lines, and a few
// helpers to start, feed, kill and reap child processes.

#include "NullDevices.h"
#include "core/screen/Form.h"
#include "platform/Platform.h"

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vistrel::journaltest {

namespace fs = std::filesystem;

// A folder of its own under the system's temporary folder, removed with
// everything in it (write permission is given back first).
class TempFolder {
public:
    explicit TempFolder(const std::string& tag);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

std::string readFile(const fs::path& path);
void writeFile(const fs::path& path, const std::string& bytes);

// The two folders a station runs on, as the script driver takes them:
// documents (with Vistrel/Total_Inventory.txt) and shared (with the
// options file below "Application Data/Vistrel").
struct StationFolders {
    fs::path docs;
    fs::path shared;

    explicit StationFolders(const fs::path& root) : docs(root / "docs"), shared(root / "shared") {}
    fs::path vistrelFolder() const { return docs / "Vistrel"; }
    fs::path localJournal() const { return vistrelFolder() / "JournalFile.txt"; }
    fs::path optionsFile() const { return shared / "Application Data" / "Vistrel" / "Vistrel-Options.txt"; }
    // Writes the inventory and the options file.
    void prepare(const std::string& inventory, const std::string& options) const;
};

// An inventory of `pairs` records with bag numbers 1 to pairs, in file order.
std::string inventoryText(int pairs);

// The options line of a plain station, with "refresh on add/remove" and the
// network journal set as asked. The folder is used as it stands.
std::string optionsText(bool refreshOnAddRemove, bool networkJournal, const fs::path& networkFolder);

// A journal split at its line ends. `whole` is false when some line doesn't
// end in CR LF (a torn or glued record, a bare CR or LF), and `problem`
// then tells which.
struct JournalLines {
    std::vector<std::string> lines;
    bool whole = true;
    std::string problem;
};
JournalLines splitJournal(const std::string& bytes);

std::vector<std::string> splitFields(const std::string& line);

// A dispensing record as the station writes it: 13 fields, an index, a flag
// ("True", "False" or a blank and a count), a person and ten measured values
// in their formats. `why` tells what is wrong otherwise.
bool isDispensingRecord(const std::string& line, std::string* why = nullptr);

// The line the crash worker appends as record n: a dispensing record of
// person n for the pair crashPair(n), which goes round an inventory of
// CrashPairs pairs; every fifth record a rejection with count
// rejectionCount(n), the others a removal; measured values vary with n.
constexpr long CrashPairs = 2000;
long crashPair(long n);
std::string crashRecord(long n);
bool crashRecordIsRejection(long n);
int rejectionCount(long n);

// The line the concurrency worker `tag` appends as its record `seq`: its
// length varies from a few dozen bytes to several kilobytes, so that mixed
// bytes of two writers can't go unseen.
std::string hammerLine(int tag, long seq);

// A platform on two given folders. A screen shown modally is answered with
// the next button of `answers` (or `standingAnswer` when the queue is
// empty); a screen with neither is closed, the options screen continued.
class TestPlatform : public Platform {
public:
    struct Box {
        std::string title;
        std::string text;
    };

    TestPlatform(fs::path docs, fs::path shared) : docs_(std::move(docs)), shared_(std::move(shared)) {}
    explicit TestPlatform(const StationFolders& folders) : TestPlatform(folders.docs, folders.shared) {}

    std::vector<Box> boxes;
    std::deque<std::string> answers;
    std::string standingAnswer;

    void messageBox(const std::string& title, const std::string& text, MsgIcon) override;
    void runModal(Form& form) override;
    void doEvents() override {}
    SerialPort& serialPort() override { return port_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {"Default"}; }
    void shell(const std::string&) override {}
    DateTime now() override { return {2026, 11, 21, 10, 0, 0}; }
    std::string documentsFolder() override { return docs_.string(); }
    std::string sharedDataFolder() override { return shared_.string(); }
    std::string programFolder() override { return (shared_ / "program").string(); }
    std::string nativePath(const std::string& path) override;
    char pathSeparator() const override { return '/'; }
    void setFileAttributes(const std::string&, int) override {}
    std::string commandLine() override { return {}; }
    [[noreturn]] void endProcess() override;

private:
    fs::path docs_;
    fs::path shared_;
    test::NullSerialPort port_;
    test::NullPrinter printer_;
};

// ---- Child processes ----

struct Child {
    pid_t pid = -1;
    int input = -1;   // write end of the child's standard input, when piped
    int output = -1;  // read end of the child's standard output, when piped
};

// Starts argv[0] with the given arguments. Standard input and output are
// pipes when asked for, otherwise /dev/null and `outputFile` (or /dev/null);
// standard error goes to `errorFile` or /dev/null. Every pipe end the
// parent keeps is closed on exec, so one child never holds another's pipe.
Child spawnChild(const std::vector<std::string>& argv, bool pipeInput, bool pipeOutput,
    const fs::path& outputFile = {}, const fs::path& errorFile = {});

// Writes all of `bytes`; false when the reader went away.
bool writeAll(int fd, const std::string& bytes);
// Reads until end of file.
std::string readAll(int fd);
// Waits for the child and gives its wait status.
int reap(pid_t pid);
std::string describeStatus(int status);

}  // namespace vistrel::journaltest
