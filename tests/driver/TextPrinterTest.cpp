#include "TextPrinter.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace vistrel::script;

TEST(TextPrinter, EachLineCarriesTheFontInForceWhenItBegan)
{
    std::ostringstream out;
    TextPrinter p(&out);
    p.print("Vistrel");
    p.setFontName("Courier New");
    p.setFontSize(13);
    p.setFontBold(true);
    p.print("R ", false);
    p.setFontBold(false);  // changes within a line show on the next one
    p.print("-2.25");
    p.setFontSize(7);
    p.print("");
    EXPECT_EQ(out.str(),
        "{MS Sans Serif|8.25|-}Vistrel\n"
        "{Courier New|13|B}R -2.25\n"
        "{Courier New|7|-}\n");
}

TEST(TextPrinter, PageAndJobEndsCloseAnOpenLine)
{
    std::ostringstream out;
    TextPrinter p(&out);
    p.print("first", false);
    p.newPage();
    p.print("a\tb\\c", false);
    p.endDoc();
    p.print("left open", false);
    p.finish();
    p.finish();
    EXPECT_EQ(out.str(),
        "{MS Sans Serif|8.25|-}first\n{NewPage}\n"
        "{MS Sans Serif|8.25|-}a\\tb\\\\c\n{EndDoc}\n"
        "{MS Sans Serif|8.25|-}left open\n");
}

TEST(TextPrinter, WithoutAFileNothingIsWritten)
{
    TextPrinter p;
    p.print("dropped");
    p.endDoc();
    EXPECT_TRUE(p.choose("Any printer"));
}
