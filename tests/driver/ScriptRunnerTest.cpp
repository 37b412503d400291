// The runner and the platform against screens built here, so that the
// driver's mechanics are checked apart from the station's own behaviour.

#include "Output.h"
#include "ScriptError.h"
#include "ScriptParser.h"
#include "ScriptPlatform.h"
#include "ScriptRunner.h"
#include "core/Station.h"
#include "core/screen/Controls.h"
#include "core/screen/Form.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

using namespace vistrel;
using namespace vistrel::script;

namespace {

class TestScreen : public Form {
public:
    explicit TestScreen(Station& station) : Form(station, "Frm_Test")
    {
        Txt_Name.onChange = [this] { log += "change:" + Txt_Name.text() + ";"; };
        Chk_Home.onClick = [this] { log += "chk:" + std::to_string(Chk_Home.value()) + ";"; };
        Opt_Left.onClick = [this] { log += "left;"; };
        Opt_Right.onClick = [this] { log += "right;"; };
        Cmd_Go.onClick = [this] { log += "go;"; };
        Lst_Rows.onClick = [this] { log += "row:" + std::to_string(Lst_Rows.listIndex()) + ";"; };
        Lst_Rows.onDblClick = [this] { log += "dbl:" + std::to_string(Lst_Rows.listIndex()) + ";"; };
        auto cell = [this] { return std::to_string(Grd_Cells.row()) + "," + std::to_string(Grd_Cells.col()); };
        Grd_Cells.onLeaveCell = [this, cell] { log += "leave:" + cell() + ";"; };
        Grd_Cells.onEnterCell = [this, cell] { log += "enter:" + cell() + ";"; };
        Grd_Cells.onClick = [this, cell] { log += "cell:" + cell() + ";"; };
        Tmr_Tick.onTimer = [this] { ++ticks; };
        Lbl_Info.setCaption("Line one\r\nTwo");
        Lst_Rows.addItem("Zeta", 7);
        Lst_Rows.addItem("alpha\tbeta", -3);
        Grd_Cells.setTextMatrix(0, 0, "Sph");
        Grd_Cells.setTextMatrix(1, 2, "-1.50");
        Grd_Cells.setCellBackColor(1, 2, colors::Yellow);
        Img_Arrow.setVisible(false);
        bindVar("Sphere", bind::scalar(Sphere));
        bindVar("Names", bind::table(Names, 1));
        bindVar("Nothing", bind::scalar(Nothing));
        bindOp("Reset", [this] { log += "reset;"; });
    }

    TextBox Txt_Name{*this, "Txt_Name"};
    ControlArray<TextBox> Txt_Cell{*this, "Txt_Cell", 0, 2};
    CheckBox Chk_Home{*this, "Chk_Home"};
    OptionGroup Sides;
    OptionButton Opt_Left{*this, "Opt_Left", Sides};
    OptionButton Opt_Right{*this, "Opt_Right", Sides};
    CommandButton Cmd_Go{*this, "Cmd_Go"};
    Label Lbl_Info{*this, "Lbl_Info"};
    ListBox Lst_Rows{*this, "Lst_Rows", true};
    ComboBox Cmb_Printer{*this, "Cmb_Printer"};
    Grid Grd_Cells{*this, "Grd_Cells", 2, 3};
    Timer Tmr_Tick{*this, "Tmr_Tick", 500};
    Image Img_Arrow{*this, "Img_Arrow"};

