// Start-up of a whole station against damaged and random files: an
// inventory file and an options file can hold anything, and the station
// must come up (or end with its options box), keep within its tables and
// never write the inventory file.

#include "FakePlatform.h"
#include "StationNoise.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::Noise;
using test::ProcessEnded;
using test::TempDir;
using test::expectWithinTables;
using test::readFile;
using test::wellFormedRecord;
using test::writeFile;

const char* const DemoOptions = VISTREL_DEMO_DIR "/Application Data/Vistrel/Vistrel-Options.txt";

class StationStart : public testing::Test {
protected:
    void SetUp() override
    {
        writeFile(platform.optionsFile(), readFile(DemoOptions));
        ASSERT_FALSE(readFile(platform.optionsFile()).empty()) << DemoOptions;
    }

    // A fresh station over the files as they are now; true when it came up.
    bool start()
    {
        station = std::make_unique<Station>(platform);
        platform.boxes.clear();
        platform.modalForms.clear();
        try {
            station->start();
        } catch (const ProcessEnded&) {
            return false;
        }
        return true;
    }

    // Starts over the given inventory bytes and checks what must hold.
    void startOverInventory(const std::string& bytes)
    {
        writeFile(platform.inventoryFile(), bytes);
        ASSERT_TRUE(start()) << "the station ended over an inventory file";
        EXPECT_TRUE(platform.modalForms.empty());
        expectWithinTables(station->vistrel());
        EXPECT_EQ(readFile(platform.inventoryFile()), bytes) << "the inventory file was changed";
    }

    TempDir dir;
    FakePlatform platform{dir.path()};
    std::unique_ptr<Station> station;
};

TEST_F(StationStart, RandomInventoryFiles)
{
    const unsigned seeds[] = {11, 23, 37, 41};
    for (unsigned seed : seeds) {
        Noise noise(seed);
        for (int round = 0; round < 50; ++round) {
            const size_t size = noise.size(300 * 1024);
            std::string bytes;
            switch (round % 5) {
            case 0:
                bytes = noise.bytes(size);
                break;
            case 1:
                bytes = noise.delimiters(size);
                break;
            case 2:
                bytes = noise.records(size, true);
                break;
            case 3:
                bytes = noise.records(size, false);
                break;
            default:
                bytes = noise.records(noise.size(4096), true) + noise.longLine(size) + noise.records(noise.size(4096), false);
                break;
            }
            SCOPED_TRACE(testing::Message() << "seed " << seed << " round " << round << ": " << bytes.size()
                                            << " bytes");
            startOverInventory(bytes);
            if (HasFatalFailure() || HasFailure())
                return;
        }
    }
}

TEST_F(StationStart, InventoryEdges)
{
    // Bag numbers at and beyond the tables' ends, and records cut short.
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"empty", ""},
        {"one blank line", "\r\n"},
        {"zero and negative bags", wellFormedRecord(0) + wellFormedRecord(-5) + wellFormedRecord(-32768) + wellFormedRecord(3)},
        {"bags above the tables", wellFormedRecord(32000) + wellFormedRecord(32767) + wellFormedRecord(32001)},
        {"bags beyond an Integer", wellFormedRecord(40000) + wellFormedRecord(99999) + wellFormedRecord(7)},
        {"huge numbers", "1e308,1e308,99999999999999999999,1e308,-1e308,1e999,1e308,99999999999999999999,1e308,"
                         "1e308,1e308,1e308,1e308,1e308,1e308,1e308,1e308,1e308,1e308\r\n"},
        {"missing fields", "1,-1.00\r\n2\r\n3,,,,\r\n" + wellFormedRecord(4)},
        {"stock records only", "READING,1.00,5\r\nLENS,-6.25,-3.00,2\r\nLENSCHILD,16.00,0.00,1\r\nFRAMES,99,4\r\n"
                               "FRAMESCHILD,57,2\r\nREADING,9.99,1e308\r\nLENS,99,99,99\r\n"},
        {"stock records between pairs", wellFormedRecord(1) + "READING,1.00,5\r\n" + wellFormedRecord(2)},
        {"blank line at the end", wellFormedRecord(1) + wellFormedRecord(2) + "\r\n"},
    };
    for (const auto& [name, bytes] : cases) {
        SCOPED_TRACE(name);
        startOverInventory(bytes);
    }

    // A blank line at the end is one more record.
    writeFile(platform.inventoryFile(), wellFormedRecord(1) + wellFormedRecord(2) + "\r\n");
    ASSERT_TRUE(start());
    EXPECT_EQ(station->vistrel().InventoryCount.number(), 3);

    // No inventory file at all: one empty record, no message.
    std::filesystem::remove(platform.inventoryFile());
    ASSERT_TRUE(start());
    EXPECT_EQ(station->vistrel().InventoryCount.number(), 1);
    EXPECT_TRUE(platform.boxes.empty());
    expectWithinTables(station->vistrel());
    EXPECT_FALSE(std::filesystem::exists(platform.inventoryFile())) << "the station made an inventory file";
}

TEST_F(StationStart, MoreRecordsThanTheTablesHold)
{
    std::string bytes;
    for (int k = 0; k < 40000; ++k)
        bytes += wellFormedRecord(k % 31000 + 1);
    startOverInventory(bytes);
    const Frm_Vistrel& v = station->vistrel();
    EXPECT_EQ(v.InventoryCount.number(), 32000);
    EXPECT_EQ(v.Inv_Number[31999], 1000);  // record 32000 is bag 32000 - 31000
    EXPECT_EQ(v.HighestInventoryNr, 31000);
    EXPECT_EQ(v.Lst_LeftInventory.listCount(), 32000);
}

