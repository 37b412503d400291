// The file reports' pieces: columns of fixed width, the dated name the old
// export is kept under, and the export's copy, site script and table limits
// on a station of its own.

#include "FakePlatform.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "reports/DeletedRejectedExport.h"
#include "reports/JustifyField.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::TempDir;
using test::readFile;
using test::writeFile;
namespace fs = std::filesystem;

// ---- Columns ----

TEST(JustifyField, PadsTheTrimmedTextOnTheSideAskedAndLeavesLongerTextsWhole)
{
    EXPECT_EQ(JustifyField(-0.5, "##.00", 6, "right"), "  -.50");
    EXPECT_EQ(JustifyField(7, "##0", 4, "LEFT"), "7   ");
    EXPECT_EQ(JustifyField(7, "##0", 4, "CENTER"), "7   ");
    // The pattern's own blank goes before the padding is counted.
    EXPECT_EQ(JustifyField(12, " 000000", 8, "RIGHT"), "  000012");
    EXPECT_EQ(JustifyField(-10.125, "##.00", 5, "RIGHT"), "-10.13");
    // A width below 1 counts as 1.
    EXPECT_EQ(JustifyField(0, "###", 0, "RIGHT"), " ");
    EXPECT_EQ(JustifyField(5, "##0", -4, "LEFT"), "5");
    // A text goes through the pattern only when it reads as a number.
    EXPECT_EQ(JustifyField(Variant("2.5"), "##.00", 6, "RIGHT"), "  2.50");
    EXPECT_EQ(JustifyField(Variant(" abc "), "##.00", 5, "RIGHT"), "  abc");
}

// ---- The old export's dated name ----

TEST(DeletedBackupName, SetsDateAndTimeInAtTheFirstPoint)
{
    const std::string file = "/home/mission/Documents/Vistrel/Total_Inventory_Deleted_Rejected.txt";
    const std::string head = "/home/mission/Documents/Vistrel/Total_Inventory_Deleted_Rejected-";
    EXPECT_EQ(DeletedBackupName(file, {2026, 11, 21, 10, 0, 0}), head + "11-21-2026-10-00-00-AM.txt");
    // No leading zero in month, day or hour; minutes and seconds two digits.
    EXPECT_EQ(DeletedBackupName(file, {2027, 3, 4, 14, 5, 9}), head + "3-4-2027-2-05-09-PM.txt");
    // Midnight and noon are 12.
    EXPECT_EQ(DeletedBackupName(file, {2026, 1, 1, 0, 7, 0}), head + "1-1-2026-12-07-00-AM.txt");
    EXPECT_EQ(DeletedBackupName(file, {2026, 12, 31, 12, 59, 59}), head + "12-31-2026-12-59-59-PM.txt");
    EXPECT_EQ(DeletedBackupName(file, {2026, 12, 31, 23, 0, 1}), head + "12-31-2026-11-00-01-PM.txt");
}

TEST(DeletedBackupName, APointInAFolderTakesTheDateAndTime)
{
    EXPECT_EQ(DeletedBackupName("C:\\Users\\ann.lee\\Documents\\Vistrel\\Total_Inventory_Deleted_Rejected.txt",
                  {2026, 11, 21, 10, 0, 0}),
        "C:\\Users\\ann-11-21-2026-10-00-00-AM.lee\\Documents\\Vistrel\\Total_Inventory_Deleted_Rejected.txt");
    EXPECT_EQ(DeletedBackupName("export", {2026, 11, 21, 10, 0, 0}), "export-11-21-2026-10-00-00-AM");
}

// ---- On a station ----

// Remembers what the station asked to have opened or started.
class WatchingPlatform : public FakePlatform {
public:
    using FakePlatform::FakePlatform;
    std::vector<std::string> shells;
    std::vector<std::string> scripts;
    void shell(const std::string& what) override { shells.push_back(what); }
    void runScript(const std::string& path) override { scripts.push_back(path); }
};

class StationReports : public testing::Test {
protected:
    TempDir dir{"vistrel-reports"};
    WatchingPlatform platform{dir.path()};

