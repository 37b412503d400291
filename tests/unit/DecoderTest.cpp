// The autorefractor decoders: every recorded message of
// tests/data/autorefractor against its expectation, the text helpers the
// column layouts rest on, the device table, and random and damaged
// messages for every device type.

#include "autorefractor/Decoders.h"
#include "autorefractor/MessageText.h"
#include "core/Numbers.h"
#include "DecoderInvariants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using namespace autoref;
using Next = DecodeOutcome::Next;

const fs::path DataFolder = fs::path(VISTREL_TEST_DATA) / "autorefractor";

const std::map<std::string, std::string> ModelFolders = {
    {"retinomax", "NIKON RETINOMAX"},    {"retinomax2", "NIKON RETINOMAX2"},
    {"retinomax3", "NIKON RETINOMAX3"},  {"topcon", "TOPCON KR-3000-7000"},
    {"burton-velo", "BURTON VELO 20-10"}, {"shin-nippon", "SHIN NIPPON 8001"},
    {"reichert-rk600", "REICHERT RK600"}, {"humphrey-597", "HUMPHREY 597"},
    {"suresight", "WELCHALLYN SURESIGHT"}, {"marco-nidek", "MARCONIDEK ARK-20/30"},
    {"canon-rk2", "CANON RK-2"},
};

const std::vector<std::string> AllTypes = {
    "NIKON RETINOMAX3", "NIKON RETINOMAX2", "NIKON RETINOMAX", "BURTON VELO 20-10", "SHIN NIPPON 8001",
    "REICHERT RK600", "HUMPHREY 597", "WELCHALLYN SURESIGHT", "MARCONIDEK ARK-20/30", "TOPCON KR-3000-7000",
    "CANON RK-2", "NONE",
};

bool isDialogue(const std::string& type)
{
    return type == "MARCONIDEK ARK-20/30" || type == "CANON RK-2";
}

std::string readBytes(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The capture screen's verdict on the boxes.
std::string checkVerdict(const std::string& type, const CaptureBoxes& b)
{
    for (int eye : {0, 1})
        if (!IsNumeric(b.sphere[eye]) || !IsNumeric(b.cylinder[eye]) || !IsNumeric(b.axis[eye]))
            return type == "REICHERT RK600" ? "RK600 PARTIAL" : "ENTRY ERROR";
    return "OK";
}

// The replies of an expectation: \xHH, \r, \n and \\.
std::string unescape(std::string_view text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            out.push_back(text[i]);
            continue;
        }
        const char c = text[++i];
        if (c == 'x' && i + 2 < text.size()) {
            out.push_back(static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16)));
            i += 2;
        } else {
            out.push_back(c == 'r' ? '\r' : c == 'n' ? '\n' : c);
        }
    }
    return out;
}

// ---- Recorded messages ----

struct GoldenCase {
    std::string model, type, name;
    std::vector<fs::path> transmissions;
    fs::path expected;
};

void PrintTo(const GoldenCase& c, std::ostream* os)
{
    *os << c.model << "/" << c.name;
}

std::vector<GoldenCase> goldenCases()
{
    std::vector<GoldenCase> cases;
    std::error_code ec;
    for (const auto& [model, type] : ModelFolders) {
        std::vector<fs::path> expectations;
        for (const auto& entry : fs::directory_iterator(DataFolder / model, ec))
            if (entry.path().extension() == ".expected")
                expectations.push_back(entry.path());
        std::sort(expectations.begin(), expectations.end());
        for (const fs::path& expected : expectations) {
            GoldenCase c{model, type, expected.stem().string(), {}, expected};
            const fs::path folder = expected.parent_path();
            if (!isDialogue(type))
                c.transmissions.push_back(folder / (c.name + ".msg"));
            for (int n = 1; isDialogue(type) && fs::exists(folder / (c.name + "." + std::to_string(n) + ".msg")); ++n)
                c.transmissions.push_back(folder / (c.name + "." + std::to_string(n) + ".msg"));
            cases.push_back(std::move(c));
        }
    }
    return cases;
}

class RecordedMessage : public testing::TestWithParam<GoldenCase> {};

