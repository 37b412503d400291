// The journal's pieces: whole-line appends, the records' texts, the one
// network file behind two spellings, the paths, and the replay of the grid
// journal only where it is the station's own.

#include "FakePlatform.h"

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/StockGridJournal.h"
#include "journal/JournalFileName.h"
#include "journal/JournalRecords.h"
#include "platform/AppendFile.h"
#include "platform/PathMapping.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::TempDir;
using test::readFile;
using test::writeFile;
namespace fs = std::filesystem;

// ---- Appends ----

TEST(AppendFile, EveryLineEndsInCrLfAndATornTailIsClosedFirst)
{
    TempDir dir;
    const std::string path = dir.file("journal.txt");

    ASSERT_TRUE(AppendFile::appendOneLine(path, "1,True,4", {}));
    ASSERT_TRUE(AppendFile::appendOneLine(path, "", {.syncOnClose = true}));
    EXPECT_EQ(readFile(path), "1,True,4\r\n\r\n");

    // A record cut short by a crash: the next one starts on a line of its own.
    writeFile(path, "1,True,4\r\n2,Tr");
    AppendFile file;
    ASSERT_TRUE(file.open(path, {.syncOnClose = true, .lockAgainstOtherWriters = true}));
    EXPECT_TRUE(file.appendLine("3,True,5"));
    EXPECT_TRUE(file.appendLine("4,True,6"));
    EXPECT_TRUE(file.close());
    EXPECT_EQ(readFile(path), "1,True,4\r\n2,Tr\r\n3,True,5\r\n4,True,6\r\n");

    // A line end of either kind counts as closed.
    writeFile(path, "x\r");
    ASSERT_TRUE(AppendFile::appendOneLine(path, "y", {}));
    EXPECT_EQ(readFile(path), "x\ry\r\n");
}

TEST(AppendFile, FailuresAreToldInWords)
{
    TempDir dir;
    std::string error;
    EXPECT_FALSE(AppendFile::appendOneLine(dir.file("no-such-folder/journal.txt"), "1,True,4", {}, &error));
    EXPECT_NE(error.find("cannot open the file"), std::string::npos) << error;

    // A folder where the file should be.
    fs::create_directories(dir.path() / "JournalFile.txt");
    error.clear();
    EXPECT_FALSE(AppendFile::appendOneLine(dir.file("JournalFile.txt"), "1,True,4", {.syncOnClose = true}, &error));
    EXPECT_FALSE(error.empty());

    AppendFile closed;
    EXPECT_FALSE(closed.appendLine("nothing open"));
    EXPECT_FALSE(closed.close());
}

// ---- Records ----

TEST(JournalRecords, DispensingRecordCarriesTheMeasurementAsText)
{
    const MeasuredEye left{-1.25, -0.5, 90, 0.5, -1.5};
    const MeasuredEye right{2.125, 0, 5, -0.005, 0.125};
    EXPECT_EQ(DispensingRecord(17, "True", 12, left, right),
        "17,True,12,-1.25,-0.50,090,0.50,(-1.50),2.13,0.00,005,-0.01,(0.13)");
    EXPECT_EQ(DispensingRecord(32000, " 3", 0, {}, {}),
        "32000, 3,0,0.00,0.00,000,0.00,(0.00),0.00,0.00,000,0.00,(0.00)");
    EXPECT_EQ(DispensingRecord(1, "False", 2147483647, {-16, -6, 180, 4.75, -19}, {}),
        "1,False,2147483647,-16.00,-6.00,180,4.75,(-19.00),0.00,0.00,000,0.00,(0.00)");
}

TEST(JournalRecords, MeasurementRecordTrimsTheEntryTextsOnly)
{
    EXPECT_EQ(MeasurementRecord({"  -1.25 ", "-.5", "90", "", "    ", "+2.00", "0", "  180", "1.5x", "-0.63"}),
        "Measurement,-1.25,-.5,90,,,+2.00,0,180,1.5x,-0.63");
    EXPECT_TRUE(IsJournalHeader("_JournalFileOrder"));
    EXPECT_TRUE(IsJournalHeader("Mission 3_JournalFileOrder v2"));
    EXPECT_FALSE(IsJournalHeader("_journalfileorder"));
    EXPECT_FALSE(IsJournalHeader("1"));
}

// ---- The network file's name ----

