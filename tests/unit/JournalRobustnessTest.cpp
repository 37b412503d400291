// Start-up over journals that hold anything at all: the replay may stop
// early, but the station comes up, stays within its tables, says nothing
// and never writes the journals it reads.

#include "FakePlatform.h"
#include "StationNoise.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
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

// The options of a station whose network journal is the folder given.
std::string optionsWithNetworkJournal(const std::string& folder)
{
    return "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
           "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,YES,"
        + folder + ",0,Default,1,32000\r\n";
}

std::string dispensing(const std::string& index, const std::string& flag, const std::string& person)
{
    return index + "," + flag + "," + person + ",-1.25,-0.50,090,0.50,(-1.50),0.00,0.00,000,0.00,(0.00)";
}

// Records of the journal's kinds, clean or with fields missing, doubled
// and wrong, and headers among them.
std::string journalRecords(Noise& noise, size_t n, bool messy)
{
    static const std::vector<std::string> flags = {"True", "False", "true", "FALSE", " 1", " 2", "0", "-5", "40000",
        "1e308", "x", "", "\"True\""};
    std::string s;
    while (s.size() < n) {
        std::string line;
        switch (noise.below(10)) {
        case 0:
            line = "Measurement";
            for (int f = 0; f < 10; ++f)
                line += "," + (messy ? noise.field() : noise.number());
            break;
        case 1:
            line = noise.pick(std::vector<std::string>{"Reading,1.00,", "READING,5.00,", "Lens,-1.25,-0.50,",
                       "LensChild,6.00,0,", "lens,7.00,-9.00,", "Frames,65,", "FramesChild,57,", "Frames,99,"})
                + noise.number();
            break;
        case 2:
            line = messy ? "x_JournalFileOrder" : "_JournalFileOrder";
            break;
        default:
            line = dispensing(messy && noise.chance(30) ? noise.number() : std::to_string(1 + noise.below(40)),
                noise.pick(flags), messy && noise.chance(30) ? noise.field() : std::to_string(noise.below(100000)));
            break;
        }
        if (messy && noise.chance(15)) {
            // Cut short, or with a field too many.
            line = noise.chance(50) ? line.substr(0, static_cast<size_t>(noise.below(static_cast<int>(line.size()) + 1)))
                                    : line + "," + noise.field();
        }
        s += line + (messy ? noise.lineEnd() : std::string("\r\n"));
    }
    return s;
}

class JournalReplay : public testing::Test {
protected:
    void SetUp() override
    {
        std::string inventory;
        for (int bag = 1; bag <= 40; ++bag)
            inventory += wellFormedRecord(bag);
        writeFile(platform.inventoryFile(), inventory);
        std::filesystem::create_directories(network);
        writeFile(platform.optionsFile(), optionsWithNetworkJournal(network.string()));
    }

    std::filesystem::path localJournal() const { return platform.inventoryFile().parent_path() / "JournalFile.txt"; }
    std::filesystem::path networkJournal() const { return network / "JournalFile.txt"; }

    // Starts over the two journals; checks what must hold whatever they held.
    void startOver(const std::string& local, const std::string& shared)
    {
        writeFile(localJournal(), local);
        writeFile(networkJournal(), shared);
        station = std::make_unique<Station>(platform);
        platform.boxes.clear();
        try {
            station->start();
        } catch (const ProcessEnded&) {
            FAIL() << "the station ended over a journal";
        }
        EXPECT_TRUE(platform.boxes.empty()) << platform.boxes.front().title << ": " << platform.boxes.front().text;
        const Frm_Vistrel& v = station->vistrel();
        expectWithinTables(v);
        EXPECT_GE(v.MeasurementsSaved, 0);
        EXPECT_EQ(v.Meas_LeftSphere.size(), static_cast<size_t>(Frm_Vistrel::MeasurementRows));
        EXPECT_LE(v.Lst_PersonsList.listCount(), v.InventoryCount.number());
        EXPECT_EQ(readFile(localJournal()), local) << "the replay wrote the local journal";
        EXPECT_EQ(readFile(networkJournal()), shared) << "the replay wrote the network journal";
    }

    TempDir dir;
    FakePlatform platform{dir.path()};
    std::filesystem::path network = dir.path() / "share" / "journal";
    std::unique_ptr<Station> station;
};

TEST_F(JournalReplay, RandomJournals)
{
    for (unsigned seed : {5u, 17u, 29u}) {
        Noise noise(seed);
        for (int round = 0; round < 30; ++round) {
            auto journal = [&](int kind) {
                const size_t size = noise.size(200 * 1024);
                switch (kind % 5) {
                case 0:
                    return noise.bytes(size);
                case 1:
                    return noise.delimiters(size);
                case 2:
                    return journalRecords(noise, size, true);
                case 3:
                    return journalRecords(noise, size, false);
                default:
                    return journalRecords(noise, noise.size(4096), true) + noise.longLine(size)
                        + journalRecords(noise, noise.size(4096), false);
                }
            };
            const std::string local = journal(round);
            const std::string shared = journal(round + 2);
            SCOPED_TRACE(testing::Message() << "seed " << seed << " round " << round << ": " << local.size() << " + "
                                            << shared.size() << " bytes");
            startOver(local, shared);
            if (HasFailure())
                return;
        }
    }
}