TEST_P(RecordedMessage, LeavesTheExpectedBoxes)
{
    const GoldenCase& c = GetParam();
    std::map<std::string, std::string> want;
    std::string text = readBytes(c.expected);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, end - at);
        at = end + 1;
        if (const size_t eq = line.find('='); eq != std::string::npos)
            want[line.substr(0, eq)] = line.substr(eq + 1);
    }
    ASSERT_FALSE(c.transmissions.empty()) << "no message for " << c.expected;

    CaptureBoxes boxes;
    std::string replies;
    bool readingWritten = false;
    for (size_t i = 0; i < c.transmissions.size(); ++i) {
        const std::string message = readBytes(c.transmissions[i]);
        ASSERT_FALSE(message.empty()) << c.transmissions[i];
        const DecodeOutcome outcome = DecodeMessage(c.type, message, boxes);
        readingWritten |= outcome.readingWritten;
        replies += outcome.reply;
        // The device goes on only when answered; the last transmission goes to the check.
        const bool last = i + 1 == c.transmissions.size();
        EXPECT_EQ(outcome.next, last ? Next::Check : Next::ReplyAndClear) << c.transmissions[i];
    }
    auto eye = [&](int i) { return boxes.sphere[i] + "|" + boxes.cylinder[i] + "|" + boxes.axis[i]; };
    EXPECT_EQ(eye(0), want["left"]);
    EXPECT_EQ(eye(1), want["right"]);
    EXPECT_EQ(readingWritten, want.count("reading") == 1);
    if (readingWritten) {
        EXPECT_EQ(boxes.reading, want["reading"]);
    }
    if (isDialogue(c.type)) {
        EXPECT_EQ(replies, unescape(want["replies"]));
    }
    EXPECT_EQ(checkVerdict(c.type, boxes), want["check"]);
}

INSTANTIATE_TEST_SUITE_P(Golden, RecordedMessage, testing::ValuesIn(goldenCases()),
    [](const testing::TestParamInfo<GoldenCase>& info) {
        std::string name = info.param.model + "_" + info.param.name;
        std::replace_if(name.begin(), name.end(), [](char ch) { return !std::isalnum(static_cast<unsigned char>(ch)); }, '_');
        return name;
    });

TEST(RecordedMessages, EveryFolderAndMessageBelongsToACase)
{
    for (const auto& folder : fs::directory_iterator(DataFolder)) {
        if (!folder.is_directory())
            continue;
        const std::string model = folder.path().filename().string();
        ASSERT_TRUE(ModelFolders.count(model)) << "no device type for " << model;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            if (entry.path().extension() != ".msg")
                continue;
            std::string stem = entry.path().stem().string();  // "<case>" or "<case>.<n>"
            if (isDialogue(ModelFolders.at(model)))
                stem = fs::path(stem).stem().string();
            EXPECT_TRUE(fs::exists(folder.path() / (stem + ".expected"))) << entry.path();
        }
    }
}

TEST(RecordedMessages, EveryModelHasGoodAndRefusedCases)
{
    std::map<std::string, std::pair<int, int>> counts;  // passed, refused
    for (const GoldenCase& c : goldenCases()) {
        const bool ok = readBytes(c.expected).find("check=OK\n") != std::string::npos;
        (ok ? counts[c.model].first : counts[c.model].second)++;
    }
    for (const auto& [model, type] : ModelFolders) {
        EXPECT_GE(counts[model].first, 3) << model;
        // Every Topcon box is a formatted number, so no Topcon reading is
        // ever refused; its damaged cases all pass with odd values.
        if (model != "topcon") {
            EXPECT_GE(counts[model].second, 2) << model;
        }
    }
}

// ---- Places, markers and conversions ----

TEST(MessageText, PlacesCountFromOneAndStopAtTheEnd)
{
    EXPECT_EQ(Mid("ABCDEF", 2, 3), "BCD");
    EXPECT_EQ(Mid("ABCDEF", 5, 6), "EF");  // cut at the end
    EXPECT_EQ(Mid("ABCDEF", 6, 1), "F");
    EXPECT_EQ(Mid("ABCDEF", 7, 3), "");    // begins past the end
    EXPECT_EQ(Mid("ABCDEF", 1LL << 40, 6), "");
    EXPECT_EQ(Mid("ABCDEF", 0, 3), "");    // before the first character
    EXPECT_EQ(Mid("", 1, 3), "");

    EXPECT_EQ(Find("xRR RR ", "RR "), 2);
    EXPECT_EQ(Find("xRR RR ", "RR ", 3), 5);
    EXPECT_EQ(Find("xRR RR ", "LR "), 0);
    EXPECT_EQ(Find("LEFT", "LEFT", 5), 0);  // a start past the end finds nothing
    EXPECT_EQ(Find("LEFT", "LEFT", 0), 0);  // and so does a start of 0
}