    double Sphere = -2.125;
    std::vector<std::string> Names{"Ana", "Bo", "Cy"};
    Variant Nothing;
    std::string log;
    int ticks = 0;
};

// A screen shown modally: Cmd_Yes and Cmd_No close it, Cmd_Stay doesn't,
// and its close box can be made to refuse.
class Dialog : public Form {
public:
    Dialog(Station& station, const std::string& name, std::string& log) : Form(station, name), log_(&log)
    {
        Cmd_Yes.onClick = [this] { note("yes"); hide(); };
        Cmd_No.onClick = [this] { note("no"); hide(); };
        Cmd_Continue.onClick = [this] { note("continue"); hide(); };
        Cmd_Stay.onClick = [this] { note("stay"); };
        onCloseBox = [this] {
            note("closebox");
            if (!refuseClose)
                hide();
        };
    }
    CommandButton Cmd_Yes{*this, "Cmd_Yes"};
    CommandButton Cmd_No{*this, "Cmd_No"};
    CommandButton Cmd_Continue{*this, "Cmd_Continue"};
    CommandButton Cmd_Stay{*this, "Cmd_Stay"};
    bool refuseClose = false;

private:
    void note(const char* what) { *log_ += name() + ":" + what + ";"; }
    std::string* log_;
};

struct EndOfProcess {};

class ScriptRunnerTest : public testing::Test {
protected:
    std::ostringstream out;
    Output output{out};
    ScriptPlatform platform{output, PlatformSettings{"/docs", "/shared", "/prog", DateTime{2026, 11, 21, 10, 0, 0}}};
    Station station{platform};
    TestScreen screen{station};
    std::string modalLog;
    Dialog dialog{station, "Frm_Dialog", modalLog};
    Dialog options{station, "Frm_ProgramOptions", modalLog};
    int starts = 0;
    ScriptRunner runner{[this](const std::string& name) -> Form* {
                            for (Form* f : std::initializer_list<Form*>{&screen, &dialog, &options})
                                if (f->name() == name)
                                    return f;
                            return nullptr;
                        },
        platform, [this] { ++starts; }};

    void run(std::string_view line)
    {
        const std::optional<Statement> st = parseStatement(line);
        ASSERT_TRUE(st) << line;
        runner.run(*st);
    }
    // What was written to standard output since the last call.
    std::string printed()
    {
        std::string s = out.str();
        out.str("");
        return s;
    }
    std::string errorOf(std::string_view line)
    {
        try {
            run(line);
        } catch (const ScriptError& e) {
            return e.what();
        }
        return "(no error)";
    }
};

}  // namespace

TEST_F(ScriptRunnerTest, SetTypesIntoTextBoxesAndWritesVariables)
{
    run("set Frm_Test.Txt_Name Ana");
    run("set Frm_Test.Txt_Name Ana");  // the same text: no change event
    run("set Frm_Test.Txt_Name \"\"");
    EXPECT_EQ(screen.log, "change:Ana;change:;");

    run("set Frm_Test.Txt_Cell(2) 4.5");
    EXPECT_EQ(screen.Txt_Cell[2].text(), "4.5");
    run("set Frm_Test.Cmb_Printer Default");
    EXPECT_EQ(screen.Cmb_Printer.text(), "Default");
    run("set Frm_Test.Sphere -0.75");
    EXPECT_EQ(screen.Sphere, -0.75);
    run("set Frm_Test.Names(3) Dee");
    EXPECT_EQ(screen.Names[2], "Dee");

    EXPECT_EQ(errorOf("set Frm_Test.Cmd_Go x"), "'Frm_Test.Cmd_Go' is not a text box, combo box or variable");
}

TEST_F(ScriptRunnerTest, ChecksOptionsAndClicksRaiseTheHandlers)
{
    run("check Frm_Test.Chk_Home 1");
    run("check Frm_Test.Chk_Home 1");  // unchanged: no click
    run("click Frm_Test.Chk_Home");    // a click toggles
    run("select Frm_Test.Opt_Right");
    run("select Frm_Test.Opt_Left");
    run("click Frm_Test.Cmd_Go");
    EXPECT_EQ(screen.log, "chk:1;chk:0;right;left;go;");
    EXPECT_FALSE(screen.Opt_Right.value());
    EXPECT_TRUE(screen.Opt_Left.value());

    EXPECT_EQ(errorOf("check Frm_Test.Opt_Left 1"), "'Frm_Test.Opt_Left' is not a check box");
    EXPECT_EQ(errorOf("select Frm_Test.Chk_Home"), "'Frm_Test.Chk_Home' is not an option button");
}

TEST_F(ScriptRunnerTest, ListClicksSelectTheRowInDisplayOrder)
{
    run("click Frm_Test.Lst_Rows 1");  // sorted: "alpha\tbeta" is row 0, "Zeta" row 1
    EXPECT_EQ(screen.Lst_Rows.listIndex(), 1);
    run("dblclick Frm_Test.Lst_Rows 0");
    EXPECT_EQ(screen.log, "row:1;dbl:0;");

    EXPECT_EQ(errorOf("click Frm_Test.Lst_Rows 2"), "row 2 is outside the list 'Frm_Test.Lst_Rows' of 2 rows");
    EXPECT_EQ(errorOf("click Frm_Test.Cmd_Go 0"),
        "only a list takes a row, and a grid a row and a column: 'Frm_Test.Cmd_Go'");
    EXPECT_EQ(errorOf("click Frm_Test.Lst_Rows 0 1"), "a list takes a row, not a column: 'Frm_Test.Lst_Rows'");
}

