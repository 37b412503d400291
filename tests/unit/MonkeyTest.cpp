// A monkey at the station: a whole station on the demo stock, then
// thousands of random actions over every control and operation of all
// thirteen screens, with hostile text typed into every text box. After each
// action the station must still stand: no exception, the candidate count
// within its table and in step with the result list, every result row
// naming a loaded pair, each pair listed once, the stock count untouched
// and the inventory file never written. Now and then a second action runs
// from inside the first, where the station yields to the event pump, as a
// click does that comes while it searches or lists. Seeds are fixed, so a
// failure names the action that caused it and repeats.

#include "FakePlatform.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "core/screen/Controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace vistrel {
namespace {

using namespace std::string_literals;
using test::FakePlatform;
using test::ProcessEnded;
using test::TempDir;
using test::readFile;
using test::writeFile;

const char* const DemoInventory = VISTREL_DEMO_DIR "/Vistrel/Total_Inventory.txt";
const char* const DemoOptions = VISTREL_DEMO_DIR "/Application Data/Vistrel/Vistrel-Options.txt";

// What ends the process; the monkey leaves it alone.
const std::set<std::string> Ending = {"ExitProgram", "Cmd_CloseProgram", "Form_Unload", "Form_Terminate",
    "ExitProgram_Click", "Cmd_CloseProgram_Click"};

// A person who closes every screen that waits for an answer: Continue when
// the screen has it, the close box otherwise.
class MonkeyPlatform : public FakePlatform {
public:
    using FakePlatform::FakePlatform;

    int modalDepth = 0;
    int deepestModal = 0;
    size_t boxCount = 0;
    std::string lastBoxTitle;

    void runModal(Form& form) override
    {
        ++modalDepth;
        deepestModal = std::max(deepestModal, modalDepth);
        if (modalDepth < 8) {
            if (Control* go = form.control("Cmd_Continue"))
                go->click();
            if (form.visible())
                form.closeBox();
        }
        if (form.visible())
            form.hide();
        --modalDepth;
    }

    // The window program's event pump runs the clicks that came while the
    // station was busy; the monkey slips one in now and then.
    std::function<void()> pendingEvent;
    void doEvents() override
    {
        if (pendingEvent && !inEvent_) {
            inEvent_ = true;
            pendingEvent();
            inEvent_ = false;
        }
    }
    void messageBox(const std::string& title, const std::string&, MsgIcon) override
    {
        ++boxCount;
        lastBoxTitle = title;
    }

private:
    bool inEvent_ = false;
};

// ---- Hostile input ----

class Monkey {
public:
    explicit Monkey(unsigned seed) : rng_(seed) {}

