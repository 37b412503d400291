// The quick ways through the helpers that a start runs millions of times
// (field reading, number reading, whole-number texts, the 16-bit stores)
// must give exactly what the careful ways give. Each is held here against
// an independent reference over many generated inputs.

#include "FakePlatform.h"

#include "core/FieldReader.h"
#include "core/FileHandles.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::TempDir;
using test::writeFile;

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// ---- Field reading ----

// The field grammar read off a string one character at a time.
class ReferenceReader {
public:
    explicit ReferenceReader(std::string bytes) : s_(std::move(bytes)) {}

    bool atEnd() const { return i_ >= s_.size(); }

    std::string next()
    {
        std::string field;
        while (i_ < s_.size() && (blank(s_[i_]) || (lineEnd(s_[i_]) && !afterComma_)))
            ++i_;
        afterComma_ = false;
        if (i_ == s_.size())
            return field;
        if (lineEnd(s_[i_])) {
            takeLineEnd();
            return field;
        }
        const bool quoted = s_[i_] == '"';
        if (quoted) {
            for (++i_; i_ < s_.size() && s_[i_] != '"'; ++i_)
                field += s_[i_];
            if (i_ < s_.size())
                ++i_;
            while (i_ < s_.size() && s_[i_] != ',' && !lineEnd(s_[i_]))
                ++i_;
        } else {
            for (; i_ < s_.size() && s_[i_] != ',' && !lineEnd(s_[i_]); ++i_)
                field += s_[i_];
        }
        if (i_ < s_.size() && s_[i_] == ',') {
            ++i_;
            afterComma_ = true;
        } else if (i_ < s_.size()) {
            takeLineEnd();
        }
        while (!quoted && !field.empty() && blank(field.back()))
            field.pop_back();
        return field;
    }

private:
    static bool blank(char c) { return c == ' ' || c == '\t'; }
    static bool lineEnd(char c) { return c == '\r' || c == '\n'; }
    void takeLineEnd()
    {
        if (s_[i_++] == '\r' && i_ < s_.size() && s_[i_] == '\n')
            ++i_;
    }

    std::string s_;
    size_t i_ = 0;
    bool afterComma_ = false;
};

// Reads the file with the station's reader and the bytes with the
// reference, field by field, and reports the first difference.
void expectSameFields(const TempDir& dir, const std::string& bytes)
{
    const std::string path = dir.file("fields.txt");
    writeFile(path, bytes);
    FieldReader reader;
    ASSERT_TRUE(reader.open(path));
    ReferenceReader reference(bytes);
    for (size_t n = 0;; ++n) {
        const std::string got = reader.next();
        const std::string want = reference.next();
        ASSERT_EQ(got, want) << "field " << n;
        ASSERT_EQ(reader.atEnd(), reference.atEnd()) << "after field " << n;
        if (reference.atEnd())
            break;
    }
    EXPECT_EQ(reader.next(), "");
}

constexpr size_t kReadBuffer = 1 << 16;  // the reader refills at this size

TEST(QuickFieldReading, EveryDelimiterAcrossTheBufferEdge)
{
    // Each tail placed so that the buffer's edge falls on each of its
    // characters in turn: a CR LF torn apart, a quote, blanks to drop, a
    // comma before a line end.
    const std::string tails[] = {"a\r\nb", "a,\r\nb", "a\r\n", "a,\r\n", "\"x,y\"z,b", "ab   ,c", "a, \r\n\r\nb",
        "a,,\nb", "\"\"\r\n\r\n", "  \"q\"  \r\nz", "a\t\t\r", "x,"};
    TempDir dir;
    for (const std::string& tail : tails) {
        for (size_t before = 0; before <= tail.size() + 1; ++before) {
            SCOPED_TRACE(testing::Message() << "tail \"" << tail << "\" " << before << " before the edge");
            expectSameFields(dir, std::string(kReadBuffer - before, 'f') + tail);
            expectSameFields(dir, std::string(kReadBuffer - before - 1, 'f') + "," + tail);
        }
    }
}

