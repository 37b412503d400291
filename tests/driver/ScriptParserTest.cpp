#include "ScriptError.h"
#include "ScriptParser.h"
#include "Target.h"

#include <gtest/gtest.h>

using namespace vistrel::script;

namespace {

Statement parsed(std::string_view line)
{
    std::optional<Statement> st = parseStatement(line);
    if (!st)
        throw std::logic_error("no statement in: " + std::string(line));
    return *st;
}

}  // namespace

// ---- Targets ----

TEST(ParseTarget, ReadsFormNameAndIndex)
{
    TargetRef t = parseTarget("Frm_Vistrel.Inv_Number(3)", false);
    EXPECT_EQ(t.form, "Frm_Vistrel");
    EXPECT_EQ(t.name, "Inv_Number");
    EXPECT_EQ(t.index, 3);
    EXPECT_TRUE(t.property.empty());

    t = parseTarget("Frm_Advisor.Txt_From", false);
    EXPECT_FALSE(t.index.has_value());
    EXPECT_EQ(parseTarget("F.Table(-1)", false).index, -1);
}

TEST(ParseTarget, ReadsPropertiesWithArgumentsKeepingTheTextAsWritten)
{
    TargetRef t = parseTarget("Frm_LensFrames.MSF_LensInventory(0).TextMatrix( 1 , 12 )", true);
    EXPECT_EQ(t.text, "Frm_LensFrames.MSF_LensInventory(0).TextMatrix( 1 , 12 )");
    EXPECT_EQ(t.index, 0);
    EXPECT_EQ(t.property, "TextMatrix");
    EXPECT_TRUE(t.propertyHasArgs);
    EXPECT_EQ(t.propertyArgs, (std::vector<int>{1, 12}));

    t = parseTarget("F.Lst_Rows.ListCount", true);
    EXPECT_EQ(t.property, "ListCount");
    EXPECT_FALSE(t.propertyHasArgs);
}

TEST(ParseTarget, RejectsMalformedTargets)
{
    for (const char* bad : {"", "Frm_About", "Frm_About.", ".Cmd_Exit", "F.X(", "F.X()", "F.X(a)", "F.X(1,2)",
             "F.X(1)junk", "F.X.Y.Z", "F.1X", "F.X-Y"})
        EXPECT_THROW(parseTarget(bad, true), ScriptError) << bad;
    EXPECT_THROW(parseTarget("F.X.Text", false), ScriptError);
}

// ---- Statements ----

TEST(ParseStatement, SkipsBlankLinesAndComments)
{
    EXPECT_FALSE(parseStatement(""));
    EXPECT_FALSE(parseStatement("   \t"));
    EXPECT_FALSE(parseStatement("# set F.X 1"));
    EXPECT_FALSE(parseStatement("   # indented"));
    EXPECT_FALSE(parseStatement("\r"));
}

TEST(ParseStatement, SetTakesTheRestOfTheLineAfterOneBlank)
{
    Statement st = parsed("set Frm_Vistrel.Txt_Sphere(0)  -2.25 x ");
    EXPECT_EQ(st.command, Command::Set);
    EXPECT_EQ(st.target.text, "Frm_Vistrel.Txt_Sphere(0)");
    EXPECT_EQ(st.value, " -2.25 x ");

    EXPECT_EQ(parsed("set F.X abc\r").value, "abc");  // a script with CRLF lines
    EXPECT_EQ(parsed("set F.X \"  padded\\t\"").value, "  padded\t");
    EXPECT_EQ(parsed("set F.X \"\"").value, "");
    EXPECT_EQ(parsed("set F.X say \"hi\"").value, "say \"hi\"");
    EXPECT_THROW(parseStatement("set F.X"), ScriptError);
    EXPECT_THROW(parseStatement("set F.X \"open"), ScriptError);
}