    int below(int n) { return n <= 0 ? 0 : std::uniform_int_distribution<int>(0, n - 1)(rng_); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename T>
    const T& pick(const std::vector<T>& items)
    {
        return items[static_cast<size_t>(below(static_cast<int>(items.size())))];
    }

    // What a person, a scanner or a stuck key can put into a text box.
    std::string text()
    {
        static const std::vector<std::string> odd = {"", " ", "    ", "\t", "-", ".", "+", "+.", "-.", "--5",
            "1e308", "-1e308", "1e999", "-1e999", "1e-999", "99999999999999999999", "-99999999999999999999", "NaN",
            "nan", "inf", "-inf", "Infinity", "0x10", "1,5", "1.5.5", "1e", "1e+", "e5", "5d3", "1D308", "&H10",
            "0", "-0", "00000", "32767", "32768", "-32768", "-32769", "65535", "65536", "2147483647", "2147483648",
            "-2147483649", "4294967296", "1e9", "1e10", "1e15", "1e16", "1e17", "1e20", "1e22", "1e300", "5e-324",
            "2.2250738585072014e-308", "0.125", "0.375", "2.675", "1.005", "0.0000001", "-0.0000001",
            "12345678901234567", "1\r\n2", "\"quoted\"", "a,b,c", "\r\n", "\x7f", "\xff\xfe", "\xc3\xa9", "\x80",
            "-\xe2\x80\x93" "5", "0\0" "5"s, "\0"s, "5\0"s, "\0\0\0"s};
        static const std::vector<std::string> plausible = {"-2.25", "90", "180", "-0.25", "45", "200", "32768",
            "-32769", "0", "1", "2", "-1", "-1.00", "+1.50", "-6", "-8.75", "12", "-12.5", "0.25", ".5", "-.75", "2.50",
            "3.00", "-4.00", "181", "-1", "360", "999", "35", "40", "55", "65", "80", "100", "120", "1", "5", "7",
            "10", "31999", "32000", "32001", "400", "401", "1000", "25", "99999"};
        switch (below(12)) {
        case 0:
        case 1:
        case 2:
            return pick(odd);
        case 3:
        case 4:
        case 5:
        case 6:
            return pick(plausible);
        case 7:  // long runs of digits, with or without a sign and point
            return pick(std::vector<std::string>{"", "-", "+", ".", "0."}) + std::string(size(10000), '9')
                + pick(std::vector<std::string>{"", ".5", "e5", "e-5", "e999"});
        case 8:  // control characters and high bytes around a number
            return bytes(size(8)) + pick(plausible) + bytes(size(8));
        case 9:
            return bytes(size(64));
        case 10:  // a plausible value with blanks around it, or twice
            return std::string(static_cast<size_t>(below(4)), ' ') + pick(plausible)
                + (chance(30) ? pick(plausible) : std::string(static_cast<size_t>(below(4)), ' '));
        default:  // a number with random digits
            return std::to_string(below(2001) - 1000) + (chance(50) ? "." + std::to_string(below(100)) : "");
        }
    }

private:
    // 0 to max, short lengths as likely as long ones.
    size_t size(size_t max)
    {
        const int bucket = below(14);
        const size_t top = std::max<size_t>(1, max >> (13 - bucket));
        return std::uniform_int_distribution<size_t>(0, top)(rng_);
    }
    std::string bytes(size_t n)
    {
        std::string s(n, '\0');
        for (char& c : s)
            c = static_cast<char>(below(256));
        return s;
    }

    std::mt19937 rng_;
};

// A printable account of an action for failure messages: the text typed is
// shown escaped and cut short.
std::string shown(const std::string& text)
{
    std::ostringstream out;
    out << '"';
    const size_t n = std::min<size_t>(text.size(), 40);
    for (size_t i = 0; i < n; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x20 && c < 0x7f && c != '"' && c != '\\')
            out << static_cast<char>(c);
        else
            out << "\\x" << "0123456789abcdef"[c >> 4] << "0123456789abcdef"[c & 15];
    }
    out << '"';
    if (text.size() > n)
        out << "... (" << text.size() << " bytes)";
    return out.str();
}

// A hang is named, not waited out: without progress for a minute the
// process ends with the seed and the number of the action that hangs.
class Watchdog {
public:
    Watchdog()
        : thread_([this] {
              std::unique_lock lock(mutex_);
              long long seen = -1;
              while (!done_) {
                  if (wake_.wait_for(lock, std::chrono::seconds(60), [this] { return done_; }))
                      return;
                  if (ticks_ == seen) {
                      std::fprintf(stderr, "monkey: no progress for a minute at seed %u, action %d\n", seed_, action_);
                      std::abort();
                  }
                  seen = ticks_;
              }
          })
    {
    }
    ~Watchdog()
    {
        {
            std::lock_guard lock(mutex_);
            done_ = true;
        }
        wake_.notify_one();
        thread_.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void progress(unsigned seed, int action)
    {
        std::lock_guard lock(mutex_);
        seed_ = seed;
        action_ = action;
        ++ticks_;
    }

private:
    std::mutex mutex_;
    std::condition_variable wake_;
    bool done_ = false;
    long long ticks_ = 0;
    unsigned seed_ = 0;
    int action_ = 0;
    std::thread thread_;  // last: it starts once the rest is there
};

// ---- The station under test ----

class MonkeyRun : public testing::Test {
protected:
    void SetUp() override
    {
        inventory = readFile(DemoInventory);
        ASSERT_FALSE(inventory.empty()) << DemoInventory;
        writeFile(platform.inventoryFile(), inventory);
        writeFile(platform.optionsFile(), readFile(DemoOptions));
        ASSERT_FALSE(readFile(platform.optionsFile()).empty()) << DemoOptions;
    }

    // A fresh station over the files as they are now, the screens' targets
    // gathered. The options file may be one a station saved before.
    void startStation()
    {
        station = std::make_unique<Station>(platform);
        try {
            station->start();
        } catch (const ProcessEnded&) {
            FAIL() << "the station refused to start over the options file "
                   << shown(readFile(platform.optionsFile())) << " (" << platform.lastBoxTitle << ")";
        }
        v = &station->vistrel();
        inventoryCount = v->InventoryCount.number();
        ASSERT_GE(inventoryCount, 1);
        controls.clear();
        operations.clear();
        for (Form* form : station->forms()) {
            for (Control* c : form->controls())
                if (!Ending.count(c->name()))
                    controls.push_back(c);
            // The load of the stock runs once, at start-up: run again, it
            // reads the file under whatever highest bag number the options
            // screen holds by then, another stock by design.
            for (const std::string& name : form->operationNames())
                if (!Ending.count(name) && name != "Get_Readings")
                    operations.push_back({form, name});
        }
    }