TEST(QuickFieldReading, GeneratedFilesAgreeWithTheReference)
{
    // Short fields of every kind, long enough files that the buffer is
    // refilled several times at random places.
    const char alphabet[] = "ab1.- \t,,,\r\n\n\"";
    std::mt19937 rng(7);
    TempDir dir;
    for (int file = 0; file < 24; ++file) {
        SCOPED_TRACE(testing::Message() << "file " << file);
        const size_t length = file % 4 == 0 ? rng() % 500 : kReadBuffer + rng() % (2 * kReadBuffer);
        std::string bytes;
        while (bytes.size() < length) {
            if (file % 2 == 0) {
                bytes += alphabet[rng() % (sizeof alphabet - 1)];
            } else {
                bytes += std::to_string(rng() % 1000);
                bytes += rng() % 6 ? "," : rng() % 2 ? "\r\n" : " ,\"a,b\" x,";
            }
        }
        expectSameFields(dir, bytes);
    }
}

TEST(QuickFieldReading, EachHandleReadsItsOwnFile)
{
    // The pool remembers the handle read last; interleaved reads and a
    // number reused after a close must still reach the right file.
    TempDir dir;
    writeFile(dir.file("a.txt"), "a1,a2,a3");
    writeFile(dir.file("b.txt"), "b1,b2");
    writeFile(dir.file("c.txt"), "c1");
    FileHandles files;
    ASSERT_TRUE(files.open(1, dir.file("a.txt"), FileHandles::Mode::Input));
    ASSERT_TRUE(files.open(2, dir.file("b.txt"), FileHandles::Mode::Input));
    bool atEnd = false;
    EXPECT_EQ(files.readField(1, atEnd), "a1");
    EXPECT_EQ(files.readField(2, atEnd), "b1");
    EXPECT_EQ(files.readField(1, atEnd), "a2");
    EXPECT_FALSE(atEnd);

    // The next handle made is likely to take the memory of the one closed.
    files.close(1);
    ASSERT_TRUE(files.open(3, dir.file("c.txt"), FileHandles::Mode::Input));
    EXPECT_EQ(files.readField(1, atEnd), "");
    EXPECT_TRUE(atEnd);
    EXPECT_EQ(files.readField(3, atEnd), "c1");
    EXPECT_TRUE(atEnd);
    ASSERT_TRUE(files.open(1, dir.file("c.txt"), FileHandles::Mode::Input));
    EXPECT_EQ(files.readField(1, atEnd), "c1");

    // Reopening the number read last replaces what it held.
    EXPECT_EQ(files.readField(2, atEnd), "b2");
    ASSERT_TRUE(files.open(2, dir.file("a.txt"), FileHandles::Mode::Input));
    EXPECT_EQ(files.readField(2, atEnd), "a1");
    ASSERT_TRUE(files.open(2, dir.file("b.txt"), FileHandles::Mode::Append));
    EXPECT_EQ(files.readField(2, atEnd), "");
    EXPECT_TRUE(atEnd);
}

// ---- Numbers ----

TEST(QuickNumbers, ValReadsDecimalsAsTheCLibraryDoes)
{
    // strtod rounds correctly; so must the quick reading of short numbers,
    // and the careful one of long numbers and exponents.
    std::mt19937_64 rng(11);
    for (int k = 0; k < 200000; ++k) {
        std::string number;
        if (rng() % 3 == 0)
            number += rng() % 2 ? '-' : '+';
        const int digits = 1 + static_cast<int>(rng() % 19);
        const int point = static_cast<int>(rng() % (digits + 2));
        for (int d = 0; d < digits; ++d) {
            if (d == point)
                number += '.';
            number += static_cast<char>('0' + rng() % 10);
        }
        if (rng() % 8 == 0)
            number += "e" + std::to_string(static_cast<int>(rng() % 40) - 20);
        const std::string text = std::string(rng() % 3, ' ') + number + (rng() % 4 ? "" : ",5");
        const double want = std::strtod(number.c_str(), nullptr);
        ASSERT_TRUE(sameBits(Val(text), want)) << "Val(\"" << text << "\") = " << Val(text) << ", not " << want;
    }
    EXPECT_TRUE(sameBits(Val("-0"), -0.0));
    EXPECT_TRUE(sameBits(Val("-0.00"), -0.0));
    EXPECT_TRUE(sameBits(Val("-"), 0.0));
    EXPECT_EQ(Val("123456789012345"), 123456789012345.0);
    EXPECT_EQ(Val("1234567890123456789"), 1234567890123456789.0);
    EXPECT_EQ(Val("0.1"), 0.1);
    EXPECT_EQ(Val("1.5d2"), 150);
}