TEST(ParseStatement, StartAndSerialCarryAValue)
{
    Statement st = parsed("start");
    EXPECT_EQ(st.command, Command::Start);
    EXPECT_FALSE(st.value);
    EXPECT_EQ(parsed("start /practice file.txt").value, "/practice file.txt");

    st = parsed("serial \"\\x02R -1.25\\r\"");
    EXPECT_EQ(st.command, Command::Serial);
    EXPECT_EQ(st.value, "\x02R -1.25\r");
    EXPECT_THROW(parseStatement("serial"), ScriptError);
}

TEST(ParseStatement, CheckTakesOnlyZeroOrOne)
{
    EXPECT_EQ(parsed("check F.Chk_A 1").value, "1");
    EXPECT_EQ(parsed("check F.Chk_A 0").value, "0");
    EXPECT_THROW(parseStatement("check F.Chk_A 2"), ScriptError);
    EXPECT_THROW(parseStatement("check F.Chk_A"), ScriptError);
    EXPECT_THROW(parseStatement("check F.Chk_A true"), ScriptError);
}

TEST(ParseStatement, ClickAndTickTakeAnOptionalNumber)
{
    Statement st = parsed("click F.Lst_Rows 4");
    EXPECT_EQ(st.command, Command::Click);
    EXPECT_EQ(st.number, 4);
    EXPECT_FALSE(parsed("click F.Cmd_Go").number);
    EXPECT_EQ(parsed("dblclick F.Lst_Rows 0").number, 0);
    EXPECT_EQ(parsed("tick F.Tmr_Save 3").number, 3);
    EXPECT_FALSE(parsed("tick F.Tmr_Save").number);

    EXPECT_THROW(parseStatement("click F.Lst_Rows -1"), ScriptError);
    EXPECT_THROW(parseStatement("click F.Lst_Rows two"), ScriptError);
    EXPECT_THROW(parseStatement("tick F.Tmr_Save 0"), ScriptError);
    EXPECT_THROW(parseStatement("tick F.Tmr_Save 2x"), ScriptError);
}

TEST(ParseStatement, TargetOnlyStatementsRefuseExtraText)
{
    EXPECT_EQ(parsed("select F.Opt_A").command, Command::Select);
    EXPECT_EQ(parsed("answer F.Cmd_Yes").command, Command::Answer);
    EXPECT_EQ(parsed("call F.RefreshAll").command, Command::Call);
    EXPECT_THROW(parseStatement("select F.Opt_A now"), ScriptError);
    EXPECT_THROW(parseStatement("call F.RefreshAll(1)"), ScriptError);
    EXPECT_THROW(parseStatement("call F.RefreshAll x"), ScriptError);
}

TEST(ParseStatement, StayNamesAScreenOnly)
{
    const Statement st = parsed("stay Frm_Advisor");
    EXPECT_EQ(st.command, Command::Stay);
    EXPECT_EQ(st.target.form, "Frm_Advisor");
    EXPECT_THROW(parseStatement("stay"), ScriptError);
    EXPECT_THROW(parseStatement("stay Frm_Advisor.Cmd_Exit"), ScriptError);
    EXPECT_THROW(parseStatement("stay Frm_Advisor now"), ScriptError);
}

TEST(ParseStatement, PrintTakesATargetWithBlanksInsideParentheses)
{
    Statement st = parsed("print   F.Grid(0).CellBackColor(2, 3)  ");
    EXPECT_EQ(st.command, Command::Print);
    EXPECT_EQ(st.target.text, "F.Grid(0).CellBackColor(2, 3)");
    EXPECT_EQ(st.target.propertyArgs, (std::vector<int>{2, 3}));
    EXPECT_THROW(parseStatement("print"), ScriptError);
    EXPECT_THROW(parseStatement("print F.X Y"), ScriptError);
}

TEST(ParseStatement, RejectsUnknownKeywordsAndPropertiesOutsidePrint)
{
    EXPECT_THROW(parseStatement("Set F.X 1"), ScriptError);
    EXPECT_THROW(parseStatement("press F.Cmd_Go"), ScriptError);
    EXPECT_THROW(parseStatement("click F.Cmd_Go.Caption"), ScriptError);
}