// ---- Options files ----

std::string validOptionsHead(Noise& noise)
{
    return noise.pick(std::vector<std::string>{"DEFAULT", "EXACT-MATCH", "default/4", "DEFAULT/2", "Default*2", "MAX"})
        + "," + noise.pick(std::vector<std::string>{"LEFT-ONLY", "RIGHT-ONLY", "BOTH-EQUALLY", "both-equally"}) + ","
        + noise.pick(std::vector<std::string>{"READING-ALSO", "READING-ONLY", "NONE", "none"});
}

std::string optionsField(Noise& noise)
{
    switch (noise.below(6)) {
    case 0:
        return noise.pick(std::vector<std::string>{"YES", "NO", "yes", "1", "0", "", " ", "35", "35)", "-1",
            "NIKON RETINOMAX2                          ", "CANON RK-2", "TOPCON KR-3000-7000", "NONE", "HUMPHREY 597",
            "MARCONIDEK ARK-20/30", "REICHERT RK600", "17", " 3", "1e308", "99999999999999999999", "Default",
            "C:\\NetworkJournal", "\"quoted, path\""});
    case 1:
        return noise.bytes(noise.size(64));
    case 2:
        return noise.delimiters(noise.size(32));
    default:
        return noise.number();
    }
}

TEST_F(StationStart, RandomOptionsFiles)
{
    std::string inventory;
    for (int bag = 1; bag <= 30; ++bag)
        inventory += wellFormedRecord(bag);
    writeFile(platform.inventoryFile(), inventory);

    int cameUp = 0, ended = 0;
    Noise noise(2026);
    for (int round = 0; round < 120; ++round) {
        std::string options;
        switch (round % 4) {
        case 0:
        case 1: {
            // The first three records valid, the model mostly known, the rest anything.
            options = validOptionsHead(noise);
            const int fields = noise.below(60);
            for (int f = 4; f < 4 + fields; ++f) {
                std::string value = optionsField(noise);
                if (f == 8 && noise.chance(80))
                    value = noise.pick(std::vector<std::string>{"NONE", "nikon retinomax3", "CANON RK-2",
                        "WELCHALLYN SURESIGHT", "BURTON VELO 20-10", "SHIN NIPPON 8001"});
                options += (noise.chance(90) ? "," : noise.lineEnd()) + value;
            }
            if (noise.chance(50))
                options += "\r\n";
            break;
        }
        case 2:
            options = noise.bytes(noise.size(4096));
            break;
        default:
            for (int f = noise.below(70); f > 0; --f)
                options += optionsField(noise) + (noise.chance(90) ? "," : noise.lineEnd());
            break;
        }
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << options.size() << " bytes");
        writeFile(platform.optionsFile(), options);

        if (start()) {
            ++cameUp;
            expectWithinTables(station->vistrel());
        } else {
            ++ended;
            ASSERT_FALSE(platform.boxes.empty()) << "the station ended without a word";
            EXPECT_EQ(platform.boxes.back().title, "Options File Error!");
        }
        EXPECT_TRUE(platform.modalForms.empty()) << "an options file that opens is no first start";
        EXPECT_EQ(readFile(platform.inventoryFile()), inventory);
        EXPECT_EQ(readFile(platform.optionsFile()), options) << "reading the options changed them";
        if (HasFailure())
            return;
    }
    // Both outcomes were met, or the rounds tested less than they seem to.
    EXPECT_GT(cameUp, 10);
    EXPECT_GT(ended, 10);
}

TEST_F(StationStart, FirstStartWithoutOptionsFile)
{
    std::filesystem::remove(platform.optionsFile());
    writeFile(platform.inventoryFile(), wellFormedRecord(1) + wellFormedRecord(2));
    ASSERT_TRUE(start());
    EXPECT_EQ(platform.modalForms, (std::vector<std::string>{"Frm_ProgramOptions"}));
    EXPECT_TRUE(std::filesystem::exists(platform.optionsFile())) << "the options screen wrote no file";
    EXPECT_EQ(station->vistrel().InventoryCount.number(), 2);
    expectWithinTables(station->vistrel());

    // The file written then is read at the next start without the screen.
    ASSERT_TRUE(start());
    EXPECT_TRUE(platform.modalForms.empty());
    EXPECT_EQ(station->vistrel().InventoryCount.number(), 2);
}

TEST_F(StationStart, FoldersThatCannotBeMade)
{
    // Both folders blocked by plain files: the options screen comes up once,
    // its file can't be written, and the station goes on without it.
    std::filesystem::remove_all(platform.shared());
    std::filesystem::remove_all(platform.docs());
    writeFile(platform.shared(), "not a folder");
    writeFile(platform.docs(), "not a folder");
    ASSERT_TRUE(start());
    EXPECT_EQ(platform.modalForms, (std::vector<std::string>{"Frm_ProgramOptions"}));
    EXPECT_EQ(station->vistrel().InventoryCount.number(), 1);
    expectWithinTables(station->vistrel());
    EXPECT_EQ(readFile(platform.shared()), "not a folder");
    EXPECT_EQ(readFile(platform.docs()), "not a folder");
}

}  // namespace
}  // namespace vistrel
