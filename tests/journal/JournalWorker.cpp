// A process for the journal tests to run, kill and run again.
//
//   journal_worker hammer FILE TAG COUNT LOCK
//       waits for one byte on standard input, then appends COUNT lines
//       hammerLine(TAG, 1..COUNT) to FILE, with the write lock when LOCK is 1.
//   journal_worker append FILE FIRST
//       appends crashRecord(FIRST), crashRecord(FIRST + 1), ... as the
//       station appends to its local journal (flushed to the disk, one
//       open, append and close per record) until killed, and writes each
//       record's number to standard output once its append has returned.
//   journal_worker station DOCS SHARED FIRST
//       starts a whole station on those folders and gives a pair to person
//       FIRST, FIRST + 1, ... through the dispensing dialog, person n the
//       pair (n - 1) % pairs + 1, acknowledging each on standard output,
//       until it is killed.
//
// Exit codes: 0 done, 2 wrong arguments, 3 an append failed, 4 the station
// showed a message box, 5 the station failed.

#include "JournalKit.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "platform/AppendFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include <unistd.h>

using namespace vistrel;
using namespace vistrel::journaltest;

namespace {

// One number a line, in one write: a pipe takes it whole.
bool acknowledge(long n)
{
    const std::string line = std::to_string(n) + "\n";
    return writeAll(1, line);
}

int hammer(const std::string& file, int tag, long count, bool lock)
{
    char go = 0;
    while (::read(0, &go, 1) < 0 && errno == EINTR) {
    }
    for (long seq = 1; seq <= count; ++seq) {
        std::string error;
        if (!AppendFile::appendOneLine(file, hammerLine(tag, seq),
                {.syncOnClose = false, .lockAgainstOtherWriters = lock, .closeTornTail = lock}, &error)) {
            std::fprintf(stderr, "append %ld failed: %s\n", seq, error.c_str());
            return 3;
        }
    }
    return 0;
}

int append(const std::string& file, long first)
{
    for (long n = first;; ++n) {
        std::string error;
        if (!AppendFile::appendOneLine(file, crashRecord(n), {.syncOnClose = true, .lockAgainstOtherWriters = false},
                &error)) {
            std::fprintf(stderr, "append %ld failed: %s\n", n, error.c_str());
            return 3;
        }
        if (!acknowledge(n))
            return 0;
    }
}

int station(const std::string& docs, const std::string& shared, long first)
{
    TestPlatform platform(docs, shared);
    platform.standingAnswer = "Cmd_RemoveInventory";
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();
    const long pairs = static_cast<long>(v.InventoryCount.number());
    if (pairs < 1)
        return 5;
    for (long n = first;; ++n) {
        const long pair = (n - 1) % pairs + 1;
        v.Txt_PersonNumber.setText(std::to_string(n));
        v.ReturnInventoryFlag = false;
        v.SelectedRowText = Variant("pair " + std::to_string(pair));
        v.SelectedIndex = Variant(static_cast<double>(pair));
        v.Announce_Selection();
        if (!platform.boxes.empty()) {
            std::fprintf(stderr, "message box \"%s\": %s\n", platform.boxes[0].title.c_str(),
                platform.boxes[0].text.c_str());
            return 4;
        }
        if (!acknowledge(n))
            return 0;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    try {
        if (mode == "hammer" && argc == 6)
            return hammer(argv[2], std::atoi(argv[3]), std::atol(argv[4]), std::string(argv[5]) == "1");
        if (mode == "append" && argc == 4)
            return append(argv[2], std::atol(argv[3]));
        if (mode == "station" && argc == 5)
            return station(argv[2], argv[3], std::atol(argv[4]));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 5;
    }
    std::fprintf(stderr, "usage: journal_worker hammer FILE TAG COUNT LOCK | append FILE FIRST | "
                         "station DOCS SHARED FIRST\n");
    return 2;
}
