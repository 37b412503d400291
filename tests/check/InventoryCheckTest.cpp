// The inventory check over deliberately broken files: one group per kind of
// finding, clean files that must stay quiet, and hostile bytes.

#include "InventoryCheck.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace vistrel::check {
namespace {

// A pair record as a mission writes it; fields are numbered from 1.
struct Pair {
    std::array<std::string, 19> f {"1", "-1.00", "-0.50", "90", "0.00", "-1.25", "0.00", "0", "0.00", "0", "0", "0",
        "0", "0", "M", "1", "\"Blue\"", "\"\"", "\"\""};
    explicit Pair(int bag) { f[0] = std::to_string(bag); }
    Pair& set(size_t n, std::string text)
    {
        f[n - 1] = std::move(text);
        return *this;
    }
    // The record with only its first count fields.
    std::string line(size_t count = 19) const
    {
        std::string s;
        for (size_t i = 0; i < count && i < f.size(); ++i)
            s += (i ? "," : "") + f[i];
        return s;
    }
    operator std::string() const { return line(); }
};

std::string file(const std::vector<std::string>& lines, const std::string& eol = "\r\n")
{
    std::string s;
    for (const std::string& l : lines)
        s += l + eol;
    return s;
}

std::vector<std::string> on(const CheckResult& result, std::uint32_t line)
{
    std::vector<std::string> messages;
    for (const Finding& f : result.findings)
        if (f.line == line)
            messages.push_back(f.message);
    return messages;
}

std::vector<std::uint32_t> linesOf(const CheckResult& result)
{
    std::vector<std::uint32_t> lines;
    for (const Finding& f : result.findings)
        lines.push_back(f.line);
    return lines;
}

// The one finding on a line, which must hold every part given.
void expectOne(const CheckResult& result, std::uint32_t line, std::initializer_list<const char*> parts)
{
    const std::vector<std::string> messages = on(result, line);
    ASSERT_EQ(messages.size(), 1u) << "line " << line << ": " << testing::PrintToString(messages);
    for (const char* part : parts)
        EXPECT_NE(messages[0].find(part), std::string::npos) << "line " << line << " lacks \"" << part << "\":\n"
                                                             << messages[0];
}

TEST(CleanFiles, StayQuietWithEveryLineEnd)
{
    const std::vector<std::string> lines = {Pair(1), Pair(2).set(17, "\"Metal, gold\"").set(16, "21"),
        Pair(3).set(2, "+2.5").set(5, "2.75").set(9, "2.75").set(3, "-2").set(4, "180").set(16, "3"),
        Pair(4).set(17, "Plain comment").set(18, "").set(19, ""), "reading,1.00,4", "LENS,-6.25,-3.00,2",
        "LensChild,0.00,0.00,1", "FRAMES,70,1", "FRAMESCHILD,61,3"};
    for (const char* eol : {"\r\n", "\n", "\r"}) {
        SCOPED_TRACE(testing::PrintToString(std::string(eol)));
        std::string text = file(lines, eol);
        for (const std::string& t : {text, text.substr(0, text.size() - std::string(eol).size())}) {
            const CheckResult result = CheckInventory(t);
            EXPECT_EQ(result.findings, Findings {});
            EXPECT_EQ(result.records, 9u);
            EXPECT_EQ(result.pairs, 4u);
            EXPECT_EQ(result.pairsLoaded, 4);
        }
    }
    EXPECT_EQ(FormatReport("T.txt", CheckInventory(file(lines))), "T.txt: 9 records (4 pairs), no findings\n");
}

TEST(ShortAndLongRecords, ShortRecordTakesFieldsFromTheNextLine)
{
    const CheckResult r = CheckInventory(file({Pair(1), Pair(2).line(17), Pair(3).set(2, "-3.00"), Pair(4), Pair(5)}));
    expectOne(r, 2,
        {"short pair record: 17 of 19 fields",
            "fills fields 18 to 19 (extra 1, extra 2) with \"3\", \"-3.00\" from line 3",
            "next record starts at field 3 of line 3 (\"-0.50\"), read as a pair with bag number 0",
            "out of step to the end of the file (3 records misread)"});
    // Nothing else: the misread records behind have only chance values.
    EXPECT_EQ(linesOf(r), std::vector<std::uint32_t> {2});
}

TEST(ShortAndLongRecords, RecordOverWholeLinesIsReadWhole)
{
    // A line end stands for a comma: a pair broken after field 10 is read
    // whole, its second line is no record of its own, and nothing moves.
    const CheckResult r
        = CheckInventory(file({Pair(1), Pair(2).line(10), "0,0,0,0,M,F,\"Red\",\"\",\"\"", Pair(3).set(4, "200")}));
    expectOne(r, 2,
        {"pair record runs over lines 2 to 3: the station reads line 3 as its fields 11 to 19 (reading flag to extra "
         "2) "
         "(\"0\", \"0\", \"0\", ...); if line 3 is a record of its own, it is lost"});
    // Its values are checked all the same, on the line where they stand.
    expectOne(r, 3, {"gender and rejections \"F\" is no gender code"});
    expectOne(r, 4, {"left axis \"200\" is outside 0 to 180"});
    EXPECT_EQ(linesOf(r), (std::vector<std::uint32_t> {2, 3, 4}));
}

TEST(ShortAndLongRecords, LongRecordAndTheLineWhereTheReadingComesBack)
{
    // Two fields short, then two too many: the reading is back in step at
    // line 5, where a bad value is checked again.
    const CheckResult r = CheckInventory(file({Pair(1), Pair(2).line(17), Pair(3), Pair(4).line() + ",x,y",
        Pair(5).set(4, "200"), Pair(6).line() + ",z", Pair(7)}));
    expectOne(r, 2, {"short pair record", "out of step up to line 4 (2 records misread)"});
    expectOne(r, 4, {"long pair record: 21 fields, a pair record has 19", "out of step here already, since line 2"});
    expectOne(r, 5, {"left axis \"200\" is outside 0 to 180"});
    expectOne(r, 6,
        {"long pair record: 20 fields", "field 20 (\"z\") starts the next record", "read as a pair with bag number 0",
            "to the end of the file (2 records misread)"});
    EXPECT_EQ(linesOf(r), (std::vector<std::uint32_t> {2, 4, 5, 6}));
}

TEST(ShortAndLongRecords, StockRecordsAndTheEndOfTheFile)
{
    // A READING without quantity takes the next line's keyword as quantity;
    // FRAMES of an unknown size leave their quantity to start a record.
    const CheckResult r
        = CheckInventory(file({Pair(1), "READING,1.00", "READING,1.25,3", "FRAMES,68,4", Pair(9).line(15)}));
    expectOne(r, 2,
        {"short READING record: 2 of 3 fields", "fills field 3 (quantity) with \"READING\" from line 3",
            "starts at field 2 of line 3 (\"1.25\"), read as a pair with bag number 1"});
    expectOne(r, 4, {"FRAMES size \"68\" is none of 65, 67, 70", "out of step here already, since line 2"});
    expectOne(r, 5, {"short pair record: 15 of 19 fields"});

    const CheckResult end = CheckInventory(file({Pair(1), "FRAMES,68,4", Pair(2).line(17)}));
    expectOne(end, 2,
        {"FRAMES size \"68\" is none of 65, 67, 70: the station drops the record",
            "field 3 (\"4\") starts the next record, read as a pair with bag number 4"});
    // At the very end the missing fields are empty and nothing moves.
    const CheckResult last = CheckInventory(file({Pair(1), Pair(2).line(17)}));
    expectOne(
        last, 2, {"short pair record: 17 of 19 fields; the station reads fields 18 to 19 (extra 1, extra 2) as empty"});
}

TEST(ShortAndLongRecords, QuotesThatRunOverLineEnds)
{
    const CheckResult r = CheckInventory(file({Pair(1).line(16) + ",\"Blue", "frame\",\"\",\"\"", Pair(2)}));
    expectOne(r, 1, {"runs over 1 line end to line 2"});
    EXPECT_EQ(linesOf(r), std::vector<std::uint32_t> {1});
    const CheckResult open = CheckInventory(
        file({Pair(1), Pair(2).line(16) + ",\"Blue", Pair(3).line(16) + ",x,,", Pair(4).line(16) + ",y,,"}));
    expectOne(open, 2,
        {"never closed: the station reads the rest of the file (to line 4) as this one field",
            "short pair record: 17 of 19 fields"});
}

TEST(CommaInComment, SplitsTheCommentAndShiftsTheRest)
{
    const CheckResult r = CheckInventory(file({Pair(1).set(17, "Metal,  silver"), Pair(2), Pair(3)}));
    expectOne(r, 1,
        {"comment \"Metal,  silver\" holds a comma but is not in double quotes",
            "the line has 20 fields where a pair has 19", "field 20 (\"\") starts the next record",
            "(3 records misread)"});
    EXPECT_EQ(linesOf(r), std::vector<std::uint32_t> {1});
}

TEST(DuplicateBagNumbers, NameTheFirstLine)
{
    // Bag numbers as the station stores them: "7.0" and " 7" are 7 too.
    const CheckResult r = CheckInventory(file({Pair(7), Pair(8), Pair(7).set(1, "7.0"), Pair(7).set(1, "\" 7\"")}));
    expectOne(r, 3, {"duplicate bag number 7, also on line 1"});
    expectOne(r, 4, {"duplicate bag number 7, also on line 1"});
    EXPECT_EQ(linesOf(r), (std::vector<std::uint32_t> {3, 4}));
}

TEST(StockBeforePairs, PushesTheLastPairsOutOfTheLists)
{
    // Two stock records among the pairs: the station counts 4 pairs and
    // walks rows 1 to 4, so the pairs on rows 5 and 6 are never listed.
    const CheckResult r
        = CheckInventory(file({"READING,1.00,2", Pair(1), "LENS,-1.00,0.00,1", Pair(2), Pair(3), Pair(4)}));
    EXPECT_EQ(r.pairsLoaded, 4);
    expectOne(r, 1,
        {"READING record stands before pair records", "rows 1 to 4",
            "2 pairs from line 5 on are loaded but never listed nor found"});
    expectOne(r, 5, {"pair with bag number 3 is never listed", "takes row 5"});
    expectOne(r, 6, {"pair with bag number 4 is never listed", "takes row 6"});
    EXPECT_EQ(linesOf(r), (std::vector<std::uint32_t> {1, 5, 6}));

    // A blank line at the end counts one more pair and so keeps one of them.
    const CheckResult blank = CheckInventory(file({"READING,1.00,2", Pair(1), Pair(2)}) + "\r\n");
    expectOne(blank, 4, {"blank line at the end of the file", "counts one pair too many"});
    EXPECT_EQ(linesOf(blank), std::vector<std::uint32_t> {4});
}

TEST(BagNumbers, NumbersTheStationCannotUse)
{
    const CheckResult r = CheckInventory(file({Pair(0), Pair(1).set(1, "A12"), Pair(2).set(1, "40000"), Pair(-5),
        Pair(3).set(1, "2.5"), Pair(4), Pair(32001), Pair(5), Pair(32002)}));
    expectOne(r, 1, {"bag number \"0\": the station never lists the pair"});
    expectOne(r, 2, {"\"A12\" is no number: the station reads bag 0 and never lists the pair"});
    expectOne(r, 3, {"\"40000\" is too large for the station: it reads bag 0"});
    expectOne(r, 4, {"bag number -5 is below 1"});
    // 2.5 is stored as 2, half to even.
    expectOne(r, 5, {"\"2.5\" is no whole number: the station reads 2"});
    expectOne(r, 7,
        {"bag number 32001 is above the highest inventory number 32000: the station stops reading here",
            "this pair and the 2 records behind it (to line 9) are not loaded"});
    expectOne(r, 9,
        {"32002 is above the highest inventory number 32000 (the station has stopped reading before it, at line "
         "7)"});
    EXPECT_EQ(r.pairsLoaded, 6);

    CheckOptions options;
    options.highest = 3;
    const CheckResult low = CheckInventory(file({Pair(1), Pair(4), Pair(2)}), options);
    expectOne(low, 2, {"bag number 4 is above the highest inventory number 3: the station stops reading here"});
    EXPECT_EQ(low.pairsLoaded, 1);
    options.highest = 40000;
    expectOne(CheckInventory(file({Pair(32500)}), options), 1, {"above 32000, the most the station keeps track of"});
}

TEST(PrescriptionValues, StepsSignsAndRanges)
{
    const CheckResult r = CheckInventory(file({Pair(1).set(2, "-1.10").set(7, "0.25"),
        Pair(2).set(3, "-0.30").set(6, "25.00").set(7, "-10.50"), Pair(3).set(4, "181").set(8, "-1").set(5, "4.25"),
        Pair(4).set(4, "90.5").set(9, "1.10").set(11, "Y"), Pair(5).set(2, "-1.25D").set(6, "abc"),
        Pair(6).set(4, "0").set(8, "180").set(5, "4.00").set(6, "-20.00")}));
    EXPECT_EQ(on(r, 1),
        (std::vector<std::string> {"left sphere \"-1.10\" is off the 0.25 step",
            "right cylinder \"0.25\" is positive: stock is written in minus cylinder, transpose it"}));
    EXPECT_EQ(on(r, 2),
        (std::vector<std::string> {"left cylinder \"-0.30\" is off the 0.25 step",
            "right sphere \"25.00\" is beyond -20.00 to +20.00", "right cylinder \"-10.50\" is below -10.00"}));
    EXPECT_EQ(on(r, 3),
        (std::vector<std::string> {"left axis \"181\" is outside 0 to 180", "left add \"4.25\" is outside 0.00 to 4.00",
            "right axis \"-1\" is outside 0 to 180"}));
    EXPECT_EQ(on(r, 4),
        (std::vector<std::string> {"left axis \"90.5\" is no whole number: the station reads 90",
            "right add \"1.10\" is off the 0.25 step", "reading flag \"Y\" is no number: the station reads 0"}));
    EXPECT_EQ(on(r, 5),
        (std::vector<std::string> {"left sphere \"-1.25D\" is no number: the station reads -1.25",
            "right sphere \"abc\" is no number: the station reads 0"}));
    EXPECT_TRUE(on(r, 6).empty()) << testing::PrintToString(on(r, 6));
}

TEST(GenderCodes, OnlyZeroToThreePlusTensOfRejections)
{
    std::vector<std::string> lines;
    const std::vector<std::string> good = {"0", "1", "2", "3", "10", "13", "21", "", "\"2\""};
    const std::vector<std::string> bad = {"F", "4", "9", "14", "-1", "12.5", "M2"};
    for (const std::string& g : good)
        lines.push_back(Pair(static_cast<int>(lines.size()) + 1).set(16, g));
    for (const std::string& g : bad)
        lines.push_back(Pair(static_cast<int>(lines.size()) + 1).set(16, g));
    const CheckResult r = CheckInventory(file(lines));
    ASSERT_EQ(r.findings.size(), bad.size()) << FormatReport("T", r);
    for (size_t i = 0; i < bad.size(); ++i) {
        EXPECT_EQ(r.findings[i].line, good.size() + i + 1);
        EXPECT_NE(r.findings[i].message.find("\"" + bad[i] + "\" is no gender code (0 either, 1 F, 2 M, 3 child"),
            std::string::npos)
            << r.findings[i].message;
    }
    EXPECT_NE(r.findings[0].message.find("the station reads 0"), std::string::npos);
    EXPECT_NE(r.findings[1].message.find("the pair shows as E"), std::string::npos);
    // 12.5 is one rejection and 2.5, stored as 2.
    EXPECT_NE(r.findings[5].message.find("the station reads gender 2"), std::string::npos);
}

TEST(StockCells, PowersAndLensesWithoutACell)
{
    // Powers are compared as exact text; an unknown one keeps the cell of
    // the record before.
    const CheckResult r = CheckInventory(file({Pair(1), "READING,1.0,2", "READING,1.50,2", "READING,5.00,1",
        "LENS,7.10,-0.50,3", "LENS,1.0,-0.5,3", "LENS,2.00,0.25,1"}));
    expectOne(r, 2, {"READING power \"1.0\" is none of", "into the cell of power 0.00"});
    expectOne(r, 4, {"READING power \"5.00\"", "into the cell of power 1.50 instead, overwriting that count"});
    expectOne(r, 5, {"LENS sphere \"7.10\" has no row", "the station drops its quantity"});
    expectOne(r, 7, {"LENS cylinder \"0.25\" has no column", "into the cell of another lens count"});
    EXPECT_EQ(linesOf(r), (std::vector<std::uint32_t> {2, 4, 5, 7}));
}

TEST(HostileInput, EmptyBlankAndByteOrderMark)
{
    for (const std::string& text : {std::string(), std::string("\r\n\n\r   \t\r\n")}) {
        const CheckResult r = CheckInventory(text);
        expectOne(r, 1, {"the file holds no records"});
        EXPECT_EQ(r.records, 0u);
    }
    const CheckResult pair = CheckInventory("\xEF\xBB\xBF" + file({Pair(1), Pair(2)}));
    expectOne(pair, 1, {"UTF-8 byte order mark", "the bag number reads as 0"});
    EXPECT_EQ(linesOf(pair), std::vector<std::uint32_t> {1});
    const CheckResult stock = CheckInventory("\xEF\xBB\xBF" + file({"READING,1.00,2", "READING,1.25,3"}));
    expectOne(stock, 1,
        {"READING is no keyword to it and the line is read as a pair",
            "fills fields 4 to 19 (left axis to extra 2) with \"READING\", \"1.25\", \"3\""});
}

TEST(HostileInput, BinaryBytesLongLinesAndManyRecords)
{
    // Every byte value, NULs among them, inside and between records.
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>((i * 7919) % 256);
    const CheckResult noise = CheckInventory(file({Pair(1)}) + bytes + "\r\n" + file({Pair(2)}));
    EXPECT_FALSE(noise.findings.empty());
    for (const Finding& f : noise.findings) {
        EXPECT_LE(f.line, 60u);
        for (char c : f.message)
            ASSERT_TRUE(c >= 0x20 && c < 0x7f) << "unprintable byte in: " << f.message;
    }

    // A megabyte line: one field, quoted as far as messages go.
    const CheckResult wide = CheckInventory(file({Pair(1), std::string(1 << 20, '7'), Pair(2)}));
    ASSERT_FALSE(on(wide, 2).empty());
    for (const std::string& message : on(wide, 2))
        EXPECT_LT(message.size(), 400u) << message.substr(0, 400);

    // 100,000 records in linear time: the station reads 32000 of them.
    std::string many;
    for (int i = 1; i <= 100000; ++i)
        many += Pair(1 + (i - 1) % 32000).line() + "\n";
    const auto started = std::chrono::steady_clock::now();
    const CheckResult big = CheckInventory(many);
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(5));
    EXPECT_EQ(big.records, 100000u);
    EXPECT_EQ(big.pairsLoaded, 32000);
    EXPECT_EQ(on(big, 32001),
        (std::vector<std::string> {"the station reads at most 32000 records: this record and the 67999 records behind "
                                   "it (to line 100000) are not loaded",
            "duplicate bag number 1, also on line 1"}));
}

}  // namespace
}  // namespace vistrel::check
