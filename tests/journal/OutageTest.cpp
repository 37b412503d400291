// Journals that can't be written. The network folder may vanish (a share
// that drops, a cable pulled) and come back: the station serves on, says
// the network journal is down, records locally, and when the folder is back
// it says so again; the outage's records stay local. A local journal that
// can't be written is told to the operator once per lost change, and the
// change stands in memory.

#include "JournalKit.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

namespace vistrel::journaltest {
namespace {

// An operator's click on a row of a pair list, answering the question that
// follows with `button`.
void clickRow(TestPlatform& platform, ListBox& list, int row, const std::string& button)
{
    platform.answers.push_back(button);
    list.setListIndex(row);
    list.click();
    ASSERT_TRUE(platform.answers.empty()) << "no question was asked for row " << row << " of " << list.name();
}

void giveOut(TestPlatform& platform, Frm_Vistrel& v, int row, int person)
{
    v.Txt_PersonNumber.setText(std::to_string(person));
    clickRow(platform, v.Lst_LeftInventory, row, "Cmd_RemoveInventory");
}

std::vector<std::string> journalLines(const fs::path& path)
{
    const JournalLines journal = splitJournal(readFile(path));
    EXPECT_TRUE(journal.whole) << path << ": " << journal.problem;
    return journal.lines;
}

// The table index of each record.
std::vector<int> indexes(const std::vector<std::string>& lines)
{
    std::vector<int> result;
    for (const std::string& line : lines)
        result.push_back(std::atoi(line.c_str()));
    return result;
}

TEST(NetworkOutage, StationServesThroughAnOutageAndSeesTheFolderComeBack)
{
    TempFolder tmp("journal-outage");
    const fs::path net = tmp.path() / "net";
    const fs::path away = tmp.path() / "net-unplugged";
    fs::create_directories(net);
    const StationFolders folders(tmp.path() / "station");
    folders.prepare(inventoryText(20), optionsText(false, true, net));

    TestPlatform platform(folders);
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();

    // Before: both journals get the record, and once the network journal
    // exists the person list finds it.
    giveOut(platform, v, 0, 5);
    EXPECT_EQ(indexes(journalLines(folders.localJournal())), std::vector<int>{1});
    EXPECT_EQ(indexes(journalLines(net / "JournalFile.txt")), std::vector<int>{1});
    v.ListPersons();
    ASSERT_FALSE(v.Lbl_NetworkJournalDown.visible());

    // The folder goes away: dispensing goes on without a word, locally.
    fs::rename(net, away);
    giveOut(platform, v, 1, 6);
    clickRow(platform, v.Lst_LeftInventory, 2, "Cmd_RejectInventory");
    EXPECT_TRUE(platform.boxes.empty()) << platform.boxes.front().title;
    EXPECT_TRUE(v.Inv_Removed[1]);
    EXPECT_EQ(v.Inv_PersonNumber[1], 6);
    EXPECT_EQ(v.Inv_RejectCount[2], 1);
    EXPECT_EQ(indexes(journalLines(folders.localJournal())), (std::vector<int>{1, 2, 3}));
    EXPECT_FALSE(fs::exists(net)) << "an append made the missing network folder anew";

    // The person list says the network journal is down, and lists what the
    // station knows.
    v.ListPersons();
    EXPECT_TRUE(v.Lbl_NetworkJournalDown.visible());
    ASSERT_EQ(v.Lst_PersonsList.listCount(), 2);
    EXPECT_EQ(v.Lst_PersonsList.row(1).itemData, 2);
    // The five-minute refresh sees the same.
    for (int tick = 0; tick < 5; ++tick)
        v.Tmr_RefreshPersonList_Timer();
    EXPECT_TRUE(v.Lbl_NetworkJournalDown.visible());

    // The folder comes back: the next refresh hides the label.
    fs::rename(away, net);
    v.ListPersons();
    EXPECT_FALSE(v.Lbl_NetworkJournalDown.visible());
    ASSERT_EQ(v.Lst_PersonsList.listCount(), 2);
    giveOut(platform, v, 3, 7);
    EXPECT_TRUE(platform.boxes.empty());

    // Every record locally; the network journal lacks only the outage's.
    const std::vector<std::string> local = journalLines(folders.localJournal());
    const std::vector<std::string> shared = journalLines(net / "JournalFile.txt");
    ASSERT_EQ(indexes(local), (std::vector<int>{1, 2, 3, 4}));
    ASSERT_EQ(indexes(shared), (std::vector<int>{1, 4}));
    EXPECT_EQ(shared[0], local[0]);
    EXPECT_EQ(shared[1], local[3]);
    for (const std::string& line : local) {
        std::string why;
        EXPECT_TRUE(isDispensingRecord(line, &why)) << why;
    }

    // A restart knows all of it, from the local journal.
    TestPlatform again(folders);
    Station restarted(again);
    restarted.start();
    const Frm_Vistrel& w = restarted.vistrel();
    EXPECT_FALSE(w.Lbl_NetworkJournalDown.visible());
    for (size_t r = 0; r < 20; ++r) {
        EXPECT_EQ(w.Inv_Removed[r], v.Inv_Removed[r]) << "row " << r + 1;
        EXPECT_EQ(w.Inv_PersonNumber[r], v.Inv_PersonNumber[r]) << "row " << r + 1;
        EXPECT_EQ(w.Inv_RejectCount[r], v.Inv_RejectCount[r]) << "row " << r + 1;
    }
}

// A station with a network journal whose local journal is broken by
// `breakJournal` after a first good record and mended by `mendJournal`
// after two lost changes.
void expectOneBoxPerLostChange(const std::function<void(const StationFolders&)>& breakJournal,
    const std::function<void(const StationFolders&)>& mendJournal)
{
    TempFolder tmp("journal-local");
    const fs::path net = tmp.path() / "net";
    fs::create_directories(net);
    const StationFolders folders(tmp.path() / "station");
    folders.prepare(inventoryText(10), optionsText(false, true, net));
    TestPlatform platform(folders);
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();

    giveOut(platform, v, 0, 3);
    ASSERT_TRUE(platform.boxes.empty());
    breakJournal(folders);

    // One box per change that didn't reach the journal, naming the file;
    // the change stands.
    giveOut(platform, v, 1, 4);
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "Journal File Error!");
    EXPECT_NE(platform.boxes[0].text.find(folders.localJournal().string()), std::string::npos)
        << platform.boxes[0].text;
    EXPECT_TRUE(v.Inv_Removed[1]);
    EXPECT_EQ(v.Inv_PersonNumber[1], 4);
    clickRow(platform, v.Lst_LeftInventory, 2, "Cmd_RejectInventory");
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(v.Inv_RejectCount[2], 1);