TEST_F(JournalReplay, JournalEdges)
{
    const std::string megabyte(1 << 20, 'x');
    std::string shortLines;
    for (int k = 0; k < 100'000; ++k)
        shortLines += "7,True\r\n";
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"indices at and beyond the tables", dispensing("32000", "True", "1") + "\r\n" + dispensing("32001", "True", "1")
                + "\r\n" + dispensing("40000", "True", "1") + "\r\n"},
        {"indices beyond a Long", dispensing("99999999999999999999", "True", "1") + "\r\n" + dispensing("3", "True", "1")},
        {"negative and fractional indices", dispensing("-5", "True", "1") + "\r\n" + dispensing("0.4", "True", "1")
                + "\r\n" + dispensing("2.5", "True", "1")},
        {"persons and counts too large", dispensing("1", "True", "1e12") + "\r\n" + dispensing("2", "40000", "1")
                + "\r\n" + dispensing("3", "-40000", "1")},
        {"a line of a megabyte", dispensing("1", "True", "2") + "," + megabyte + "\r\n" + dispensing("2", "True", "3")},
        {"a quoted field of a megabyte", "1,\"" + megabyte + "\",2\r\n" + dispensing("4", "True", "5")},
        {"short lines", shortLines},
        {"CR only", dispensing("1", "True", "2") + "\r" + dispensing("2", "True", "3") + "\r"},
        {"LF only", dispensing("1", "True", "2") + "\n" + dispensing("2", "True", "3") + "\n"},
        {"a header in the middle", dispensing("1", "True", "2") + "\r\n_JournalFileOrder\r\n" + dispensing("2", "True", "3")},
        {"measurements past the table", [] {
             std::string s;
             for (int k = 0; k < 2100; ++k)
                 s += "Measurement,1,2,3,4,5,6,7,8,9,10\r\n";
             return s;
         }()},
        {"only line ends", "\r\n\r\n\n\r\r\n"},
        {"NULs", std::string(1000, '\0')},
    };
    for (const auto& [name, bytes] : cases) {
        SCOPED_TRACE(name);
        startOver(bytes, bytes);
        if (HasFailure())
            return;
    }
}

// What a few of those edges must leave, beyond coming through.
TEST_F(JournalReplay, WhatTheEdgesLeave)
{
    // Lines of two fields: the first record takes the eleven fields behind
    // it, the next one starts at a flag, which reads as index 0 and ends
    // the replay. Row 7 stays removed.
    std::string shifted;
    for (int k = 0; k < 1000; ++k)
        shifted += "7,True\r\n";
    startOver(shifted, "");
    EXPECT_TRUE(station->vistrel().Inv_Removed[6]);

    // Up to the first index beyond the tables, and nothing after it.
    startOver(dispensing("2", "True", "9") + "\r\n" + dispensing("32001", "True", "1") + "\r\n"
            + dispensing("3", "True", "1") + "\r\n",
        "");
    EXPECT_TRUE(station->vistrel().Inv_Removed[1]);
    EXPECT_FALSE(station->vistrel().Inv_Removed[2]);
    EXPECT_FALSE(station->vistrel().Lbl_NetworkJournalDown.visible());

    // A million records, all replayed.
    std::string million;
    million.reserve(20'000'000);
    for (int k = 0; k < 1'000'000; ++k)
        million += k % 2 ? "7,True,1,,,,,,,,,,\r\n" : "7,False,0,,,,,,,,,,\r\n";
    million += dispensing("9", "True", "5") + "\r\n";
    startOver(million, "");
    EXPECT_TRUE(station->vistrel().Inv_Removed[6]);  // the last of them
    EXPECT_EQ(station->vistrel().Inv_PersonNumber[6], 1);
    EXPECT_TRUE(station->vistrel().Inv_Removed[8]);
    EXPECT_EQ(station->vistrel().Inv_PersonNumber[8], 5);

    // The same in the network journal shows the label.
    startOver("", dispensing("32001", "True", "1") + "\r\n");
    EXPECT_TRUE(station->vistrel().Lbl_NetworkJournalDown.visible());

    // A rejection count too large for its column ends the replay there.
    startOver(dispensing("4", "40000", "1") + "\r\n" + dispensing("5", "True", "1") + "\r\n", "");
    EXPECT_FALSE(station->vistrel().Inv_Removed[4]);
}

}  // namespace
}  // namespace vistrel