    void SetUp() override
    {
        writeFile(platform.inventoryFile(),
            "1,-1.00,0,0,0,-1.00,0,0,0,0,0,0,0,0,62,0,\"\",,\r\n"
            "2,-2.00,0,0,0,-2.00,0,0,0,0,0,0,0,0,62,12,\"\",,\r\n");
        writeFile(platform.optionsFile(),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
            "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
            "Default,1,32000\r\n");
    }

    fs::path inVistrel(const std::string& name) const { return fs::path(platform.docs()) / "Vistrel" / name; }
};

TEST_F(StationReports, TheOldExportIsKeptUnderItsDatedNameAndTheNewOneWritten)
{
    if (platform.docs().find('.') != std::string::npos)
        GTEST_SKIP() << "a point in the temporary folder's path takes the date and time";
    writeFile(inVistrel("Total_Inventory_Deleted_Rejected.txt"), "1,old\r\n");
    Station station(platform);
    station.start();

    station.vistrel().SaveDeletedRejectedInventory_Click();

    EXPECT_EQ(readFile(inVistrel("Total_Inventory_Deleted_Rejected-11-21-2026-10-00-00-AM.txt")), "1,old\r\n");
    EXPECT_EQ(readFile(inVistrel("Total_Inventory_Deleted_Rejected.txt")),
        "-2,-2,0,0,0,-2,0,0,0,0,0,0,0,0,62,12,,,\r\n");
    ASSERT_EQ(platform.boxes.size(), 1u);
    EXPECT_EQ(platform.boxes[0].title, "The Deleted / Rejected Inventory File has been created.");
    EXPECT_TRUE(platform.scripts.empty());
}

TEST_F(StationReports, OnlyAnExecutableSiteScriptIsStarted)
{
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();
    const fs::path script = inVistrel(SiteScriptName);

    // A batch file is for Windows.
    writeFile(inVistrel("MoveDeletedInventory.bat"), "@echo off\r\n");
    v.SaveDeletedRejectedInventory_Click();
    EXPECT_TRUE(platform.scripts.empty());

    writeFile(script, "#!/bin/sh\n");
    fs::permissions(script, fs::perms::owner_read | fs::perms::owner_write);
    v.SaveDeletedRejectedInventory_Click();
    EXPECT_TRUE(platform.scripts.empty());

    fs::permissions(script, fs::perms::owner_exec, fs::perm_options::add);
    v.SaveDeletedRejectedInventory_Click();
    EXPECT_EQ(platform.scripts, std::vector<std::string>{v.PathIn(v.InventoryLocation, SiteScriptName)});

    // A folder of that name is no script.
    fs::remove(script);
    fs::create_directories(script);
    v.SaveDeletedRejectedInventory_Click();
    EXPECT_EQ(platform.scripts.size(), 1u);
}

TEST_F(StationReports, MeasurementsPastTheTableAreCountedButNotListed)
{
    Station station(platform);
    station.start();
    Frm_Vistrel& v = station.vistrel();
    v.MeasurementsSaved = Frm_Vistrel::MeasurementRows + 1;

    v.DisplayNoMatchMeasurements_Click();
    const std::string report = readFile(inVistrel("Total_Inventory_Report.txt"));
    EXPECT_NE(report.find("\r\n     2000   .00"), std::string::npos);
    EXPECT_EQ(report.find("\r\n     2001"), std::string::npos);
    EXPECT_NE(report.find("\r\nNumber of No Matches = 2001\r\n"), std::string::npos);
    EXPECT_EQ(platform.shells, std::vector<std::string>{"Notepad.exe " + v.ReportFileName});

    v.SaveUNMatchedMeasurementsFile_Click();
    const std::string exported = readFile(inVistrel("Total_Inventory_UnMatched.txt"));
    EXPECT_NE(exported.find("\r\n2000,0,0,0,0,0,0,0,0,\r\n"), std::string::npos);
    EXPECT_EQ(exported.find("\r\n2001,"), std::string::npos);
}

}  // namespace
}  // namespace vistrel
