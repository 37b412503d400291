// Several writers on one journal at the same moment: four whole stations
// (the script driver) sharing one network journal, and below them four
// processes appending through AppendFile with and without the write lock.
// Whatever the interleaving, the file must consist of whole lines, each one
// exactly as its writer wrote it, none lost, and replay must see them all.

#include "JournalKit.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace vistrel::journaltest {
namespace {

constexpr int Stations = 4;
constexpr int PairsEach = 1000;

// What station k types before it starts giving out pairs: each station its
// own measurement, so that the measured fields of its records are its own.
struct Measurement {
    const char* sphereLeft;
    const char* cylinderLeft;
    const char* axisLeft;
    const char* sphereRight;
    const char* cylinderRight;
    const char* axisRight;
};
const std::array<Measurement, Stations> Measured = {{
    {"-1.00", "-0.50", "90", "-1.25", "-0.25", "80"},
    {"-2.50", "-1.00", "45", "-2.00", "-0.75", "135"},
    {"1.25", "-0.25", "170", "1.00", "0.00", "5"},
    {"-0.75", "0.00", "0", "-0.50", "-1.50", "10"},
}};

// Station k (1-based) gives out table indexes (k-1)*1000+1 to k*1000 to
// person k. The rows of a station's stock list depend on what the others had
// given out when it started, so each pair is named by its table index, as
// the click on its row would name it, and handed to the dispensing question.
std::string stationScript(int k)
{
    const Measurement& m = Measured[static_cast<size_t>(k - 1)];
    std::string script = "start\nset Frm_Vistrel.Txt_PersonNumber " + std::to_string(k) + "\n";
    script += std::string("set Frm_Vistrel.Txt_Sphere_Left ") + m.sphereLeft + "\n";
    script += std::string("set Frm_Vistrel.Txt_Cylinder_Left ") + m.cylinderLeft + "\n";
    script += std::string("set Frm_Vistrel.Txt_Axis_Left ") + m.axisLeft + "\n";
    script += std::string("set Frm_Vistrel.Txt_Sphere_Right ") + m.sphereRight + "\n";
    script += std::string("set Frm_Vistrel.Txt_Cylinder_Right ") + m.cylinderRight + "\n";
    script += std::string("set Frm_Vistrel.Txt_Axis_Right ") + m.axisRight + "\n";
    script += "set Frm_Vistrel.ReturnInventoryFlag False\n";
    for (int r = 1; r <= PairsEach; ++r)
        script += "set Frm_Vistrel.SelectedIndex " + std::to_string((k - 1) * PairsEach + r)
            + "\nanswer Frm_RemoveRejectInventory.Cmd_RemoveInventory\ncall Frm_Vistrel.Announce_Selection\n";
    return script;
}

// The measured fields 4 to 13 of a record.
std::string measuredPart(const std::string& line)
{
    size_t at = 0;
    for (int commas = 0; commas < 3 && at != std::string::npos; ++commas)
        at = line.find(',', at + 1);
    return at == std::string::npos ? std::string() : line.substr(at + 1);
}

// How often the writer changes from one line to the next: zero when the
// writers took turns file by file rather than line by line.
template <typename WriterOf>
int writerChanges(const std::vector<std::string>& lines, WriterOf writerOf)
{
    int changes = 0;
    for (size_t i = 1; i < lines.size(); ++i)
        changes += writerOf(lines[i]) != writerOf(lines[i - 1]);
    return changes;
}

TEST(ConcurrentStations, FourStationsGiveOutPairsThroughOneNetworkJournal)
{
    TempFolder tmp("journal-stations");
    const fs::path net = tmp.path() / "net";
    fs::create_directories(net);
    const std::string inventory = inventoryText(Stations * PairsEach);

    std::vector<StationFolders> folders;
    for (int k = 1; k <= Stations; ++k) {
        folders.emplace_back(tmp.path() / ("station" + std::to_string(k)));
        folders.back().prepare(inventory, optionsText(false, true, net));
    }

    // Each driver reads its whole script from a pipe before it acts, so all
    // four are held until the last pipe is closed, and start together.
    std::vector<Child> children;
    for (int k = 1; k <= Stations; ++k) {
        const StationFolders& f = folders[static_cast<size_t>(k - 1)];
        children.push_back(spawnChild({VISTREL_SCRIPT_DRIVER, "--documents", f.docs.string(), "--shared",
                                          f.shared.string(), "-"},
            true, false, f.docs / "stdout.txt", f.docs / "stderr.txt"));
    }
    for (int k = 1; k <= Stations; ++k)
        ASSERT_TRUE(writeAll(children[static_cast<size_t>(k - 1)].input, stationScript(k)));
    for (Child& c : children)
        ::close(c.input);
    for (int k = 1; k <= Stations; ++k) {
        const StationFolders& f = folders[static_cast<size_t>(k - 1)];
        const int status = reap(children[static_cast<size_t>(k - 1)].pid);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
            << "station " << k << ": " << describeStatus(status) << "\n" << readFile(f.docs / "stderr.txt");
        EXPECT_EQ(readFile(f.docs / "stdout.txt"), "") << "station " << k << " told the operator something";
    }

    // Each local journal: the station's own 1000 records, in its order.
    std::map<int, std::string> localLine;  // by table index
    std::array<std::string, Stations> measuredOf;
    for (int k = 1; k <= Stations; ++k) {
        const JournalLines local = splitJournal(readFile(folders[static_cast<size_t>(k - 1)].localJournal()));
        EXPECT_TRUE(local.whole) << "station " << k << ": " << local.problem;
        ASSERT_EQ(local.lines.size(), static_cast<size_t>(PairsEach)) << "station " << k;
        measuredOf[static_cast<size_t>(k - 1)] = measuredPart(local.lines.front());
        for (int r = 0; r < PairsEach; ++r) {
            const std::string& line = local.lines[static_cast<size_t>(r)];
            const int index = (k - 1) * PairsEach + r + 1;
            std::string why;
            ASSERT_TRUE(isDispensingRecord(line, &why)) << "station " << k << ": " << why;
            const std::vector<std::string> f = splitFields(line);
            EXPECT_EQ(f[0], std::to_string(index)) << line;
            EXPECT_EQ(f[1], "True") << line;
            EXPECT_EQ(f[2], std::to_string(k)) << line;
            EXPECT_EQ(measuredPart(line), measuredOf[static_cast<size_t>(k - 1)]) << line;
            localLine[index] = line;
        }
    }
    // Four different measurements, so a line with another station's fields
    // would show.
    EXPECT_EQ(std::set<std::string>(measuredOf.begin(), measuredOf.end()).size(), static_cast<size_t>(Stations));

    // The network journal: 4000 whole lines, each exactly the line its
    // station wrote to its own journal, each pair once.
    const JournalLines shared = splitJournal(readFile(net / "JournalFile.txt"));
    EXPECT_TRUE(shared.whole) << shared.problem;
    ASSERT_EQ(shared.lines.size(), static_cast<size_t>(Stations * PairsEach));
    std::set<int> seen;
    for (const std::string& line : shared.lines) {
        std::string why;
        ASSERT_TRUE(isDispensingRecord(line, &why)) << why;
        const int index = std::stoi(splitFields(line)[0]);
        ASSERT_TRUE(localLine.count(index)) << line;
        EXPECT_EQ(line, localLine[index]);
        EXPECT_TRUE(seen.insert(index).second) << "twice in the network journal: " << line;
    }
    const int changes = writerChanges(shared.lines, [](const std::string& line) { return splitFields(line)[2]; });
    RecordProperty("writer_changes", changes);
    std::printf("the network journal changes station %d times in 4000 lines\n", changes);

    // A station that knows nothing but the network journal sees every pair
    // given out, to the right person.
    const StationFolders fresh(tmp.path() / "fresh");
    fresh.prepare(inventory, optionsText(false, true, net));
    TestPlatform platform(fresh);
    Station station(platform);
    station.start();
    const Frm_Vistrel& v = station.vistrel();
    EXPECT_FALSE(v.Lbl_NetworkJournalDown.visible());
    EXPECT_TRUE(platform.boxes.empty());
    int wrong = 0;
    for (int index = 1; index <= Stations * PairsEach; ++index) {
        const auto r = static_cast<size_t>(index - 1);
        const int person = (index - 1) / PairsEach + 1;
        if (!v.Inv_Removed[r] || v.Inv_PersonNumber[r] != person) {
            EXPECT_LT(++wrong, 5) << "pair " << index << ": removed " << v.Inv_Removed[r] << ", person "
                                  << v.Inv_PersonNumber[r] << " instead of " << person;
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(v.Lst_PersonsList.listCount(), Stations * PairsEach);
    EXPECT_EQ(v.Lst_LeftInventory.listCount(), 0);
}

// Below the stations: four processes append lines of 40 bytes to 6 KB to
// one file as fast as they can, with the write lock the network journal
// takes or without it (as a file system without locks leaves them). Every
// line must arrive whole and alone, exactly as written, in its writer's
// order, with nothing between the lines. A round is over in a fraction of a
// second; five rounds make a rare fault of the interleaving all but
// certain to show.
void fourWritersAppend(bool lock)
{
    constexpr int Writers = 4;
    constexpr int Rounds = 5;
    // With the lock the writers take turns, and one that has waited a
    // second writes without it: the locked rounds are kept well short of that.
    const long Lines = lock ? 600 : 1500;
    TempFolder tmp("journal-hammer");
    for (int round = 1; round <= Rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        const fs::path file = tmp.path() / ("round" + std::to_string(round) + ".txt");
        std::vector<Child> workers;
        for (int tag = 0; tag < Writers; ++tag)
            workers.push_back(spawnChild({VISTREL_JOURNAL_WORKER, "hammer", file.string(), std::to_string(tag),
                                             std::to_string(Lines), lock ? "1" : "0"},
                true, false, {}, tmp.path() / ("worker" + std::to_string(tag) + ".err")));
        // All are waiting for their byte: let them go at once.
        for (Child& w : workers)
            ASSERT_TRUE(writeAll(w.input, "g"));
        for (Child& w : workers)
            ::close(w.input);
        for (int tag = 0; tag < Writers; ++tag) {
            const int status = reap(workers[static_cast<size_t>(tag)].pid);
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
                << "worker " << tag << ": " << describeStatus(status) << " "
                << readFile(tmp.path() / ("worker" + std::to_string(tag) + ".err"));
        }

        const JournalLines journal = splitJournal(readFile(file));
        EXPECT_TRUE(journal.whole) << journal.problem;
        // A blank line ends every replay of a journal, and all records
        // behind it are lost to every station.
        int blank = 0;
        size_t firstBlank = 0;
        std::array<long, Writers> next{1, 1, 1, 1};
        for (size_t i = 0; i < journal.lines.size(); ++i) {
            const std::string& line = journal.lines[i];
            if (line.empty()) {
                if (blank++ == 0)
                    firstBlank = i + 1;
                continue;
            }
            const std::vector<std::string> f = splitFields(line);
            ASSERT_EQ(f.size(), 4u) << "line " << i + 1 << ": " << line.substr(0, 80);
            const int tag = std::atoi(f[1].c_str());
            ASSERT_TRUE(tag >= 0 && tag < Writers) << "line " << i + 1 << ": " << line.substr(0, 80);
            const long seq = next[static_cast<size_t>(tag)]++;
            ASSERT_EQ(line, hammerLine(tag, seq)) << "line " << i + 1 << ": writer " << tag << "'s line " << seq;
        }
        EXPECT_EQ(blank, 0) << blank << " blank lines among " << Writers * Lines << ", the first is line "
                            << firstBlank;
        for (int tag = 0; tag < Writers; ++tag)
            EXPECT_EQ(next[static_cast<size_t>(tag)], Lines + 1) << "writer " << tag;
        if (::testing::Test::HasFailure())
            return;
        std::printf("round %d: the writer changes %d times in %zu lines\n", round,
            writerChanges(journal.lines, [](const std::string& line) { return splitFields(line)[1]; }),
            journal.lines.size());
    }
}

TEST(ConcurrentAppends, FourWritersWithTheLockAppendWholeLines)
{
    fourWritersAppend(true);
}

TEST(ConcurrentAppends, FourWritersWithoutTheLockAppendWholeLines)
{
    fourWritersAppend(false);
}

}  // namespace
}  // namespace vistrel::journaltest