    // One random action; its account is added to 'account' before it runs.
    void act(Monkey& monkey, std::string& account)
    {
        if (monkey.chance(25)) {
            const auto& [form, name] = monkey.pick(operations);
            account += "call " + form->name() + "." + name;
            (*form->operation(name))();
            return;
        }
        if (monkey.chance(2)) {
            Form* form = monkey.pick(station->forms());
            if (form != v && form->visible()) {
                account += "close box of " + form->name();
                form->closeBox();
                return;
            }
        }
        Control* c = monkey.pick(controls);
        const std::string name = c->form().name() + "." + c->fullName();
        switch (c->kind()) {
        case ControlKind::TextBox: {
            auto& box = static_cast<TextBox&>(*c);
            if (monkey.chance(80)) {
                const std::string text = monkey.text();
                account += "set " + name + " " + shown(text);
                box.setText(text);
            } else if (monkey.chance(50)) {
                account += "click " + name;
                box.click();
            } else {
                account += "dblclick " + name;
                box.dblClick();
            }
            break;
        }
        case ControlKind::CheckBox: {
            auto& box = static_cast<CheckBox&>(*c);
            if (monkey.chance(50)) {
                const int value = monkey.below(2);
                account += "check " + name + " " + std::to_string(value);
                box.setValue(value);
            } else {
                account += "click " + name;
                box.click();
            }
            break;
        }
        case ControlKind::OptionButton:
            account += "select " + name;
            static_cast<OptionButton&>(*c).select();
            break;
        case ControlKind::ListBox: {
            auto& list = static_cast<ListBox&>(*c);
            const int row = list.listCount() == 0 || monkey.chance(10) ? -1 : monkey.below(list.listCount());
            list.setListIndex(row);
            if (monkey.chance(80)) {
                account += "click " + name + " row " + std::to_string(row);
                list.click();
            } else {
                account += "dblclick " + name + " row " + std::to_string(row);
                list.dblClick();
            }
            break;
        }
        case ControlKind::ComboBox: {
            auto& combo = static_cast<ComboBox&>(*c);
            if (!combo.items().empty() && monkey.chance(50)) {
                const std::string item = monkey.pick(combo.items());
                account += "choose " + name + " " + shown(item);
                combo.setText(item);
            } else {
                const std::string text = monkey.text();
                account += "set " + name + " " + shown(text);
                combo.setText(text);
            }
            combo.click();
            break;
        }
        case ControlKind::Grid: {
            auto& grid = static_cast<Grid&>(*c);
            const int row = monkey.below(grid.rows() + 2) - 1;
            const int col = monkey.below(grid.cols() + 2) - 1;
            account += "cell " + name + " " + std::to_string(row) + "," + std::to_string(col);
            if (grid.onLeaveCell)
                grid.onLeaveCell();
            grid.setRow(row);
            grid.setCol(col);
            if (grid.onEnterCell)
                grid.onEnterCell();
            if (monkey.chance(50))
                grid.click();
            else
                grid.dblClick();
            break;
        }
        case ControlKind::Timer:
            account += "tick " + name;
            static_cast<Timer&>(*c).fire();
            break;
        default:  // buttons, labels, images, menus
            if (monkey.chance(85)) {
                account += "click " + name;
                c->click();
            } else {
                account += "dblclick " + name;
                c->dblClick();
            }
            break;
        }
    }