TEST(MessageText, AnAbsentMarkerReadsFromTheAbsolutePlace)
{
    // No label at all: each value comes from place 0 + 6.
    CaptureBoxes boxes;
    DecodeMessage("WELCHALLYN SURESIGHT", "01234-1.25\r\n", boxes);
    EXPECT_EQ(boxes.sphere[1], "-1.25");
    EXPECT_EQ(boxes.cylinder[0], "-1.25");
    EXPECT_EQ(boxes.axis[1], "-1.");
}

TEST(MessageText, ConversionsOfAColumn)
{
    EXPECT_EQ(F2OfNumber(" -0.5"), "-.50");
    EXPECT_EQ(F2OfNumber("0"), ".00");
    EXPECT_EQ(F2OfNumber("-0.001"), ".00");  // a zero has no sign
    EXPECT_EQ(F2OfNumber("1.25D"), "1.25");  // the numeric prefix
    EXPECT_EQ(F2OfNumber(""), ".00");
    EXPECT_EQ(F2OfText("-0.5"), "-.50");
    EXPECT_EQ(F2OfText(" +1.255"), "1.26");
    EXPECT_EQ(F2OfText("- 0.5"), "- 0.5");   // not a number as a whole: stays
    EXPECT_EQ(F2OfText(""), "");
    EXPECT_EQ(A0OfNumber("  0"), "0");
    EXPECT_EQ(A0OfNumber("12.5x"), "13");
    EXPECT_EQ(A3OfText("000"), "");          // "###" of 0 is empty
    EXPECT_EQ(A3OfText("045"), "45");
    EXPECT_EQ(A3OfText("4 5"), "4 5");
    EXPECT_EQ(A3OfNumber("0"), "");
    EXPECT_EQ(A3OfNumber(" 90\r"), "90");
    EXPECT_EQ(CutAtCr("90\r\n"), "90");
    EXPECT_EQ(CutAtCr("\r90"), "");
    EXPECT_EQ(AxisZeroRule("000"), "0");
    EXPECT_EQ(AxisZeroRule(""), "0");
    EXPECT_EQ(AxisZeroRule("x12"), "0");
    EXPECT_EQ(AxisZeroRule(" 15"), " 15");
}

// ---- The device table ----

TEST(DeviceTable, QuietLimits)
{
    const std::map<std::string, int> limits = {
        {"NIKON RETINOMAX3", 10}, {"NIKON RETINOMAX2", 10}, {"NIKON RETINOMAX", 10}, {"BURTON VELO 20-10", 10},
        {"SHIN NIPPON 8001", 10}, {"HUMPHREY 597", 2}, {"WELCHALLYN SURESIGHT", 10},
        {"MARCONIDEK ARK-20/30", 2}, {"TOPCON KR-3000-7000", 2}, {"CANON RK-2", 2}, {"NONE", 10},
        {"REICHERT RK600", 0},   // its row is written in mixed case and never matches
        {"Reichert RK600", 50}, {"nikon retinomax", 0}, {"", 0},
    };
    for (const auto& [type, ticks] : limits)
        EXPECT_EQ(QuietLimitTicks(type), ticks) << type;
}

TEST(DeviceTable, UnknownTypesAndNoneLeaveTheBoxes)
{
    CaptureBoxes filled{{"1", "2"}, {"3", "4"}, {"5", "6"}, "7"};
    for (const char* type : {"nikon retinomax", "Reichert RK600", "CANON RK2", ""}) {
        CaptureBoxes boxes = filled;
        EXPECT_EQ(DecodeMessage(type, "R S  -1.00  C  -0.50  A  090", boxes).next, Next::UnknownDevice) << type;
        EXPECT_EQ(boxes.sphere, filled.sphere);
    }
    CaptureBoxes boxes = filled;
    const DecodeOutcome none = DecodeMessage("NONE", "RR S:-02.25", boxes);
    EXPECT_EQ(none.next, Next::Check);
    EXPECT_FALSE(none.readingWritten);
    EXPECT_EQ(boxes.sphere, filled.sphere);
    EXPECT_EQ(boxes.reading, "7");
}