TEST(QuickNumbers, WholeNumberTextsAreTheirDigits)
{
    std::mt19937_64 rng(13);
    for (int k = 0; k < 100000; ++k) {
        const auto limit = k % 2 ? 100000ull : 1000000000000000ull;
        const long long n = static_cast<long long>(rng() % (2 * limit - 1)) - static_cast<long long>(limit - 1);
        const std::string digits = std::to_string(n);
        ASSERT_EQ(StrTrimmed(static_cast<double>(n)), digits);
        ASSERT_EQ(Str(static_cast<double>(n)), n < 0 ? digits : " " + digits);
    }
    // Just outside the whole numbers the plain texts stand as before.
    EXPECT_EQ(Str(1e15), " 1E+15");
    EXPECT_EQ(Str(-1e15), "-1E+15");
    EXPECT_EQ(Str(-999999999999999.0), "-999999999999999");
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-32000.5), "-32000.5");
}

TEST(QuickNumbers, StoresRoundAsNearbyint)
{
    // Halves to the even neighbour on both sides of 0, and values from the
    // edges of both store sizes and beyond 2^52, where every double is whole.
    std::mt19937_64 rng(17);
    std::vector<double> values = {0.5, 1.5, 2.5, -0.5, -1.5, -2.5, 0.49999999999999994, 32767.5, 32766.5, -32768.5,
        -32767.5, 2147483646.5, 2147483647.5, -2147483648.5, 4503599627370495.5, 4503599627370496.0,
        -4503599627370497.0, 9007199254740993.0, 1e300, -0.0, 0.0};
    for (int k = 0; k < 100000; ++k) {
        values.push_back((static_cast<double>(rng() % 200001) - 100000) / 4);
        values.push_back(std::ldexp(static_cast<double>(rng() >> 11), static_cast<int>(rng() % 80) - 60)
            * (rng() % 2 ? 1 : -1));
    }
    for (const double v : values) {
        const double r = std::nearbyint(v);
        const auto want16 = r >= -32768 && r <= 32767 ? std::optional<std::int16_t>(static_cast<std::int16_t>(r))
                                                      : std::nullopt;
        const auto want32 = r >= -2147483648.0 && r <= 2147483647.0
            ? std::optional<std::int32_t>(static_cast<std::int32_t>(r))
            : std::nullopt;
        ASSERT_EQ(ToInteger(v), want16) << v;
        ASSERT_EQ(ToLong(v), want32) << v;
    }
}

TEST(QuickNumbers, AppendFormatKeepsWhatStandsBefore)
{
    // Quick and careful ways alike append: a value near a half and one too
    // large for the quick way take the careful one.
    const struct {
        double number;
        const char* pattern;
    } cases[] = {{-1.25, "#0.00"}, {1.005, "0.00"}, {1e20, "0.00"}, {12, " 000000"}, {0, "###"}, {2.675, "##.00"}};
    for (const auto& c : cases) {
        std::string row = "00042 +";
        AppendFormat(row, c.number, c.pattern);
        EXPECT_EQ(row, "00042 +" + Format(c.number, c.pattern)) << c.number << " by " << c.pattern;
    }
}

// ---- Text ----

TEST(QuickText, UCaseEqualsIsTheUpperCaseCompare)
{
    const char* const keywords[] = {"READING", "LENS", "LENSCHILD", "FRAMES", "MEASUREMENT", "TRUE", "FALSE", ""};
    const char letters[] = "readingREADINGlensLENSchildCHILDtrueTRUEfalse1 _\xe9";
    std::mt19937 rng(19);
    for (int k = 0; k < 20000; ++k) {
        std::string text = keywords[rng() % 8];
        for (char& c : text)
            if (rng() % 2)
                c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (k % 3 == 0) {
            text.clear();
            for (size_t n = rng() % 12; n > 0; --n)
                text += letters[rng() % (sizeof letters - 1)];
        }
        for (const char* keyword : keywords)
            ASSERT_EQ(UCaseEquals(text, keyword), UCase(text) == keyword) << text << " against " << keyword;
    }
}

TEST(QuickText, JoinIntoReusesTheBuffer)
{
    std::string buffer = "a much longer text than what is joined below";
    EXPECT_EQ(JoinInto(buffer, " Loading... ", " 12"), " Loading...  12");
    EXPECT_EQ(&JoinInto(buffer, "", ""), &buffer);
    EXPECT_EQ(buffer, "");
}

}  // namespace
}  // namespace vistrel
