// Start-up of a whole station against damaged and random files: an
// inventory file and an options file can hold anything, and the station
// must come up (or end with its options box), keep within its tables and
// never write the inventory file.

#include "FakePlatform.h"

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
using test::ProcessEnded;
using test::TempDir;
using test::readFile;
using test::writeFile;

const char* const DemoOptions = VISTREL_DEMO_DIR "/Application Data/Vistrel/Vistrel-Options.txt";

// ---- Random files ----

class Noise {
public:
    explicit Noise(unsigned seed) : rng_(seed) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename T>
    const T& pick(const std::vector<T>& items) { return items[static_cast<size_t>(below(static_cast<int>(items.size())))]; }

    // A size from 0 to about max, small sizes as likely as large ones.
    size_t size(size_t max)
    {
        const int bucket = below(20);
        const size_t top = std::max<size_t>(1, max >> (19 - bucket));
        return static_cast<size_t>(std::uniform_int_distribution<size_t>(0, top)(rng_));
    }

    std::string bytes(size_t n)
    {
        std::string s(n, '\0');
        for (char& c : s)
            c = static_cast<char>(below(256));
        return s;
    }

    // Mostly delimiters, quotes, blanks and NULs, with bits of numbers.
    std::string delimiters(size_t n)
    {
        using namespace std::string_literals;
        static const std::string alphabet = ",,,,\"\"\r\r\n\n  \0\0\t-.eE+019RLFx"s;
        std::string s(n, ' ');
        for (char& c : s)
            c = alphabet[static_cast<size_t>(below(static_cast<int>(alphabet.size())))];
        return s;
    }

    std::string number()
    {
        static const std::vector<std::string> odd = {"0", "-0", "1e308", "-1e308", "1e999", "99999999999999999999",
            "32000", "32001", "32767", "32768", "40000", "-1", "-32768", "-32769", "65535", ".5", "-.25", "1e",
            "NaN", "inf", "0x10", "1,5", "  7  ", "3.5", "2.5", "", "  "};
        if (chance(30))
            return pick(odd);
        const int kind = below(3);
        if (kind == 0)
            return std::to_string(below(32500) - 500);
        if (kind == 1)
            return std::to_string((below(161) - 80) * 0.25).substr(0, 5);
        return std::to_string(below(181));
    }

    std::string field()
    {
        switch (below(8)) {
        case 0:
            return "\"" + delimiters(size(200)) + (chance(99) ? "\"" : "");
        case 1:
            return pick(std::vector<std::string>{"READING", "LENS", "LENSCHILD", "FRAMES", "FRAMESCHILD",
                "reading", "Lens", "S=57", "M", "comment, with comma", "\"quoted, comment\""});
        case 2:
            return std::string(static_cast<size_t>(below(3)), ' ') + number() + std::string(static_cast<size_t>(below(3)), ' ');
        case 3:
            return bytes(size(40));
        default:
            return number();
        }
    }

    std::string cleanField()
    {
        if (chance(5)) {
            std::string inside = delimiters(size(100));
            std::replace(inside.begin(), inside.end(), '"', ' ');
            return "\"" + inside + "\"";
        }
        if (chance(10))
            return pick(std::vector<std::string>{"READING", "LENS", "S=57", "x"});
        std::string n = number();
        std::replace(n.begin(), n.end(), ',', '.');
        return n;
    }

    std::string lineEnd() { return pick(std::vector<std::string>{"\r\n", "\r\n", "\n", "\r", "\r\n\r\n", ",\r\n"}); }

    // Records of the inventory's shape; messy ones with fields missing or
    // too many and delimiters inside unquoted fields.
    std::string records(size_t n, bool messy)
    {
        std::string s;
        while (s.size() < n) {
            const int fields = !messy || chance(90) ? 19 : below(26);
            for (int f = 0; f < fields; ++f) {
                if (f > 0)
                    s += !messy || chance(95) ? "," : lineEnd();
                if (f > 0)
                    s += messy ? field() : cleanField();
                else if (messy ? chance(90) : below(1000) > 0)  // mostly bags the load takes
                    s += std::to_string(1 + below(32000));
                else
                    s += chance(50) ? number() : field();
            }
            s += messy ? lineEnd() : pick(std::vector<std::string>{"\r\n", "\n", "\r", "\r\n  \r\n"});
        }
        return s;
    }

    // One line of a single field, of commas only, or a long quoted comment.
    std::string longLine(size_t n)
    {
        const int kind = below(3);
        return kind == 0 ? std::string(n, '7') : kind == 1 ? std::string(n, ',') : "1,\"" + std::string(n, 'x') + "\",2\r\n";
    }

private:
    std::mt19937 rng_;
};

std::string wellFormedRecord(int bag)
{
    return std::to_string(bag) + ",-1.25,-0.50,90,0.00,-1.00,-0.25,85,0.00,0,0,0,0,0,M,1,comment " + std::to_string(bag)
        + ",x,y\r\n";
}

// ---- Checks ----

// What holds after any start that came through: counts within the tables,
// one row per counted record, no row written beyond the tables.
void expectWithinTables(const Frm_Vistrel& v)
{
    const double count = v.InventoryCount.number();
    ASSERT_GE(count, 0);
    ASSERT_LE(count, 32000);
    EXPECT_LE(v.HighestInventoryNr, 32000);

    // No table grew or shrank.
    const size_t rows = Frm_Vistrel::InventoryRows;
    for (size_t size : {v.Inv_Number.size(), v.Inv_FieldsRead.size(), v.Inv_Comment.size(), v.Inv_Removed.size(),
             v.Inv_LocationUsed.size()})
        ASSERT_EQ(size, rows);
    ASSERT_EQ(v.Found_Number.size(), static_cast<size_t>(Frm_Vistrel::SearchRows));

    // Each counted record has a row of its own.
    std::set<int> bags;
    size_t read = 0;
    for (size_t r = 0; r < rows; ++r) {
        if (!v.Inv_FieldsRead[r])
            continue;
        ++read;
        bags.insert(v.Inv_Number[r]);
    }
    EXPECT_EQ(read, static_cast<size_t>(count));
    // A place is used only by a bag number read into a row.
    for (size_t p = 0; p < rows; ++p) {
        if (v.Inv_LocationUsed[p]) {
            ASSERT_TRUE(bags.count(static_cast<int>(p) + 1)) << "place of bag " << p + 1;
        }
    }

    // The stock lists name rows that were loaded.
    EXPECT_EQ(v.Lst_LeftInventory.listCount(), v.Lst_RightInventory.listCount());
    EXPECT_LE(v.Lst_LeftInventory.listCount(), count);
    for (int i = 0; i < v.Lst_LeftInventory.listCount(); ++i) {
        const ListBox::Row& row = v.Lst_LeftInventory.row(i);
        ASSERT_GE(row.itemData, 1);
        ASSERT_LE(row.itemData, count);
        ASSERT_TRUE(v.Inv_FieldsRead[static_cast<size_t>(row.itemData - 1)]);
    }
}

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
