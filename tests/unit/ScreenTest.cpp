// The screen model: controls and their events, the sorted list that ranks
// a search, grids, control arrays, and the registry of names through which
// the driver and the window program reach a screen.

#include "FakePlatform.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "core/screen/Controls.h"
#include "core/screen/Form.h"
#include "core/screen/Registry.h"
#include "core/screen/Variant.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::TempDir;

class CountingObserver : public ControlObserver {
public:
    void controlChanged(Control&, Prop prop) override { ++changes[prop]; }
    std::map<Prop, int> changes;
};

// A small screen of its own, made the way the station's screens are made.
struct TestScreen : Form {
    explicit TestScreen(Station& station) : Form(station, "Frm_Test") {}

    TextBox Txt_Name{*this, "Txt_Name"};
    CheckBox Chk_Flag{*this, "Chk_Flag"};
    OptionGroup Gender;
    OptionButton Opt_Female{*this, "Opt_Female", Gender};
    OptionButton Opt_Male{*this, "Opt_Male", Gender};
    OptionButton Opt_Child{*this, "Opt_Child", Gender};
    OptionGroup Lens;
    OptionButton Opt_Single{*this, "Opt_Single", Lens};
    ListBox Lst_Selection{*this, "Lst_Selection", true};
    ListBox Lst_Plain{*this, "Lst_Plain"};
    Grid MSF_Cells{*this, "MSF_Cells", 3, 4};
    ControlArray<TextBox> Txt_From{*this, "Txt_From", 0, 7};
    OptionGroup Ports;
    ControlArray<OptionButton> Opt_Com{*this, "Opt_Com", 0, 16, Ports};
    ControlArray<Label> Lbl_Row{*this, "Lbl_Row", 1, 3};
};

class ScreenTest : public testing::Test {
protected:
    TempDir dir;
    FakePlatform platform{dir.path()};
    Station station{platform};
    TestScreen screen{station};
};

std::vector<std::string> texts(const ListBox& list)
{
    std::vector<std::string> out;
    for (int i = 0; i < list.listCount(); ++i)
        out.push_back(list.row(i).text);
    return out;
}

std::vector<std::int32_t> itemData(const ListBox& list)
{
    std::vector<std::int32_t> out;
    for (int i = 0; i < list.listCount(); ++i)
        out.push_back(list.row(i).itemData);
    return out;
}

// ---- Events ----

TEST_F(ScreenTest, TextBoxRaisesChangeOnlyWhenTheTextChanges)
{
    CountingObserver seen;
    screen.Txt_Name.setObserver(&seen);
    int changes = 0;
    screen.Txt_Name.onChange = [&] { ++changes; };

    screen.Txt_Name.setText("");  // as it was
    EXPECT_EQ(changes, 0);
    screen.Txt_Name.setText("1.25");
    EXPECT_EQ(changes, 1);
    screen.Txt_Name.setText("1.25");
    EXPECT_EQ(changes, 1);
    screen.Txt_Name.setText("    ");
    screen.Txt_Name.setText("");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(seen.changes[Prop::Text], 3);

    // A handler that rewrites its own field runs once more and settles.
    changes = 0;
    screen.Txt_Name.onChange = [&] {
        ++changes;
        screen.Txt_Name.setText("0.50");
    };
    screen.Txt_Name.setText(".5");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(screen.Txt_Name.text(), "0.50");
}

TEST_F(ScreenTest, CheckBoxRaisesClickOnChangeAndAClickToggles)
{
    int clicks = 0;
    std::vector<int> valuesSeen;
    CheckBox& box = screen.Chk_Flag;
    box.onClick = [&] {
        ++clicks;
        valuesSeen.push_back(box.value());
    };
    box.setValue(0);
    box.setValue(1);
    box.setValue(1);
    EXPECT_EQ(clicks, 1);
    box.click();
    box.click();
    EXPECT_TRUE(box.checked());
    EXPECT_EQ(valuesSeen, (std::vector<int>{1, 0, 1})) << "the handler sees the new value";
}