// A cell is reached as a person reaches it: leaving the current cell,
// entering the new one, then the click; a click on the current cell is a
// click alone.
TEST_F(ScriptRunnerTest, GridCellClicksMoveThereFirst)
{
    run("click Frm_Test.Grd_Cells 1 2");
    run("click Frm_Test.Grd_Cells 1 2");
    run("dblclick Frm_Test.Grd_Cells 0 1");
    EXPECT_EQ(screen.log, "leave:0,0;enter:1,2;cell:1,2;cell:1,2;leave:1,2;enter:0,1;");
    EXPECT_EQ(screen.Grd_Cells.row(), 0);
    EXPECT_EQ(screen.Grd_Cells.col(), 1);

    EXPECT_EQ(errorOf("click Frm_Test.Grd_Cells 1"), "a grid's cell takes a row and a column: 'Frm_Test.Grd_Cells'");
    EXPECT_EQ(errorOf("click Frm_Test.Grd_Cells 2 0"), "cell (2,0) is outside the grid 'Frm_Test.Grd_Cells'");
    EXPECT_EQ(errorOf("click Frm_Test.Grd_Cells 0 3"), "cell (0,3) is outside the grid 'Frm_Test.Grd_Cells'");
    EXPECT_EQ(errorOf("click Frm_Test.Grd_Cells 1 1 1"), "click takes nothing after its target: '1'");
}

TEST_F(ScriptRunnerTest, TicksCallsAndStart)
{
    run("tick Frm_Test.Tmr_Tick");
    run("tick Frm_Test.Tmr_Tick 3");
    EXPECT_EQ(screen.ticks, 4);
    screen.Tmr_Tick.setEnabled(false);
    run("tick Frm_Test.Tmr_Tick 2");
    EXPECT_EQ(screen.ticks, 4);
    EXPECT_EQ(errorOf("tick Frm_Test.Cmd_Go"), "'Frm_Test.Cmd_Go' is not a timer");

    run("call Frm_Test.Reset");
    EXPECT_EQ(screen.log, "reset;");
    EXPECT_EQ(errorOf("call Frm_Test.Nope"), "form 'Frm_Test' has no operation 'Nope'");

    run("start /practice");
    EXPECT_EQ(starts, 1);
    EXPECT_EQ(platform.commandLine(), "/practice");
    run("start");
    EXPECT_EQ(platform.commandLine(), "");
}

TEST_F(ScriptRunnerTest, PrintShowsEachKindOfControl)
{
    screen.Txt_Name.setText("C:\\Vistrel\t1");
    screen.Chk_Home.setValue(1);
    screen.Opt_Left.select();
    screen.Cmb_Printer.setText("Default");
    for (const char* line : {"print Frm_Test.Txt_Name", "print Frm_Test.Chk_Home", "print Frm_Test.Opt_Left",
             "print Frm_Test.Opt_Right", "print Frm_Test.Lbl_Info", "print Frm_Test.Cmb_Printer",
             "print Frm_Test.Img_Arrow", "print Frm_Test.Tmr_Tick", "print Frm_Test.Lst_Rows",
             "print Frm_Test.Grd_Cells", "print Frm_Test.Txt_Cell(1)"})
        run(line);
    EXPECT_EQ(printed(),
        "Frm_Test.Txt_Name=C:\\\\Vistrel\\t1\n"
        "Frm_Test.Chk_Home=1\n"
        "Frm_Test.Opt_Left=True\n"
        "Frm_Test.Opt_Right=False\n"
        "Frm_Test.Lbl_Info=Line one\\r\\nTwo\n"
        "Frm_Test.Cmb_Printer=Default\n"
        "Frm_Test.Img_Arrow=False\n"
        "Frm_Test.Tmr_Tick=500\n"
        "Frm_Test.Lst_Rows.ListCount=2\n"
        "Frm_Test.Lst_Rows(0)=alpha\\tbeta\t-3\n"
        "Frm_Test.Lst_Rows(1)=Zeta\t7\n"
        "Frm_Test.Grd_Cells(0)=Sph\t\t\n"
        "Frm_Test.Grd_Cells(1)=\t\t-1.50\n"
        "Frm_Test.Txt_Cell(1)=\n");
}

