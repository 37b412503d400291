// The check reads an inventory the way the station does: over broken and
// random files, the records, bag numbers, count of pairs and listed rows it
// works out are those of a real station started over the same bytes.

#include "FakePlatform.h"
#include "StationNoise.h"

#include "InventoryCheck.h"
#include "InventoryLayout.h"
#include "StationReading.h"
#include "core/FieldReader.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

namespace vistrel::check {
namespace {

using test::FakePlatform;
using test::Noise;
using test::readFile;
using test::TempDir;
using test::wellFormedRecord;
using test::writeFile;

class StationAgreement : public testing::Test {
protected:
    // The demo options, with the highest inventory number as given.
    void startOver(const std::string& bytes, int highest = 32000)
    {
        std::string options = readFile(VISTREL_DEMO_DIR "/Application Data/Vistrel/Vistrel-Options.txt");
        const size_t at = options.rfind("32000");
        ASSERT_NE(at, std::string::npos);
        options.replace(at, 5, std::to_string(highest));
        writeFile(platform.optionsFile(), options);
        writeFile(platform.inventoryFile(), bytes);
        station = std::make_unique<Station>(platform);
        station->start();
        station->vistrel().ListInventory();
    }

    void expectSameReading(const std::string& bytes, int highest = 32000)
    {
        startOver(bytes, highest);
        const Frm_Vistrel& v = station->vistrel();
        const InventoryLayout layout(bytes);
        const StationReading reading = ReadAsStation(layout, highest);
        ASSERT_EQ(v.InventoryCount.number(), reading.pairsCounted);

        std::set<int> listed;
        for (const StationRecord& r : reading.records) {
            if (r.index > TableRows)
                break;
            const bool stopsHere = reading.stop == LoadStop::AboveHighest && &r == &reading.records[reading.stopRecord];
            if (!r.loaded && !stopsHere)
                break;
            const bool pair = r.kind == InventoryRecordKind::Pair;
            const auto row = static_cast<size_t>(r.index - 1);
            ASSERT_EQ(v.Inv_Number[row], pair ? r.bag : 0) << "record " << r.index;
            ASSERT_EQ(v.Inv_FieldsRead[row], pair && r.loaded) << "record " << r.index;
            if (pair && r.loaded && r.index <= reading.pairsCounted && r.bag != 0)
                listed.insert(r.index);
        }
        std::set<int> shown;
        for (int i = 0; i < v.Lst_LeftInventory.listCount(); ++i)
            shown.insert(v.Lst_LeftInventory.row(i).itemData);
        EXPECT_EQ(shown, listed);
    }

    TempDir dir;
    FakePlatform platform {dir.path()};
    std::unique_ptr<Station> station;
};

TEST_F(StationAgreement, BrokenFiles)
{
    const std::string a = wellFormedRecord(1), b = wellFormedRecord(2), c = wellFormedRecord(3);
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"short record", a + "2,-1.00,-0.50,90,0.00,-1.25\r\n" + c + wellFormedRecord(4)},
        {"long record", a + "2,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20\r\n" + c},
        {"comma in comment", "1,-1.25,-0.50,90,0.00,-1.00,-0.25,85,0.00,0,0,0,0,0,M,1,Metal, gold,x,y\r\n" + b + c},
        {"frames of an unknown size", a + "FRAMES,68,4\r\nFRAMESCHILD,57,2\r\n" + b},
        {"byte order mark", "\xEF\xBB\xBFREADING,1.00,4\r\n" + a + b},
        {"stock before pairs", "READING,1.00,4\r\nLENS,-1.00,0.00,2\r\n" + a + "FRAMES,65,1\r\n" + b + c},
        {"blank line at the end", "READING,1.00,4\r\n" + a + b + "\r\n"},
        {"bag numbers", wellFormedRecord(0) + wellFormedRecord(40000) + wellFormedRecord(-3) + "2.5" + b.substr(1)},
        {"quote over line ends", "1,-1.25,-0.50,90,0.00,-1.00,-0.25,85,0.00,0,0,0,0,0,M,1,\"a\r\nb\",x,y\r\n" + b},
        {"bag above the highest", a + wellFormedRecord(32001) + b},
        {"empty", ""},
    };
    for (const auto& [name, bytes] : cases) {
        SCOPED_TRACE(name);
        expectSameReading(bytes);
    }
    SCOPED_TRACE("highest inventory number 2");
    expectSameReading(a + "READING,1.00,4\r\n" + wellFormedRecord(3) + b, 2);
}

TEST_F(StationAgreement, RandomFiles)
{
    Noise noise(1234);
    for (int round = 0; round < 60; ++round) {
        const size_t size = noise.size(40 * 1024);
        const std::string bytes = round % 3 == 0 ? noise.records(size, true)
            : round % 3 == 1                     ? noise.delimiters(size)
                                                 : noise.records(size, false) + noise.bytes(noise.size(2000));
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << bytes.size() << " bytes");
        expectSameReading(bytes, round % 4 == 0 ? 5000 : 32000);
        if (HasFatalFailure())
            return;
        // And the check itself comes through with findings in line order.
        const CheckResult result = CheckInventory(bytes);
        for (size_t i = 1; i < result.findings.size(); ++i)
            ASSERT_LE(result.findings[i - 1].line, result.findings[i].line);
    }
}

TEST(TextReading, SameFieldsAsFromTheFileAndWhereTheyBegin)
{
    // Text in memory splits as a file of the same bytes, across the reader's
    // buffer too, and each field begins where the reader says.
    TempDir dir;
    Noise noise(77);
    for (int round = 0; round < 12; ++round) {
        const std::string bytes = noise.records(round < 6 ? noise.size(8000) : 200 * 1024, round % 2 == 0);
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << bytes.size() << " bytes");
        writeFile(dir.file("inv.txt"), bytes);
        FieldReader fromFile, fromText;
        ASSERT_TRUE(fromFile.open(dir.file("inv.txt")));
        fromText.openText(bytes);
        do {
            const std::string field = fromText.next();
            ASSERT_EQ(field, fromFile.next());
            const size_t at = fromText.fieldStart();
            ASSERT_LE(at, bytes.size());
            if (at < bytes.size() && bytes[at] == '"')
                ASSERT_EQ(bytes.compare(at + 1, field.size(), field), 0);
            else
                ASSERT_EQ(bytes.compare(at, field.size(), field), 0);
            ASSERT_EQ(fromText.atEnd(), fromFile.atEnd());
        } while (!fromText.atEnd());
    }
}

}  // namespace
}  // namespace vistrel::check