TEST(JournalFileName, BothSpellingsReachOneFile)
{
    TempDir dir;
    const std::string folder = dir.path().string();
    auto in = [&](const char* spelling) { return JournalFileIn(folder, '/', spelling); };

    // None yet: both spellings name the file as it is written.
    EXPECT_EQ(in("Journalfile.txt"), folder + "/JournalFile.txt");
    EXPECT_EQ(in("JournalFile.txt"), folder + "/JournalFile.txt");

    // Another station made it under another spelling: both reach that one.
    writeFile(dir.path() / "JOURNALFILE.TXT", "1,True,4\r\n");
    writeFile(dir.path() / "journalfile.txt", "");
    EXPECT_EQ(in("Journalfile.txt"), folder + "/JOURNALFILE.TXT");
    EXPECT_EQ(in("JournalFile.txt"), folder + "/JOURNALFILE.TXT");

    // The written spelling wins where both exist; a folder of that name
    // is no journal.
    writeFile(dir.path() / "JournalFile.txt", "");
    EXPECT_EQ(in("Journalfile.txt"), folder + "/JournalFile.txt");
    TempDir other;
    fs::create_directories(other.path() / "Journalfile.txt");
    EXPECT_EQ(JournalFileIn(other.path().string(), '/', "Journalfile.txt"), other.path().string() + "/JournalFile.txt");

    // A folder that isn't there: the open will fail and say so.
    EXPECT_EQ(JournalFileIn(folder + "/gone", '/', "Journalfile.txt"), folder + "/gone/JournalFile.txt");
}

// ---- Paths ----

TEST(PathMapping, DriveLettersMoveBelowTheSharedFolderPlainPathsStand)
{
    EXPECT_EQ(mapDriveLetterPath("C:\\JournalFile.txt", "/s"), "/s/drive_c/JournalFile.txt");
    EXPECT_EQ(mapDriveLetterPath("c:/NetworkJournal/JournalFile.txt", "/s/"), "/s/drive_c/NetworkJournal/JournalFile.txt");
    EXPECT_EQ(mapDriveLetterPath("D:", "/s"), "/s/drive_d");
    EXPECT_EQ(mapDriveLetterPath("C:/JournalFile.txt", "/s"), mapDriveLetterPath(StockGridJournalPath, "/s"));
    EXPECT_EQ(mapDriveLetterPath("/mnt/share/journal", "/s"), "/mnt/share/journal");
    EXPECT_EQ(mapDriveLetterPath("shares\\mission", "/s"), "shares\\mission");
    EXPECT_EQ(mapDriveLetterPath("\\\\server\\share", "/s"), "\\\\server\\share");
    EXPECT_TRUE(hasDriveLetter("z:"));
    EXPECT_FALSE(hasDriveLetter("1:"));
    EXPECT_FALSE(hasDriveLetter(":"));
}

TEST(FormatText, NumbersAreFormattedOtherTextsStand)
{
    EXPECT_EQ(FormatText("12", "000"), "012");
    EXPECT_EQ(FormatText(" -1 ", "000"), "-001");
    EXPECT_EQ(FormatText("6", "0.00"), "6.00");
    EXPECT_EQ(FormatText("-.5", "0.00"), "-0.50");
    EXPECT_EQ(FormatText("", "000"), "");
    EXPECT_EQ(FormatText("abc", "000"), "abc");
    EXPECT_EQ(FormatText("12abc", "000"), "12abc");
}

// ---- The grid journal on the station's own drive ----

class GridJournalReplay : public testing::Test {
protected:
    TempDir dir;
    FakePlatform platform{dir.path()};

    void SetUp() override
    {
        writeFile(platform.inventoryFile(), "1,-1.00,0,0,0,-1.00,0,0,0,0,0,0,0,0,62,0,\"\",,\r\n");
        writeFile(platform.optionsFile(),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
            "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
            "Default,1,32000\r\n");
        writeFile(platform.nativePath(StockGridJournalPath), "Reading,1.00,009\r\n");
    }
};

TEST_F(GridJournalReplay, OnlyWhereTheStationsFolderIsTheDrive)
{
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();
    EXPECT_EQ(station.readingGlasses().Txt_NNN[4].text(), "000");

    v.InventoryLocation = "C:";
    EXPECT_EQ(v.LocalJournalFile(), platform.nativePath(StockGridJournalPath));
    v.LoadJournalFile("LOCAL");
    EXPECT_EQ(station.readingGlasses().Txt_NNN[4].text(), "009");
}

TEST_F(GridJournalReplay, AnUnwritableGridJournalLeavesTheMarksForTheNextSave)
{
    Station station(platform);
    station.start();
    Frm_ReadingGlasses& reading = station.readingGlasses();
    const fs::path journal = platform.nativePath(StockGridJournalPath);
    fs::remove(journal);
    fs::create_directories(journal);  // no file can be opened there

    reading.Txt_NNN[4].click();
    reading.Cmd_SaveCells_Click();
    EXPECT_EQ(reading.Txt_NNN[4].backColor(), colors::LightYellow);
    EXPECT_TRUE(platform.boxes.empty());

    fs::remove(journal);
    reading.Cmd_SaveCells_Click();
    EXPECT_EQ(reading.Txt_NNN[4].backColor(), colors::LightGrey);
    EXPECT_EQ(readFile(journal), "Reading,1.00,-001\r\n");
}

}  // namespace
}  // namespace vistrel