TEST_F(ScriptRunnerTest, PrintShowsVariablesAndNamedProperties)
{
    screen.Lst_Rows.setListIndex(1);
    screen.Cmd_Go.setEnabled(false);
    for (const char* line : {"print Frm_Test.Sphere", "print Frm_Test.Names(2)", "print Frm_Test.Nothing",
             "print Frm_Test.Cmd_Go.Enabled", "print Frm_Test.Txt_Name.BackColor", "print Frm_Test.Lst_Rows.ListIndex",
             "print Frm_Test.Grd_Cells.TextMatrix(1, 2)", "print Frm_Test.Grd_Cells.CellBackColor(1,2)",
             "print Frm_Test.Chk_Home.Value", "print Frm_Dialog.Visible"})
        run(line);
    EXPECT_EQ(printed(),
        "Frm_Test.Sphere=-2.125\n"
        "Frm_Test.Names(2)=Bo\n"
        "Frm_Test.Nothing=\n"
        "Frm_Test.Cmd_Go.Enabled=False\n"
        "Frm_Test.Txt_Name.BackColor=-2147483643\n"
        "Frm_Test.Lst_Rows.ListIndex=1\n"
        "Frm_Test.Grd_Cells.TextMatrix(1, 2)=-1.50\n"
        "Frm_Test.Grd_Cells.CellBackColor(1,2)=65535\n"
        "Frm_Test.Chk_Home.Value=0\n"
        "Frm_Dialog.Visible=False\n");
}

TEST_F(ScriptRunnerTest, TargetsThatDontResolveAreScriptErrors)
{
    EXPECT_EQ(errorOf("print Frm_Gone.X"), "unknown form 'Frm_Gone'");
    EXPECT_EQ(errorOf("print Frm_Test.Txt_Gone"), "form 'Frm_Test' has no control or variable 'Txt_Gone'");
    EXPECT_EQ(errorOf("print Frm_Test.Txt_Cell"), "'Frm_Test.Txt_Cell' is a control array: give an index");
    EXPECT_EQ(errorOf("print Frm_Test.Txt_Cell(3)"), "control array 'Frm_Test.Txt_Cell' has no element 3");
    EXPECT_EQ(errorOf("click Frm_Test.Cmd_Go(0)"), "'Frm_Test.Cmd_Go' is not a control array: leave out the index");
    EXPECT_EQ(errorOf("print Frm_Test.Names"), "'Frm_Test.Names' is a table: give a row");
    EXPECT_EQ(errorOf("set Frm_Test.Names(0) x"), "row 0 is outside the table 'Frm_Test.Names' (1 to 3)");
    EXPECT_EQ(errorOf("print Frm_Test.Sphere(1)"), "'Frm_Test.Sphere' is not a table or control array");
    EXPECT_EQ(errorOf("print Frm_Test.Sphere.Text"), "variable 'Frm_Test.Sphere' has no properties");
    EXPECT_EQ(errorOf("print Frm_Test.Cmd_Go.Text"), "'Frm_Test.Cmd_Go' has no property 'Text'");
    EXPECT_EQ(errorOf("print Frm_Test.Grd_Cells.TextMatrix(2,0)"),
        "cell (2,0) is outside the grid 'Frm_Test.Grd_Cells'");
    EXPECT_EQ(errorOf("print Frm_Test.Grd_Cells.TextMatrix(1)"), "TextMatrix takes a row and a column");
}

TEST_F(ScriptRunnerTest, ModalScreensTakeQueuedAnswersInOrderPerScreen)
{
    run("answer Frm_Dialog.Cmd_No");
    run("answer Frm_Dialog.Cmd_Yes");
    dialog.show(true);
    dialog.show(true);
    dialog.show(true);  // nothing queued: the close box
    EXPECT_EQ(modalLog, "Frm_Dialog:no;Frm_Dialog:yes;Frm_Dialog:closebox;");
    EXPECT_FALSE(dialog.visible());
    EXPECT_EQ(errorOf("answer Frm_Dialog.Cmd_Maybe"), "form 'Frm_Dialog' has no control or variable 'Cmd_Maybe'");
}

