// The examples as the simulator reads them: escaped replies, expected
// files, the order of a dialogue's transmissions, the line settings.

#include "ByteText.h"
#include "CaseLibrary.h"
#include "DeviceModel.h"
#include "DevsimKit.h"

#include <gtest/gtest.h>

using namespace vistrel::devsim;
using namespace devsim_test;

namespace {

const DeviceCase* byName(const std::vector<DeviceCase>& cases, const std::string& name)
{
    for (const DeviceCase& c : cases)
        if (c.name == name)
            return &c;
    return nullptr;
}

}  // namespace

TEST(Examples, EveryByteSurvivesTheLogsEscapesAndTheLogLineStaysPrintable)
{
    std::string all;
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    const std::string text = escapeBytes(all);
    for (const char c : text)
        EXPECT_TRUE(c >= 0x20 && c < 0x7F) << static_cast<int>(static_cast<unsigned char>(c));
    EXPECT_EQ(unescapeBytes(text), all);
    EXPECT_EQ(escapeBytes("\x01" "CRM" "\x02" "SD" "\x17\x04\r"), "\\x01CRM\\x02SD\\x17\\x04\\r");
}

TEST(Examples, BadEscapesInRepliesAreRefused)
{
    EXPECT_EQ(unescapeBytes("\\x06\\x1b\\\\"), std::string("\x06\x1b\\"));
    for (const char* bad : {"\\", "\\x6", "\\xG1", "\\q", "ab\\x"})
        EXPECT_THROW(unescapeBytes(bad), std::invalid_argument) << bad;
}

TEST(Examples, ExpectedFileWithWindowsLineEndsAndReplies)
{
    const ExpectedReading e = parseExpected(
        "# a Canon reading\r\nleft=-2.00|-0.75|180\r\nright=+0.25|-0.50|90\r\nreplies=\\x06\\x06\\x06\r\n"
        "check=OK \r\n");
    EXPECT_TRUE(e.found);
    EXPECT_EQ(e.left, "-2.00|-0.75|180");
    EXPECT_EQ(e.right, "+0.25|-0.50|90");
    EXPECT_EQ(e.check, "OK");
    ASSERT_TRUE(e.replies.has_value());
    EXPECT_EQ(*e.replies, "\x06\x06\x06");

    // No replies line is not the same as replies that are empty.
    EXPECT_FALSE(parseExpected("check=OK\n").replies.has_value());
    EXPECT_EQ(parseExpected("check=OK\nreplies=\n").replies, std::optional<std::string>(""));
}

TEST(Examples, DialogueTransmissionsComeInNumberOrderAndGapsAreReported)
{
    ExampleFolder data;
    for (int i = 1; i <= 11; ++i)
        data.add("canon-rk2", "long." + std::to_string(i) + ".msg", "line " + std::to_string(i) + "\r");
    data.add("canon-rk2", "long.expected", "check=OK\n");
    data.add("canon-rk2", "gap.1.msg", "one\r");
    data.add("canon-rk2", "gap.3.msg", "three\r");
    data.add("canon-rk2", "mixed.msg", "alone\r");
    data.add("canon-rk2", "mixed.1.msg", "first\r");
    data.add("canon-rk2", "zero.0.msg", "nought\r");
    data.add("canon-rk2", "single.msg", "all at once\r");
    data.add("canon-rk2", "single.expected", "check=ENTRY ERROR\nreplies=\\x0\n");

    const std::vector<DeviceCase> cases = loadCases(data.root() / "canon-rk2", true);
    ASSERT_EQ(cases.size(), 5u);

    const DeviceCase* lines = byName(cases, "long");
    ASSERT_TRUE(lines);
    EXPECT_TRUE(lines->problem.empty()) << lines->problem;
    ASSERT_EQ(lines->transmissions.size(), 11u);
    for (int i = 1; i <= 11; ++i)
        EXPECT_EQ(lines->transmissions[static_cast<size_t>(i - 1)], "line " + std::to_string(i) + "\r");
    EXPECT_TRUE(lines->meantToPass());

    ASSERT_TRUE(byName(cases, "gap"));
    EXPECT_NE(byName(cases, "gap")->problem.find("transmission 2"), std::string::npos);
    ASSERT_TRUE(byName(cases, "mixed"));
    EXPECT_FALSE(byName(cases, "mixed")->problem.empty());
    ASSERT_TRUE(byName(cases, "zero"));
    EXPECT_FALSE(byName(cases, "zero")->problem.empty());
    // A bad expected file makes the example unplayable, not the folder.
    ASSERT_TRUE(byName(cases, "single"));
    EXPECT_NE(byName(cases, "single")->problem.find("replies"), std::string::npos);
}

