// A station can be killed at any moment: power cut, task manager, a crash.
// A worker appends journal records in a loop and reports each record's
// number on a pipe once its append has returned; the test kills it with
// SIGKILL after a random delay, fifty times over, and the file grows across
// the runs. After every run the journal must hold whole lines only, each
// exactly the record written under its number, and every acknowledged
// record must be there (those not yet acknowledged may or may not be).
// Then a station replays the journal and must know every record in it.

#include "JournalKit.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "journal/JournalRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vistrel::journaltest {
namespace {

constexpr int Runs = 50;

// Starts the worker, kills it after `delay` and gives the numbers it
// acknowledged. With `afterFirst` the delay counts from the first
// acknowledgement, so that a slow disk still sees kills among the appends;
// otherwise from the start, so that some kills come during start-up. A
// worker that ends on its own must end well.
std::vector<long> runAndKill(const std::vector<std::string>& argv, bool afterFirst, std::chrono::microseconds delay,
    const fs::path& errorFile)
{
    Child child = spawnChild(argv, false, true, {}, errorFile);
    std::string acks;
    for (char c = 0; afterFirst && c != '\n';) {
        const ssize_t n = ::read(child.output, &c, 1);
        if (n == 0 || (n < 0 && errno != EINTR))
            break;
        if (n == 1)
            acks += c;
    }
    std::this_thread::sleep_for(delay);
    ::kill(child.pid, SIGKILL);
    acks += readAll(child.output);
    ::close(child.output);
    const int status = reap(child.pid);
    EXPECT_TRUE((WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) || (WIFEXITED(status) && WEXITSTATUS(status) == 0))
        << "the worker ended with " << describeStatus(status) << ": " << readFile(errorFile);
    std::vector<long> numbers;
    std::istringstream in(acks);
    for (long n; in >> n;)
        numbers.push_back(n);
    return numbers;
}

// The record number of each line, which is its person (third field), in
// file order; 0 for a line without one.
std::vector<long> recordNumbers(const JournalLines& journal)
{
    std::vector<long> numbers;
    for (const std::string& line : journal.lines) {
        const std::vector<std::string> f = splitFields(line);
        numbers.push_back(f.size() > 2 ? std::atol(f[2].c_str()) : 0);
    }
    return numbers;
}

// Every acknowledged number is in the journal.
void expectAcknowledgedPresent(const std::set<long>& acked, const std::vector<long>& present, const char* journal)
{
    const std::set<long> have(present.begin(), present.end());
    int missing = 0;
    for (long n : acked)
        if (!have.count(n)) {
            EXPECT_LT(++missing, 5) << "record " << n << " was acknowledged but is not in the " << journal;
        }
    EXPECT_EQ(missing, 0) << "of " << acked.size() << " acknowledged records";
}

TEST(KilledStation, AppendsThatReturnedSurviveAKillAtAnyMoment)
{
    TempFolder tmp("journal-kill");
    const fs::path journal = tmp.path() / "JournalFile.txt";
    std::mt19937 rng(20251121);
    std::uniform_int_distribution<int> delayMicroseconds(0, 30000);

    std::set<long> acked;
    long next = 1;
    for (int run = 0; run < Runs; ++run) {
        SCOPED_TRACE("run " + std::to_string(run) + ", from record " + std::to_string(next));
        for (long n : runAndKill({VISTREL_JOURNAL_WORKER, "append", journal.string(), std::to_string(next)},
                 run % 2 == 1, std::chrono::microseconds(delayMicroseconds(rng)), tmp.path() / "worker.err"))
            acked.insert(n);
        const JournalLines lines = splitJournal(readFile(journal));
        ASSERT_TRUE(lines.whole) << lines.problem;
        const std::vector<long> numbers = recordNumbers(lines);
        next = std::max(numbers.empty() ? 0 : numbers.back(), acked.empty() ? 0 : *acked.rbegin()) + 1;
    }
    ASSERT_GT(acked.size(), 0u) << "no append ever returned before the kill";

    // Whole lines, each exactly the record of its number, in the order written.
    const JournalLines lines = splitJournal(readFile(journal));
    ASSERT_TRUE(lines.whole) << lines.problem;
    const std::vector<long> numbers = recordNumbers(lines);
    for (size_t i = 0; i < lines.lines.size(); ++i) {
        ASSERT_GT(numbers[i], i == 0 ? 0 : numbers[i - 1]) << "line " << i + 1 << ": " << lines.lines[i];
        ASSERT_EQ(lines.lines[i], crashRecord(numbers[i])) << "line " << i + 1;
    }
    expectAcknowledgedPresent(acked, numbers, "journal");
    std::printf("%zu records in the journal, %zu of them acknowledged\n", numbers.size(), acked.size());

    // A station replays the journal: each pair ends as the records for it
    // say, in file order, so not one of them is lost.
    std::vector<bool> removed(CrashPairs + 1, false);
    std::vector<long> person(CrashPairs + 1, 0);
    std::vector<int> rejects(CrashPairs + 1, 0);
    for (long n : numbers) {
        const auto i = static_cast<size_t>(crashPair(n));
        person[i] = n;
        if (crashRecordIsRejection(n))
            rejects[i] = rejectionCount(n);
        else
            removed[i] = true;
    }
    const StationFolders station(tmp.path() / "station");
    station.prepare(inventoryText(CrashPairs), optionsText(false, false, {}));
    fs::copy_file(journal, station.localJournal());
    TestPlatform platform(station);
    Station replayed(platform);
    replayed.start();
    const Frm_Vistrel& v = replayed.vistrel();
    EXPECT_TRUE(platform.boxes.empty());
    int listed = 0;
    for (size_t i = 1; i <= CrashPairs; ++i) {
        SCOPED_TRACE("pair " + std::to_string(i));
        ASSERT_EQ(v.Inv_Removed[i - 1], removed[i]);
        ASSERT_EQ(v.Inv_PersonNumber[i - 1], person[i]);
        ASSERT_EQ(v.Inv_RejectCount[i - 1], rejects[i]);
        listed += removed[i];
    }
    EXPECT_EQ(v.Lst_PersonsList.listCount(), listed);
}

// The same through a whole station: pairs given out through the dispensing
// dialog go to the local journal (flushed) and to the network journal
// (locked). The station is killed at random moments, at start-up too, and
// started again on the same folders.
TEST(KilledStation, DispensingStationKilledAtAnyMomentLosesNoAcknowledgedPair)
{
    constexpr long Pairs = 300;
    TempFolder tmp("journal-kill-station");
    const fs::path net = tmp.path() / "net";
    fs::create_directories(net);
    const StationFolders folders(tmp.path() / "station");
    folders.prepare(inventoryText(Pairs), optionsText(false, true, net));
    const fs::path shared = net / "JournalFile.txt";
    std::mt19937 rng(4711);
    std::uniform_int_distribution<int> delayMicroseconds(0, 40000);

    std::set<long> acked;
    long next = 1;
    for (int run = 0; run < Runs; ++run) {
        SCOPED_TRACE("run " + std::to_string(run) + ", from pair " + std::to_string(next));
        for (long n : runAndKill({VISTREL_JOURNAL_WORKER, "station", folders.docs.string(), folders.shared.string(),
                                     std::to_string(next)},
                 run % 2 == 1, std::chrono::microseconds(delayMicroseconds(rng)), tmp.path() / "worker.err"))
            acked.insert(n);
        const JournalLines local = splitJournal(readFile(folders.localJournal()));
        ASSERT_TRUE(local.whole) << "local journal: " << local.problem;
        const JournalLines network = splitJournal(readFile(shared));
        ASSERT_TRUE(network.whole) << "network journal: " << network.problem;
        const std::vector<long> numbers = recordNumbers(local);
        next = std::max(numbers.empty() ? 0 : numbers.back(), acked.empty() ? 0 : *acked.rbegin()) + 1;
    }
    ASSERT_GT(acked.size(), 0u) << "no pair was ever given out before the kill";

    // Both journals: whole lines, each the record of its pair, in order. The
    // network record follows the local one, so the network journal holds
    // nothing the local one lacks.
    const JournalLines local = splitJournal(readFile(folders.localJournal()));
    const JournalLines network = splitJournal(readFile(shared));
    for (const JournalLines* journal : {&local, &network}) {
        const std::vector<long> numbers = recordNumbers(*journal);
        for (size_t i = 0; i < journal->lines.size(); ++i) {
            ASSERT_GT(numbers[i], i == 0 ? 0 : numbers[i - 1]) << journal->lines[i];
            ASSERT_EQ(journal->lines[i], DispensingRecord(static_cast<std::int32_t>((numbers[i] - 1) % Pairs + 1),
                                             "True", static_cast<std::int32_t>(numbers[i]), {}, {}));
        }
    }
    const std::vector<long> localNumbers = recordNumbers(local);
    const std::vector<long> networkNumbers = recordNumbers(network);
    expectAcknowledgedPresent(acked, localNumbers, "local journal");
    expectAcknowledgedPresent(acked, networkNumbers, "network journal");
    EXPECT_TRUE(std::includes(localNumbers.begin(), localNumbers.end(), networkNumbers.begin(), networkNumbers.end()));
    std::printf("%zu local and %zu network records, %zu acknowledged\n", localNumbers.size(), networkNumbers.size(),
        acked.size());

    // Started once more, the station knows every pair it gave out, each to
    // the last person named for it in the local and then the network
    // journal (a kill between the two appends leaves the network's older
    // record the last word, as the network journal is read last).
    std::vector<long> person(Pairs + 1, 0);
    for (const std::vector<long>* numbers : {&localNumbers, &networkNumbers})
        for (long n : *numbers)
            person[static_cast<size_t>((n - 1) % Pairs + 1)] = n;
    TestPlatform platform(folders);
    Station station(platform);
    station.start();
    const Frm_Vistrel& v = station.vistrel();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_FALSE(v.Lbl_NetworkJournalDown.visible());
    int given = 0;
    for (size_t i = 1; i <= Pairs; ++i) {
        ASSERT_EQ(v.Inv_Removed[i - 1], person[i] != 0) << "pair " << i;
        ASSERT_EQ(v.Inv_PersonNumber[i - 1], person[i]) << "pair " << i;
        given += person[i] != 0;
    }
    EXPECT_EQ(v.Lst_PersonsList.listCount(), given);
}

}  // namespace
}  // namespace vistrel::journaltest