    // The station goes on: its person list, and once the journal can be
    // written again, records without a word.
    v.ListPersons();
    EXPECT_EQ(v.Lst_PersonsList.listCount(), 2);
    mendJournal(folders);
    giveOut(platform, v, 3, 5);
    EXPECT_EQ(platform.boxes.size(), 2u);
    EXPECT_EQ(indexes(journalLines(folders.localJournal())), (std::vector<int>{1, 4}));
    // The network journal missed nothing.
    EXPECT_EQ(indexes(journalLines(net / "JournalFile.txt")), (std::vector<int>{1, 2, 3, 4}));
}

TEST(LocalJournalFailure, JournalReplacedByAFolderIsToldOncePerChange)
{
    expectOneBoxPerLostChange(
        [](const StationFolders& f) {
            fs::rename(f.localJournal(), f.vistrelFolder() / "JournalFile.saved");
            fs::create_directory(f.localJournal());
        },
        [](const StationFolders& f) {
            fs::remove(f.localJournal());
            fs::rename(f.vistrelFolder() / "JournalFile.saved", f.localJournal());
        });
}

TEST(LocalJournalFailure, ReadOnlyJournalIsToldOncePerChange)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "permissions don't bind root";
    expectOneBoxPerLostChange(
        [](const StationFolders& f) {
            fs::permissions(f.localJournal(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        },
        [](const StationFolders& f) {
            fs::permissions(f.localJournal(), fs::perms::owner_write, fs::perm_options::add);
        });
}

TEST(LocalJournalFailure, StartWithTheJournalAFolderIsQuietAndTakesTheNetworkJournal)
{
    TempFolder tmp("journal-local-start");
    const fs::path net = tmp.path() / "net";
    const StationFolders folders(tmp.path() / "station");
    folders.prepare(inventoryText(10), optionsText(false, true, net));
    writeFile(net / "JournalFile.txt", "2,True,8,0.00,0.00,000,0.00,(0.00),0.00,0.00,000,0.00,(0.00)\r\n");
    fs::create_directories(folders.localJournal());

    TestPlatform platform(folders);
    Station station(platform);
    station.start();
    const Frm_Vistrel& v = station.vistrel();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_TRUE(v.Inv_Removed[1]);
    EXPECT_EQ(v.Inv_PersonNumber[1], 8);
    EXPECT_EQ(v.Lst_PersonsList.listCount(), 1);
}

}  // namespace
}  // namespace vistrel::journaltest