TEST(Examples, OneShotNamesKeepTheirDotsAndMissingExpectedMeansNotMeantToPass)
{
    ExampleFolder data;
    data.add("topcon", "v1.2.msg", "R -1.25\r");
    data.add("topcon", "plain.msg", "L +0.50\r");
    data.add("topcon", "plain.expected", "check=OK\n");
    data.add("topcon", "notes.txt", "not an example");

    const std::vector<DeviceCase> cases = loadCases(data.root() / "topcon", false);
    ASSERT_EQ(cases.size(), 2u);
    const DeviceCase* dotted = byName(cases, "v1.2");
    ASSERT_TRUE(dotted);
    EXPECT_EQ(dotted->transmissions, std::vector<std::string>{"R -1.25\r"});
    EXPECT_FALSE(dotted->expected.found);
    EXPECT_FALSE(dotted->meantToPass());
    ASSERT_TRUE(byName(cases, "plain"));
    EXPECT_TRUE(byName(cases, "plain")->meantToPass());
}

TEST(Examples, DataFolderGivenOrBesideTheProgramOrInTheSources)
{
    ExampleFolder prefix, sources;
    const std::filesystem::path program = prefix.root() / "bin";
    const std::filesystem::path installed = prefix.root() / "share" / "vistrel" / "devices";
    std::filesystem::create_directories(installed / "topcon");
    std::filesystem::create_directories(program / "devices" / "canon-rk2");
    std::filesystem::create_directories(installed / "canon-rk2");
    sources.add("topcon", "a.msg", "x");
    sources.add("retinomax2", "b.msg", "y");

    const auto candidates = dataFolderCandidates(std::nullopt, program, sources.root());
    EXPECT_EQ(findModelFolder(candidates, "topcon"), (installed / "topcon").lexically_normal());
    EXPECT_EQ(findModelFolder(candidates, "canon-rk2"), (program / "devices" / "canon-rk2").lexically_normal());
    EXPECT_EQ(findModelFolder(candidates, "retinomax2"), (sources.root() / "retinomax2").lexically_normal());
    EXPECT_EQ(findModelFolder(candidates, "marco-nidek"), std::nullopt);

    // A folder given is the only place looked at.
    const auto given = dataFolderCandidates(sources.root(), program, prefix.root());
    EXPECT_EQ(findModelFolder(given, "topcon"), (sources.root() / "topcon").lexically_normal());
    EXPECT_EQ(findModelFolder(given, "canon-rk2"), std::nullopt);
}

TEST(Examples, LineSettingsAreReadStrictly)
{
    const std::optional<LineSettings> nidek = parseLineSettings("9600,o,8,1");
    ASSERT_TRUE(nidek);
    EXPECT_EQ(nidek->parity, 'o');
    EXPECT_EQ(formatLineSettings(*nidek), "9600,o,8,1");
    EXPECT_EQ(formatLineSettings(*parseLineSettings(" 1200 , N , 8 , 2 ")), "1200,n,8,2");
    EXPECT_EQ(formatLineSettings(*parseLineSettings("9600,e,7,1.5")), "9600,e,7,1.5");
    for (const char* bad : {"", "9600", "9600,n,8", "9600,n,8,1,1", "9600,x,8,1", "9600,n,9,1", "9600,n,8,3",
             "fast,n,8,1", "9600,no,8,1", "0,n,8,1"})
        EXPECT_FALSE(parseLineSettings(bad)) << bad;

    // Every model's own settings are readable, and its pause lets the
    // station look twice at a quiet line.
    for (const DeviceModel& m : deviceModels()) {
        EXPECT_TRUE(parseLineSettings(m.settings)) << m.folder;
        EXPECT_GT(defaultInterval(m), std::chrono::milliseconds(2 * 200 * std::max(m.quietTicks, 1)));
    }
}