    // What must hold after any action.
    void checkState()
    {
        ASSERT_EQ(v->InventoryCount.number(), inventoryCount) << "the stock count changed";
        ASSERT_GE(v->FoundListCount, 0);
        ASSERT_LE(v->FoundListCount, Frm_Vistrel::SearchRows);
        const ListBox& list = v->Lst_LeftSelection;
        ASSERT_LE(list.listCount(), Frm_Vistrel::SearchRows);
        // Between searches the count is the list's length: what empties the
        // list empties the count.
        ASSERT_EQ(v->FoundListCount, list.listCount()) << "candidates counted but not listed";
        // The stock lists show each pair in stock once, side by side.
        ASSERT_EQ(v->Lst_LeftInventory.listCount(), v->Lst_RightInventory.listCount());
        ASSERT_LE(v->Lst_LeftInventory.listCount(), inventoryCount) << "a pair listed twice";
        ASSERT_LE(v->Lst_PersonsList.listCount(), inventoryCount) << "a person listed twice";
        for (int i = 0; i < list.listCount(); ++i) {
            const std::int32_t row = list.row(i).itemData;
            ASSERT_GE(row, 1) << "result row " << i << ": " << list.row(i).text;
            ASSERT_LE(row, inventoryCount) << "result row " << i << ": " << list.row(i).text;
        }
    }

    // A search asked for by the test itself. One that runs leaves as many
    // rows as candidates, in step with the candidate tables; one refused
    // over a plus cylinder leaves both as they were.
    void checkSearch()
    {
        action = "call Frm_Vistrel.Search_Click (the test's own)";
        const auto pending = std::exchange(platform.pendingEvent, nullptr);
        const size_t boxesBefore = platform.boxCount;
        const int listedBefore = v->Lst_LeftSelection.listCount();
        const int countBefore = v->FoundListCount;
        (*v->operation("Search_Click"))();
        const ListBox& list = v->Lst_LeftSelection;
        ASSERT_EQ(v->FoundListCount, list.listCount()) << "after a search of its own";
        if (platform.boxCount > boxesBefore && platform.lastBoxTitle == "Entry Error!") {
            ASSERT_EQ(list.listCount(), listedBefore) << "a refused search changed the list";
            ASSERT_EQ(v->FoundListCount, countBefore) << "a refused search changed the count";
        } else {
            ASSERT_EQ(v->FoundListCount, std::min<int>(v->FoundCount, Frm_Vistrel::SearchRows));
            std::multiset<int> tables, rows;
            for (int k = 0; k < v->FoundListCount; ++k)
                tables.insert(v->Found_Index[static_cast<size_t>(k)]);
            for (int i = 0; i < list.listCount(); ++i)
                rows.insert(list.row(i).itemData);
            ASSERT_EQ(tables, rows) << "the candidate tables and the list name different pairs";
        }
        checkState();
        platform.pendingEvent = pending;
    }

    // One seed: the actions, each checked, a search of the test's own now
    // and then. Stops at the first failure and names the action.
    void run(unsigned seed, int actions)
    {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        ASSERT_NO_FATAL_FAILURE(startStation());
        Monkey monkey(seed);
        platform.pendingEvent = [this, &monkey] {
            if (monkey.below(200) == 0) {
                action += " -- and from inside it: ";
                act(monkey, action);
            }
        };
        for (int n = 1; n <= actions; ++n) {
            watchdog.progress(seed, n);
            try {
                if (n % 50 == 0)
                    checkSearch();
                else {
                    action.clear();
                    act(monkey, action);
                }
            } catch (const ProcessEnded&) {
                // Only an options file the station can't read may end it;
                // the next start reads the demo options again.
                ASSERT_EQ(platform.lastBoxTitle, "Options File Error!")
                    << "the station ended at action " << n << ": " << action;
                writeFile(platform.optionsFile(), readFile(DemoOptions));
                ASSERT_NO_FATAL_FAILURE(startStation());
                continue;
            } catch (const std::exception& e) {
                FAIL() << "action " << n << ": " << action << " threw " << e.what();
            }
            checkState();
            if (HasFatalFailure())
                FAIL() << "after action " << n << ": " << action;
        }
        platform.pendingEvent = nullptr;
        ASSERT_LE(platform.deepestModal, 4) << "screens waiting on screens";
        ASSERT_EQ(readFile(platform.inventoryFile()), inventory) << "the inventory file was written";
    }