TEST(DeviceTable, BoxesADecoderDoesNotWriteStand)
{
    const CaptureBoxes filled{{"-1.00", "-2.00"}, {"-.25", "-.50"}, {"10", "20"}, "5"};

    CaptureBoxes rk600 = filled;  // partial: right emptied, left untouched
    DecodeMessage("REICHERT RK600", "L S   +1.50  C  -0.50  A  090\r\nM VD\r\n", rk600);
    EXPECT_EQ(rk600.sphere[1] + rk600.cylinder[1] + rk600.axis[1], "");
    EXPECT_EQ(rk600.sphere[0], "-1.00");

    CaptureBoxes marco = filled;  // no "DRM": to the check as they stand
    EXPECT_EQ(DecodeMessage("MARCONIDEK ARK-20/30", "\x01" "CRS\x17", marco).next, Next::Check);
    EXPECT_EQ(marco.axis, filled.axis);

    CaptureBoxes canon = filled;  // a right-eye line leaves the left eye
    EXPECT_EQ(DecodeMessage("CANON RK-2", "R   -3.00 -1.00   45\r\n", canon).reply, "\x06");
    EXPECT_EQ(canon.sphere[1], "-3.00");
    EXPECT_EQ(canon.sphere[0], "-1.00");

    // A Humphrey report without "LEFT" can't give a left eye: its boxes are
    // emptied whatever they held, so the check refuses the reading.
    CaptureBoxes humphrey = filled;
    DecodeMessage("HUMPHREY 597", "RIGHT\r\nSPH: -2.25  CYL: -0.75  AX* 180\r\n", humphrey);
    EXPECT_EQ(humphrey.sphere[0] + humphrey.cylinder[0] + humphrey.axis[0], "");
    EXPECT_EQ(humphrey.sphere[1], "-2.25");
}

// ---- Random and damaged messages ----

void decodeAndCheck(const std::string& type, std::string_view message, CaptureBoxes& boxes)
{
    ASSERT_TRUE(invariants::decodesWithinLimits(type, message, boxes))
        << type << " over \"" << std::string(message) << "\"";
}

// Seeded noise and damage: bytes of any value, the markers of every model
// and the largest numbers a column can hold, put in, taken out or changed.
class Mutator {
public:
    explicit Mutator(unsigned seed) : rng_(seed) {}
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }

    std::string noise(size_t n)
    {
        std::string s;
        while (s.size() < n)
            s += below(2) ? std::string(1, static_cast<char>(below(256))) : piece();
        return s;
    }

    std::string mutate(std::string s)
    {
        for (int edits = 1 + below(4); edits > 0; --edits) {
            const auto at = static_cast<size_t>(below(static_cast<int>(s.size()) + 1));
            if (below(2))
                s.insert(at, noise(static_cast<size_t>(below(8))));
            else
                s.erase(at, static_cast<size_t>(below(8)));
        }
        return s;
    }

private:
    std::string piece()
    {
        static const char* const pieces[] = {"RR ", "LR ", "ES-R-R", "ES-R-L", "R S ", "L S ", "M VD", "LEFT",
            "SPH: 0.0", "SPH:", "CYL:", "*", "SPHr", "AXl", "C**", "DRM", "OR", "OL", "NO", "No", "CANON RK-2",
            "VD:", "R ", "L ", "\r", " ", "1E+308", "-9e307", "999999", "0"};
        return pieces[below(static_cast<int>(std::size(pieces)))];
    }

    std::mt19937 rng_;
};

TEST(DamagedMessages, NoDecoderReadsOutsideTheMessage)
{
    std::vector<std::vector<std::string>> dialogues;  // every golden case's transmissions
    for (const GoldenCase& c : goldenCases()) {
        dialogues.emplace_back();
        for (const fs::path& p : c.transmissions)
            dialogues.back().push_back(readBytes(p));
    }
    ASSERT_FALSE(dialogues.empty());
    const char* seedsText = std::getenv("VISTREL_DECODER_SEEDS");
    const int seeds = seedsText ? std::max(1, std::atoi(seedsText)) : 8;

    for (int seed = 1; seed <= seeds; ++seed) {
        Mutator m(static_cast<unsigned>(seed));
        for (const std::string& type : AllTypes) {
            SCOPED_TRACE(type + ", seed " + std::to_string(seed));
            for (const auto& transmissions : dialogues) {
                for (const std::string& message : transmissions) {
                    // Cut short, at lengths one to three apart.
                    for (size_t n = 0; n <= message.size(); n += 1 + static_cast<size_t>(m.below(3))) {
                        CaptureBoxes boxes;
                        decodeAndCheck(type, std::string_view(message).substr(0, n), boxes);
                    }
                }
                // A mutated dialogue, boxes kept from one transmission to the next.
                CaptureBoxes boxes;
                for (const std::string& message : transmissions)
                    decodeAndCheck(type, m.mutate(message), boxes);
            }
            for (int i = 0; i < 200; ++i) {
                CaptureBoxes boxes;
                decodeAndCheck(type, m.noise(static_cast<size_t>(m.below(400))), boxes);
            }
            if (HasFatalFailure())
                return;
        }
    }
}

}  // namespace
}  // namespace vistrel