TEST_F(ScriptRunnerTest, ModalScreensThatStayOpenAreClosedAndThenHidden)
{
    run("answer Frm_Dialog.Cmd_Stay");
    dialog.refuseClose = true;
    dialog.show(true);
    EXPECT_EQ(modalLog, "Frm_Dialog:stay;Frm_Dialog:closebox;");
    EXPECT_FALSE(dialog.visible());

    modalLog.clear();
    dialog.show(true);
    EXPECT_EQ(modalLog, "Frm_Dialog:closebox;");  // one close box, then hidden
    EXPECT_FALSE(dialog.visible());
}

TEST_F(ScriptRunnerTest, TheOptionsScreenClosesThroughContinue)
{
    options.show(true);
    EXPECT_EQ(modalLog, "Frm_ProgramOptions:continue;");
    run("answer Frm_ProgramOptions.Cmd_No");
    options.show(true);
    EXPECT_EQ(modalLog, "Frm_ProgramOptions:continue;Frm_ProgramOptions:no;");
}

TEST_F(ScriptRunnerTest, TheOutsideWorldIsReportedAsEscapedLines)
{
    platform.messageBox("Vistrel", "Saved.\r\nNext?", MsgIcon::Information);
    platform.shell("notepad C:\\JournalFile.txt");
    SerialPort& port = platform.serialPort();
    EXPECT_TRUE(port.setPortOpen(true));
    port.output("\x02" "D\r");
    EXPECT_EQ(printed(),
        "MsgBox: Vistrel | Saved.\\r\\nNext?\n"
        "Shell: notepad C:\\\\JournalFile.txt\n"
        "SerialOut: \\x02D\\r\n");

    EXPECT_EQ(platform.nativePath("C:\\NetworkJournal\\a.txt"), "/shared/drive_c/NetworkJournal/a.txt");

    // The run's folders differ between machines; the lines name them.
    platform.messageBox("Saved", "in /docs/Vistrel and /shared/x, /docs/Vistrel again", MsgIcon::Information);
    platform.shell("Notepad.exe /docs/Vistrel/Total_Inventory_Report.txt");
    platform.runScript("/docs/Vistrel/MoveDeletedInventory.sh");
    EXPECT_EQ(printed(),
        "MsgBox: Saved | in <documents>/Vistrel and <shared>/x, <documents>/Vistrel again\n"
        "Shell: Notepad.exe <documents>/Vistrel/Total_Inventory_Report.txt\n"
        "Shell: <documents>/Vistrel/MoveDeletedInventory.sh\n");
    EXPECT_EQ(platform.printerNames(), std::vector<std::string>{"Default"});
    EXPECT_EQ(platform.now().year, 2026);
}

TEST_F(ScriptRunnerTest, ReadOnlyAttributeTakesAwayWritePermission)
{
    namespace fs = std::filesystem;
    const fs::path file = fs::temp_directory_path() / ("vistrel-attr-" + std::to_string(::getpid()) + ".txt");
    std::ofstream(file) << "x";
    const auto writeBits = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    platform.setFileAttributes(file.string(), 1 | 2);
    EXPECT_EQ(fs::status(file).permissions() & writeBits, fs::perms::none);
    platform.setFileAttributes(file.string(), 0);
    EXPECT_NE(fs::status(file).permissions() & fs::perms::owner_write, fs::perms::none);
    fs::remove(file);
    platform.setFileAttributes(file.string(), 1);  // a missing file is no failure
}

TEST_F(ScriptRunnerTest, SerialDeliversOneReceiveEventPerStatement)
{
    SerialPort& port = platform.serialPort();
    std::string received;
    int events = 0;
    port.onComm = [&] {
        ++events;
        EXPECT_EQ(port.commEvent(), 2);
        received += "[" + port.input() + "]";
    };
    run("serial \"R -1.25\\r\"");
    run("serial L+0.50");
    EXPECT_EQ(events, 2);
    EXPECT_EQ(received, "[R -1.25\r][L+0.50]");
    EXPECT_EQ(port.input(), "");
}

TEST_F(ScriptRunnerTest, EndingTheProcessWritesEndAfterFinishingThePrint)
{
    std::ostringstream printFile;
    platform.textPrinter().setSink(&printFile);
    platform.printer().print("half a line", false);
    platform.setExitHook([] { throw EndOfProcess{}; });
    EXPECT_THROW(platform.endProcess(), EndOfProcess);
    EXPECT_EQ(printed(), "End.\n");
    EXPECT_EQ(printFile.str(), "{MS Sans Serif|8.25|-}half a line\n");
}