    Watchdog watchdog;
    TempDir dir{"vistrel-monkey"};
    MonkeyPlatform platform{dir.path()};
    std::unique_ptr<Station> station;
    Frm_Vistrel* v = nullptr;
    std::string inventory;
    double inventoryCount = 0;
    std::vector<Control*> controls;
    std::vector<std::pair<Form*, std::string>> operations;
    std::string action;
};

// The seeds run one after the other in one folder: the options file one
// seed saves, hostile text and all, is the one the next seed starts over.
// VISTREL_MONKEY_SEEDS=n runs seeds 1 to n instead, for a longer hunt.
TEST_F(MonkeyRun, RandomActionsOnEveryScreen)
{
    ASSERT_NO_FATAL_FAILURE(startStation());
    ASSERT_EQ(inventoryCount, 400) << "the demo stock didn't load whole";

    std::vector<unsigned> seeds = {1, 2, 3, 4, 5, 6, 7, 8};
    if (const char* n = std::getenv("VISTREL_MONKEY_SEEDS")) {
        seeds.clear();
        for (unsigned seed = 1; seed <= static_cast<unsigned>(std::atoi(n)); ++seed)
            seeds.push_back(seed);
    }
    for (unsigned seed : seeds) {
        run(seed, 4000);
        if (HasFatalFailure())
            return;
    }
}

// ---- Cases the monkey found, kept as plain tests ----

// A preset other than DEFAULT in the options file set off a search while
// the station loaded, whose candidates stayed counted when the list was
// emptied for the first screen. A search refused later (a plus cylinder)
// leaves list and count as they are, so the stale count stayed.
TEST_F(MonkeyRun, StartWithASearchingPresetLeavesNoCountBehind)
{
    std::string options = readFile(DemoOptions);
    ASSERT_EQ(options.rfind("DEFAULT,", 0), 0u);
    for (const char* preset : {"DEFAULT*2", "DEFAULT/2", "MAX", "EXACT-MATCH"}) {
        SCOPED_TRACE(preset);
        writeFile(platform.optionsFile(), preset + options.substr(7));
        ASSERT_NO_FATAL_FAILURE(startStation());
        EXPECT_EQ(v->Lst_LeftSelection.listCount(), 0);
        EXPECT_EQ(v->FoundListCount, 0);

        v->Txt_Cylinder_Left.setText("1.00");
        (*v->operation("Search_Click"))();
        EXPECT_EQ(platform.lastBoxTitle, "Entry Error!");
        EXPECT_EQ(v->FoundListCount, v->Lst_LeftSelection.listCount());
    }
}

// Clearing for the next person empties the result list halfway, and its
// last search is refused when, meanwhile, a click restored a plus cylinder
// from the autorefractor's fields: the count of the search before stayed.
TEST_F(MonkeyRun, ClearWithAClickWhileItSearches)
{
    ASSERT_NO_FATAL_FAILURE(startStation());
    station->autorefractor().Txt_AutoCylinder[0].setText("0.75");
    v->Txt_Sphere_Left.setText("-1.75");
    v->Txt_Sphere_Right.setText("-1.75");
    v->Cmd_Search.click();
    ASSERT_GT(v->FoundListCount, 0);

    bool clicked = false;
    platform.pendingEvent = [&] {
        if (!std::exchange(clicked, true))
            v->Cmd_RestoreLeft.click();
    };
    v->Cmd_CalculateDataClear.click();
    platform.pendingEvent = nullptr;
    ASSERT_TRUE(clicked) << "the clearing never yielded";
    EXPECT_EQ(platform.lastBoxTitle, "Entry Error!");
    EXPECT_EQ(v->Txt_Cylinder_Left.text(), "0.75");
    EXPECT_EQ(v->FoundListCount, v->Lst_LeftSelection.listCount());
}

// The stock and persons lists yield to the event pump row by row; a click
// on their own buttons then lists everything anew, and the listing it
// interrupted must not go on adding its rows after those.
TEST_F(MonkeyRun, ListingClickedAgainWhileItLists)
{
    ASSERT_NO_FATAL_FAILURE(startStation());
    int clicks = 0;
    platform.pendingEvent = [&] {
        if (clicks++ == 100)
            v->Cmd_ClearReload.click();
    };
    v->Cmd_ClearReload.click();
    ASSERT_GT(clicks, 100);
    EXPECT_EQ(v->Lst_LeftInventory.listCount(), 400);
    EXPECT_EQ(v->Lst_RightInventory.listCount(), 400);
    EXPECT_EQ(v->Txt_Status.text(), " Listed... 0400");

    // Ten pairs handed out, as the journal marks them.
    for (size_t r = 0; r < 10; ++r)
        v->Inv_Removed[r * 7] = true;
    clicks = 0;
    platform.pendingEvent = [&] {
        if (clicks++ == 3)
            v->Cmd_ListPersons.click();
    };
    v->Cmd_ListPersons.click();
    platform.pendingEvent = nullptr;
    ASSERT_GT(clicks, 3);
    EXPECT_EQ(v->Lst_PersonsList.listCount(), 10);
    EXPECT_EQ(v->PersonsListed, 10);
}

}  // namespace
}  // namespace vistrel
