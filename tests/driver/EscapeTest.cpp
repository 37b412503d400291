#include "Escape.h"
#include "ScriptError.h"

#include <gtest/gtest.h>

using namespace vistrel::script;

TEST(EscapeValue, WritesControlCharactersAndBackslashVisibly)
{
    EXPECT_EQ(escapeValue("a\r\nb\tc\\d"), "a\\r\\nb\\tc\\\\d");
    EXPECT_EQ(escapeValue(std::string("\x01\x1b\x1f", 3)), "\\x01\\x1B\\x1F");
    EXPECT_EQ(escapeValue(std::string(1, '\0')), "\\x00");
}

TEST(EscapeValue, LeavesPrintableAndHighBytesAlone)
{
    EXPECT_EQ(escapeValue("Sphere -2.25 \"OD\" |"), "Sphere -2.25 \"OD\" |");
    EXPECT_EQ(escapeValue("\xC3\xA9\x7F"), "\xC3\xA9\x7F");
    EXPECT_EQ(escapeValue(""), "");
}

TEST(UnquoteValue, ReadsEveryEscape)
{
    EXPECT_EQ(unquoteValue(R"("")"), "");
    EXPECT_EQ(unquoteValue(R"("  two blanks  ")"), "  two blanks  ");
    EXPECT_EQ(unquoteValue(R"("a\r\n\t\\\"z")"), "a\r\n\t\\\"z");
    EXPECT_EQ(unquoteValue(R"("\x02R\x03\xff\xAb")"), "\x02R\x03\xff\xab");
}

TEST(UnquoteValue, AllowsOnlyBlanksAfterTheClosingQuote)
{
    EXPECT_EQ(unquoteValue("\"x\"   "), "x");
    EXPECT_THROW(unquoteValue(R"("x" y)"), ScriptError);
    EXPECT_THROW(unquoteValue(R"("x""y")"), ScriptError);
}

TEST(UnquoteValue, RejectsMalformedValues)
{
    EXPECT_THROW(unquoteValue(R"("open)"), ScriptError);
    EXPECT_THROW(unquoteValue(R"("ends in \)"), ScriptError);
    EXPECT_THROW(unquoteValue(R"("\q")"), ScriptError);
    EXPECT_THROW(unquoteValue(R"("\x4")"), ScriptError);
    EXPECT_THROW(unquoteValue(R"("\xG0")"), ScriptError);
    EXPECT_THROW(unquoteValue("no quote"), ScriptError);
}

TEST(UnquoteValue, ReadsBackWhatEscapeWrites)
{
    std::string all;
    for (int c = 0; c < 256; ++c)
        all.push_back(static_cast<char>(c));
    std::string quoted = "\"";
    for (char c : escapeValue(all))
        quoted += c == '"' ? std::string("\\\"") : std::string(1, c);
    quoted += "\"";
    EXPECT_EQ(unquoteValue(quoted), all);
}