TEST_F(ScreenTest, OptionsOfAGroupExcludeEachOther)
{
    std::map<std::string, int> clicks;
    for (OptionButton* o : {&screen.Opt_Female, &screen.Opt_Male, &screen.Opt_Child, &screen.Opt_Single})
        o->onClick = [&clicks, o] { ++clicks[o->name()]; };
    auto values = [&] {
        return std::vector<bool>{screen.Opt_Female.value(), screen.Opt_Male.value(), screen.Opt_Child.value()};
    };

    screen.Opt_Single.select();
    screen.Opt_Female.select();
    EXPECT_EQ(values(), (std::vector<bool>{true, false, false}));
    screen.Opt_Male.click();
    EXPECT_EQ(values(), (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(screen.Opt_Single.value()) << "another group is left alone";
    screen.Opt_Male.select();  // selected already: the handler runs again
    EXPECT_EQ(clicks["Opt_Male"], 2);
    EXPECT_EQ(clicks["Opt_Female"], 1);

    screen.Opt_Child.selectQuietly();
    EXPECT_EQ(values(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(clicks["Opt_Child"], 0);
    EXPECT_EQ(clicks["Opt_Male"], 2) << "a cleared option raises nothing";

    screen.Opt_Child.setValue(false);
    EXPECT_EQ(values(), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(clicks["Opt_Child"], 0);

    // Option arrays group alike.
    screen.Opt_Com[3].select();
    screen.Opt_Com[0].select();
    EXPECT_TRUE(screen.Opt_Com[0].value());
    EXPECT_FALSE(screen.Opt_Com[3].value());
}

// ---- The sorted list ----

struct SortCase {
    const char* name;
    std::vector<std::string> added;  // item data is the arrival number, from 1
    std::vector<std::int32_t> order;  // item data from the top down
};

TEST_F(ScreenTest, SortedListRanksByRowText)
{
    const SortCase cases[] = {
        {"closeness below ten before ten", {"10 00003 a", " 9.9 00012 a", " 0.0 00044 a"}, {3, 2, 1}},
        {"ten before twelve and a half", {"12.5 00001", "10 00002", " 4.0 00003"}, {3, 2, 1}},
        {"equal closeness: bag number", {" 0.5 00007 x", " 0.5 00003 y", " 0.5 00005 z"}, {2, 3, 1}},
        {"case is ignored", {"cherry", "Banana", "apple", "BANANA"}, {3, 2, 4, 1}},
        {"shorter prefix first", {"abc", "ab", "a"}, {3, 2, 1}},
        {"equal rows keep arrival order", {"x", "X", "a", "x"}, {3, 1, 2, 4}},
        {"blank before digit before letter", {"a", "1", " 1"}, {3, 2, 1}},
    };
    for (const SortCase& c : cases) {
        SCOPED_TRACE(c.name);
        ListBox& list = screen.Lst_Selection;
        list.clear();
        for (size_t i = 0; i < c.added.size(); ++i)
            list.addItem(c.added[i], static_cast<std::int32_t>(i + 1));
        EXPECT_EQ(itemData(list), c.order);
    }
}

TEST_F(ScreenTest, ListRowsIndexAndData)
{
    ListBox& sorted = screen.Lst_Selection;
    EXPECT_EQ(sorted.addItem(" 5.0 00001", 11), 0);
    EXPECT_EQ(sorted.addItem(" 1.0 00002", 12), 0);
    EXPECT_EQ(sorted.addItem(" 9.0 00003", 13), 2);

    // The selection stays on its row when a row is put in before it.
    sorted.setListIndex(1);
    sorted.addItem(" 0.0 00004", 14);
    EXPECT_EQ(sorted.listIndex(), 2);
    EXPECT_EQ(sorted.row(sorted.listIndex()).itemData, 11);
    sorted.setListIndex(0);
    sorted.addItem(" 0.0 00000", 15);  // at the selected place itself
    EXPECT_EQ(sorted.listIndex(), 1);
    EXPECT_EQ(sorted.row(1).itemData, 14);

    sorted.setItemData(0, 99);
    sorted.setItemData(-1, 5);  // out of range: harmless
    sorted.setItemData(5, 5);
    EXPECT_EQ(itemData(sorted), (std::vector<std::int32_t>{99, 14, 12, 11, 13}));

    sorted.setListIndex(5);
    EXPECT_EQ(sorted.listIndex(), -1);
    sorted.setListIndex(4);
    EXPECT_EQ(sorted.listIndex(), 4);
    sorted.setListIndex(-5);
    EXPECT_EQ(sorted.listIndex(), -1);

    int scrolls = 0;
    sorted.onScroll = [&] { ++scrolls; };
    sorted.setTopIndex(100);
    EXPECT_EQ(sorted.topIndex(), 4);
    sorted.setTopIndex(-3);
    EXPECT_EQ(sorted.topIndex(), 0);
    EXPECT_EQ(scrolls, 2);

    sorted.setListIndex(2);
    sorted.clear();
    EXPECT_EQ(sorted.listCount(), 0);
    EXPECT_EQ(sorted.listIndex(), -1);
    EXPECT_EQ(sorted.topIndex(), 0);

    // A plain list keeps arrival order.
    ListBox& plain = screen.Lst_Plain;
    EXPECT_EQ(plain.addItem("b", 1), 0);
    EXPECT_EQ(plain.addItem("a", 2), 1);
    EXPECT_EQ(plain.addItem("B", 3), 2);
    EXPECT_EQ(texts(plain), (std::vector<std::string>{"b", "a", "B"}));
}

// ---- Grid ----

TEST_F(ScreenTest, GridCellsOutOfRangeAreHarmless)
{
    Grid& grid = screen.MSF_Cells;
    grid.setTextMatrix(2, 3, "005");
    grid.setCellBackColor(2, 3, colors::Yellow);
    EXPECT_EQ(grid.textMatrix(2, 3), "005");
    EXPECT_EQ(grid.cellBackColor(2, 3), colors::Yellow);

    const int outside[][2] = {{-1, 0}, {0, -1}, {3, 0}, {0, 4}, {80, 13}, {3, 3}};
    for (const auto& rc : outside) {
        SCOPED_TRACE(testing::Message() << rc[0] << "," << rc[1]);
        grid.setTextMatrix(rc[0], rc[1], "x");
        grid.setCellBackColor(rc[0], rc[1], colors::Red);
        EXPECT_EQ(grid.textMatrix(rc[0], rc[1]), "");
        EXPECT_EQ(grid.cellBackColor(rc[0], rc[1]), colors::WindowBackground);
    }
    for (int r = 0; r < grid.rows(); ++r)
        for (int c = 0; c < grid.cols(); ++c)
            EXPECT_EQ(grid.textMatrix(r, c), r == 2 && c == 3 ? "005" : "") << r << "," << c;

    grid.setRow(1);
    grid.setCol(2);
    grid.setText("007");
    EXPECT_EQ(grid.textMatrix(1, 2), "007");
    grid.setRow(99);
    grid.setText("lost");
    EXPECT_EQ(grid.text(), "");
}

// A person's move leaves the old cell and enters the new one; the
// program's own moves raise nothing. The place of the current cell follows
// the column widths and the scrolled rows under the fixed headings.
TEST_F(ScreenTest, GridMovesAndCellPlaces)
{
    Grid& grid = screen.MSF_Cells;
    std::string log;
    grid.onLeaveCell = [&] { log += "leave " + std::to_string(grid.row()) + "," + std::to_string(grid.col()) + ";"; };
    grid.onEnterCell = [&] { log += "enter " + std::to_string(grid.row()) + "," + std::to_string(grid.col()) + ";"; };
    grid.onScroll = [&] { log += "scroll " + std::to_string(grid.topRow()) + ";"; };

    grid.moveTo(2, 3);
    grid.moveTo(2, 3);
    grid.moveTo(9, -4);  // clamped into the grid
    grid.setRow(0);
    grid.setCol(0);
    EXPECT_EQ(log, "leave 0,0;enter 2,3;leave 2,3;enter 2,0;");

    log.clear();
    grid.setColWidth(0, 600);
    grid.setColWidth(1, 500);
    grid.setColWidth(2, 400);
    grid.setRowHeight(240);
    grid.setRow(2);
    grid.setCol(2);
    EXPECT_EQ(grid.cellLeft(), 1100);
    EXPECT_EQ(grid.cellWidth(), 400);
    EXPECT_EQ(grid.cellTop(), 480);
    EXPECT_EQ(grid.cellHeight(), 240);
    grid.setTopRow(2);
    EXPECT_EQ(grid.cellTop(), 240);  // the first scrolled row sits under the headings
    grid.setTopRow(2);
    grid.setTopRow(0);  // never above the first scrolled row
    EXPECT_EQ(grid.topRow(), 1);
    EXPECT_EQ(log, "scroll 2;scroll 1;");
    grid.setRow(0);
    EXPECT_EQ(grid.cellTop(), 0);  // the headings don't scroll
}

// ---- Registry ----

TEST_F(ScreenTest, ControlsAreFoundByNameAndIndex)
{
    EXPECT_EQ(screen.control("Txt_Name"), &screen.Txt_Name);
    EXPECT_EQ(screen.control("Txt_From", 3), &screen.Txt_From[3]);
    EXPECT_EQ(screen.control("Txt_From", 7), &screen.Txt_From[7]);
    EXPECT_EQ(screen.control("Txt_From", 8), nullptr);
    EXPECT_EQ(screen.control("Txt_From"), nullptr);
    EXPECT_EQ(screen.control("Txt_Name", 0), nullptr);
    EXPECT_EQ(screen.control("txt_name"), nullptr);
    EXPECT_EQ(screen.control("Nothing"), nullptr);
    EXPECT_TRUE(screen.isControlArray("Txt_From"));
    EXPECT_FALSE(screen.isControlArray("Txt_Name"));
    EXPECT_EQ(screen.control("Opt_Com", 16), &screen.Opt_Com[16]);

    EXPECT_EQ(screen.Txt_From[3].index(), 3);
    EXPECT_EQ(screen.Txt_From[3].name(), "Txt_From");

    // An array from 1: element 1 is the first.
    EXPECT_EQ(screen.Lbl_Row[1].index(), 1);
    EXPECT_EQ(screen.control("Lbl_Row", 1), &screen.Lbl_Row[1]);
    EXPECT_EQ(screen.control("Lbl_Row", 0), nullptr);
    EXPECT_THROW(screen.Lbl_Row[0], std::out_of_range);
    EXPECT_THROW(screen.Lbl_Row[4], std::out_of_range);

    // The station's own screens.
    EXPECT_EQ(station.form("Frm_ProgramOptions"), &station.options());
    EXPECT_EQ(station.form("Frm_Nothing"), nullptr);
    EXPECT_EQ(station.vistrel().control("Txt_Sphere_Left"), &station.vistrel().Txt_Sphere_Left);
    EXPECT_EQ(station.options().control("Txt_From", 3), &station.options().Txt_From[3]);
}

TEST_F(ScreenTest, TablesAreReachedByTheirOwnRowNumbers)
{
    std::vector<std::int16_t> numbers(5, 0);
    const VarBinding table = bind::table(numbers, 1);
    const std::vector<std::pair<int, bool>> valid = {{-1, false}, {0, false}, {1, true}, {5, true}, {6, false}};
    for (const auto& [index, ok] : valid)
        EXPECT_EQ(table.validIndex(index), ok) << index;
    table.set(1, "17");
    table.set(5, "2.5");  // a store into an Integer: half to even
    EXPECT_EQ(numbers, (std::vector<std::int16_t>{17, 0, 0, 0, 2}));
    EXPECT_EQ(table.get(1).number(), 17);

    std::vector<std::string> lines(21);
    const VarBinding fromZero = bind::table(lines, 0);
    EXPECT_FALSE(fromZero.validIndex(21));
    fromZero.set(0, "first");
    EXPECT_EQ(lines[0], "first");

    std::vector<double> values(3, 0);
    std::vector<bool> written(3, false);
    const VarBinding sparse = bind::table(values, written, 1);
    EXPECT_TRUE(sparse.get(2).isEmpty());
    written[1] = true;
    values[1] = -1.25;
    EXPECT_EQ(sparse.get(2).number(), -1.25);

    // Scalars take no index.
    std::int16_t whole = 0;
    const VarBinding scalar = bind::scalar(whole);
    EXPECT_TRUE(scalar.validIndex(-1));
    EXPECT_FALSE(scalar.validIndex(0));
    scalar.set(-1, "3.5");
    EXPECT_EQ(whole, 4);

    bool flag = false;
    const VarBinding boolean = bind::scalar(flag);
    const std::vector<std::pair<const char*, bool>> words = {
        {"True", true}, {"false", false}, {"-1", true}, {"0", false}, {"", false}};
    for (const auto& [word, value] : words) {
        boolean.set(-1, word);
        EXPECT_EQ(flag, value) << word;
        EXPECT_EQ(boolean.get(-1).number(), value ? -1 : 0) << word;
    }

    Variant any;
    const VarBinding variant = bind::scalar(any);
    variant.set(-1, " 12.5 ");
    EXPECT_EQ(any.kind(), Variant::Kind::Number);
    EXPECT_EQ(any.number(), 12.5);
    variant.set(-1, "12.5 mm");
    EXPECT_EQ(any.kind(), Variant::Kind::String);
    EXPECT_EQ(any.string(), "12.5 mm");

    // The station's inventory tables: row i is element i - 1.
    Frm_Vistrel& v = station.vistrel();
    const VarBinding* inv = v.variable("Inv_Number");
    ASSERT_NE(inv, nullptr);
    EXPECT_EQ(inv->first, 1);
    EXPECT_EQ(inv->last, 32000);
    inv->set(1, "101");
    inv->set(32000, "132");
    EXPECT_EQ(v.Inv_Number[0], 101);
    EXPECT_EQ(v.Inv_Number[31999], 132);
    const VarBinding* used = v.variable("Inv_LocationUsed");
    ASSERT_NE(used, nullptr);
    EXPECT_FALSE(used->validIndex(0));
    EXPECT_TRUE(used->validIndex(32000));
    ASSERT_NE(v.variable("InventoryCount"), nullptr);
    EXPECT_EQ(v.variable("NoSuchVariable"), nullptr);
}

TEST(VarBinding, AWrittenVariantRowReadsBack)
{
    // Inv_LeftSphere and its like are Variant columns: empty until a value
    // is stored, and a value stored through the registry then reads back.
    std::vector<double> values(3, 0);
    std::vector<bool> written(3, false);
    const VarBinding column = bind::table(values, written, 1);
    column.set(3, "-1.25");
    EXPECT_EQ(values[2], -1.25);
    EXPECT_FALSE(column.get(3).isEmpty()) << "a stored value reads as empty";
    EXPECT_EQ(column.get(3).number(), -1.25);
}

TEST_F(ScreenTest, OperationsAreFoundByName)
{
    int runs = 0;
    screen.bindOp("Cmd_Go_Click", [&] { ++runs; });
    ASSERT_NE(screen.operation("Cmd_Go_Click"), nullptr);
    (*screen.operation("Cmd_Go_Click"))();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(screen.operation("cmd_go_click"), nullptr);
    ASSERT_NE(station.vistrel().operation("Cmd_Search_Click"), nullptr);
    EXPECT_NE(station.options().operation("Cmd_Continue_Click"), nullptr);
}

// The stock lists stand side by side, one row per pair in each: scrolling
// either one brings the other to the same top row.
TEST_F(ScreenTest, StockListsScrollTogether)
{
    Frm_Vistrel& v = station.vistrel();
    for (int i = 1; i <= 20; ++i) {
        v.Lst_LeftInventory.addItem("left " + std::to_string(i), i);
        v.Lst_RightInventory.addItem("right " + std::to_string(i), i);
    }
    v.Lst_LeftInventory.setTopIndex(7);
    EXPECT_EQ(v.Lst_RightInventory.topIndex(), 7);
    v.Lst_RightInventory.setTopIndex(12);
    EXPECT_EQ(v.Lst_LeftInventory.topIndex(), 12);
    EXPECT_EQ(v.Lst_RightInventory.topIndex(), 12);
}

TEST_F(ScreenTest, ShowLoadsOnceAndModalWaitsOnThePlatform)
{
    int loads = 0, activations = 0;
    screen.onLoad = [&] { ++loads; };
    screen.onActivate = [&] { ++activations; };
    EXPECT_FALSE(screen.visible());
    screen.show();
    screen.show();
    EXPECT_TRUE(screen.visible());
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(activations, 2);
    EXPECT_TRUE(platform.modalForms.empty());

    screen.hide();
    screen.show(true);
    EXPECT_EQ(platform.modalForms, (std::vector<std::string>{"Frm_Test"}));
    EXPECT_FALSE(screen.visible()) << "the fake closes a modal screen";
    EXPECT_EQ(loads, 1);

    screen.show();
    screen.closeBox();
    EXPECT_FALSE(screen.visible());
}

// ---- Variant ----

TEST(Variant, NumericReading)
{
    EXPECT_TRUE(Variant().isEmpty());
    EXPECT_EQ(Variant().number(), 0);
    EXPECT_EQ(Variant("  -1.5x").number(), -1.5);
    EXPECT_EQ(Variant("abc").number(), 0);
    EXPECT_EQ(Variant("").number(), 0);
    EXPECT_FALSE(Variant("").isEmpty());
    EXPECT_EQ(Variant::boolean(true).number(), -1);
    EXPECT_EQ(Variant::boolean(false).number(), 0);
    EXPECT_EQ(Variant(3.25).number(), 3.25);
    EXPECT_EQ(Variant(600).number(), 600);

    EXPECT_EQ(printedValue(Variant()), "");
    EXPECT_EQ(printedValue(Variant::boolean(true)), "True");
    EXPECT_EQ(printedValue(Variant::boolean(false)), "False");
    EXPECT_EQ(printedValue(Variant(0.5)), "0.5");
    EXPECT_EQ(printedValue(Variant(" .5")), " .5");
}

}  // namespace
}  // namespace vistrel
