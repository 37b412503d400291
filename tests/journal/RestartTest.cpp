// A restart must arrive where the live station was. A long random day of
// removes, rejects, cancels, returns from the person list, refreshes and
// saved measurements runs through the script driver; at its end the live
// station reloads its lists and dumps its state, and a fresh start on the
// same folders must dump exactly the same. A small model of the tables
// checks both, and chooses rows that exist. Then two stations sharing a
// network journal act in turn, and a fresh start of one must agree with
// the other after its refresh.

#include "JournalKit.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include <sys/wait.h>

namespace vistrel::journaltest {
namespace {

constexpr int Pairs = 60;

// A quarter-step value as a person types it: "-1.25", "0.50".
std::string quarters(int q)
{
    const int a = q < 0 ? -q : q;
    static const char* const fraction[] = {".00", ".25", ".50", ".75"};
    return (q < 0 ? "-" : "") + std::to_string(a / 4) + fraction[a % 4];
}

class Dice {
public:
    explicit Dice(unsigned seed) : rng_(seed) {}
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }
    bool chance(int percent) { return below(100) < percent; }

    // The entry fields of one measurement, left eye then right.
    std::vector<std::pair<std::string, std::string>> measurement()
    {
        std::vector<std::pair<std::string, std::string>> fields;
        for (const char* eye : {"Left", "Right"}) {
            fields.emplace_back(std::string("Txt_Sphere_") + eye, quarters(below(41) - 24));
            fields.emplace_back(std::string("Txt_Cylinder_") + eye, quarters(-below(9)));
            fields.emplace_back(std::string("Txt_Axis_") + eye, std::to_string(below(181)));
        }
        return fields;
    }

private:
    std::mt19937 rng_;
};

// What the station's tables and lists should hold after each action.
struct Model {
    bool refresh;
    std::vector<bool> removed = std::vector<bool>(Pairs + 1, false);
    std::vector<int> person = std::vector<int>(Pairs + 1, 0);
    std::vector<int> rejects = std::vector<int>(Pairs + 1, 0);
    std::vector<int> stock;    // table indexes in the rows of the stock lists
    std::vector<int> persons;  // table indexes in the rows of the person list
    int measurements = 0;

    explicit Model(bool refreshOnAddRemove) : refresh(refreshOnAddRemove) { listStock(); }
    void listStock()
    {
        stock.clear();
        for (int i = 1; i <= Pairs; ++i)
            if (!removed[static_cast<size_t>(i)])
                stock.push_back(i);
    }
    void listPersons()
    {
        persons.clear();
        for (int i = 1; i <= Pairs; ++i)
            if (removed[static_cast<size_t>(i)])
                persons.push_back(i);
    }
};

// A random day at one station, as a script, played on the model as well.
std::string randomDay(unsigned seed, int actions, Model& model)
{
    Dice dice(seed);
    std::string s = "start\n";
    auto line = [&s](const std::string& text) { s += text + "\n"; };
    for (int step = 0; step < actions; ++step) {
        const int roll = dice.below(100);
        const char* const list = dice.chance(50) ? "Lst_LeftInventory" : "Lst_RightInventory";
        if (roll < 45 && !model.stock.empty()) {
            const int row = dice.below(static_cast<int>(model.stock.size()));
            const auto i = static_cast<size_t>(model.stock[static_cast<size_t>(row)]);
            if (roll < 28) {
                const int person = 1 + dice.below(500);
                line("set Frm_Vistrel.Txt_PersonNumber " + std::to_string(person));
                line("answer Frm_RemoveRejectInventory.Cmd_RemoveInventory");
                model.removed[i] = true;
                model.person[i] = person;
                if (model.refresh) {
                    model.listPersons();
                    model.listStock();
                }
            } else if (roll < 42) {
                line("answer Frm_RemoveRejectInventory.Cmd_RejectInventory");
                ++model.rejects[i];
            } else {
                line("answer Frm_RemoveRejectInventory.Cmd_Cancel");
            }
            line(std::string("click Frm_Vistrel.") + list + " " + std::to_string(row));
        } else if (roll < 62 && !model.persons.empty()) {
            const int row = dice.below(static_cast<int>(model.persons.size()));
            const auto i = static_cast<size_t>(model.persons[static_cast<size_t>(row)]);
            if (roll < 58) {
                line("answer Frm_RemoveRejectInventory.Cmd_ReturnInventory");
                model.removed[i] = false;
                model.person[i] = 0;
                if (model.refresh)
                    model.listPersons();
            } else {
                line("answer Frm_RemoveRejectInventory.Cmd_Cancel");
            }
            line("click Frm_Vistrel.Lst_PersonsList " + std::to_string(row));
        } else if (roll < 70) {
            line("click Frm_Vistrel.Cmd_ListPersons");
            model.listPersons();
        } else if (roll < 75) {
            line("click Frm_Vistrel.Cmd_ClearReload");
            model.listStock();
        } else if (roll < 90) {
            for (const auto& [field, value] : dice.measurement())
                line("set Frm_Vistrel." + field + " " + value);
            const bool yes = dice.chance(85);
            line(std::string("answer Frm_SavePrescription.") + (yes ? "Cmd_Yes" : "Cmd_NOSave"));
            line("click Frm_Vistrel.Cmd_PrescriptionSave");
            model.measurements += yes;
        } else {
            line("set Frm_Vistrel.Txt_PersonNumber " + std::to_string(1 + dice.below(500)));
        }
    }
    return s;
}

// Every row's journalled state, the three lists, the measurement count and
// the measurement rows.
std::string dump(int measurements)
{
    std::string s;
    for (int i = 1; i <= Pairs; ++i)
        for (const char* table : {"Inv_Removed", "Inv_PersonNumber", "Inv_RejectCount"})
            s += std::string("print Frm_Vistrel.") + table + "(" + std::to_string(i) + ")\n";
    for (const char* list : {"Lst_LeftInventory", "Lst_RightInventory", "Lst_PersonsList"})
        s += std::string("print Frm_Vistrel.") + list + "\n";
    s += "print Frm_Vistrel.MeasurementsSaved\nprint Frm_Vistrel.Txt_UnmatchedCount\n";
    for (int r = 1; r <= measurements + 1; ++r)
        for (const char* table : {"Meas_LeftSphere", "Meas_LeftCylinder", "Meas_LeftAxis", "Meas_LeftAdd",
                 "Meas_LeftSphereEqu", "Meas_RightSphere", "Meas_RightCylinder", "Meas_RightAxis", "Meas_RightAdd",
                 "Meas_RightSphereEqu"})
            s += std::string("print Frm_Vistrel.") + table + "(" + std::to_string(r) + ")\n";
    return s;
}

// The first lines of a dump as the model has them.
std::string modelDump(const Model& m)
{
    std::string s;
    for (size_t i = 1; i <= Pairs; ++i) {
        const std::string row = "(" + std::to_string(i) + ")=";
        s += "Frm_Vistrel.Inv_Removed" + row + (m.removed[i] ? "True" : "False") + "\n";
        s += "Frm_Vistrel.Inv_PersonNumber" + row + std::to_string(m.person[i]) + "\n";
        s += "Frm_Vistrel.Inv_RejectCount" + row + std::to_string(m.rejects[i]) + "\n";
    }
    return s;
}

std::string runDriver(const StationFolders& f, const fs::path& script, const std::string& text, const char* name)
{
    writeFile(script, text);
    const fs::path out = script.parent_path() / (std::string(name) + ".out");
    const fs::path err = script.parent_path() / (std::string(name) + ".err");
    const Child c = spawnChild({VISTREL_SCRIPT_DRIVER, "--documents", f.docs.string(), "--shared",
                                   f.shared.string(), "--now", "2026-11-21 10:00:00", script.string()},
        false, false, out, err);
    const int status = reap(c.pid);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << name << ": " << describeStatus(status) << "\n" << readFile(err);
    return readFile(out);
}

TEST(RestartEqualsLive, RandomDayThenFreshStartDumpsTheSameState)
{
    constexpr int Actions = 400;
    for (const auto& [seed, refresh] : std::vector<std::pair<unsigned, bool>>{{1, false}, {2, true}, {3, false}}) {
        SCOPED_TRACE("seed " + std::to_string(seed) + (refresh ? ", refresh on add/remove" : ""));
        TempFolder tmp("journal-restart");
        const StationFolders folders(tmp.path());
        folders.prepare(inventoryText(Pairs), optionsText(refresh, false, {}));

        Model model(refresh);
        std::string live = randomDay(seed, Actions, model);
        live += "click Frm_Vistrel.Cmd_ClearReload\nclick Frm_Vistrel.Cmd_ListPersons\n";
        model.listStock();
        model.listPersons();
        const std::string liveDump = runDriver(folders, tmp.path() / "live.vs", live + dump(model.measurements), "live");
        const std::string freshDump = runDriver(folders, tmp.path() / "fresh.vs", "start\n" + dump(model.measurements),
            "fresh");

        ASSERT_FALSE(liveDump.empty());
        EXPECT_EQ(liveDump, freshDump);
        const std::string expected = modelDump(model);
        EXPECT_EQ(liveDump.substr(0, expected.size()), expected) << "the live station differs from the model";
        const std::string counts = "Frm_Vistrel.Lst_LeftInventory.ListCount=" + std::to_string(model.stock.size());
        EXPECT_NE(liveDump.find(counts + "\n"), std::string::npos) << counts;
        const std::string listed = "Frm_Vistrel.Lst_PersonsList.ListCount=" + std::to_string(model.persons.size());
        EXPECT_NE(liveDump.find(listed + "\n"), std::string::npos) << listed;
        const std::string saved = "Frm_Vistrel.MeasurementsSaved=" + std::to_string(model.measurements);
        EXPECT_NE(liveDump.find(saved + "\n"), std::string::npos) << saved;

        // The day was a real one: pairs went out, came back, were refused.
        int records = 0, returns = 0, rejections = 0;
        for (const std::string& l : splitJournal(readFile(folders.localJournal())).lines) {
            ++records;
            returns += l.find(",False,") != std::string::npos;
            rejections += l.find(", ") != std::string::npos;
        }
        EXPECT_GT(returns, 10);
        EXPECT_GT(rejections, 10);
        EXPECT_GT(model.measurements, 10);
        std::printf("seed %u: %d journal records, %d returns, %d rejections, %d measurements\n", seed, records,
            returns, rejections, model.measurements);
    }
}

// ---- Two stations on one network journal ----

void clickRow(TestPlatform& platform, ListBox& list, int row, const std::string& button)
{
    platform.answers.push_back(button);
    list.setListIndex(row);
    list.click();
    ASSERT_TRUE(platform.answers.empty());
}

// One random action at a station, on the rows its lists show.
void act(Dice& dice, TestPlatform& platform, Frm_Vistrel& v)
{
    const int roll = dice.below(100);
    ListBox& stock = dice.chance(50) ? v.Lst_LeftInventory : v.Lst_RightInventory;
    if (roll < 45 && stock.listCount() > 0) {
        const int row = dice.below(stock.listCount());
        if (roll < 28) {
            v.Txt_PersonNumber.setText(std::to_string(1 + dice.below(500)));
            clickRow(platform, stock, row, "Cmd_RemoveInventory");
        } else {
            clickRow(platform, stock, row, roll < 42 ? "Cmd_RejectInventory" : "Cmd_Cancel");
        }
    } else if (roll < 62 && v.Lst_PersonsList.listCount() > 0) {
        const int row = dice.below(v.Lst_PersonsList.listCount());
        clickRow(platform, v.Lst_PersonsList, row, roll < 58 ? "Cmd_ReturnInventory" : "Cmd_Cancel");
    } else if (roll < 68) {
        v.Cmd_ListPersons_Click();
    } else if (roll < 72) {
        for (int tick = 0; tick < 5; ++tick)
            v.Tmr_RefreshPersonList_Timer();
    } else if (roll < 77) {
        v.Cmd_ClearReload_Click();
    } else if (roll < 81) {
        for (const auto& [field, value] : dice.measurement())
            static_cast<TextBox*>(v.control(field))->setText(value);
        platform.answers.push_back("Cmd_Yes");
        v.Cmd_PrescriptionSave_Click();
        ASSERT_TRUE(platform.answers.empty());
    } else {
        v.Txt_PersonNumber.setText(std::to_string(1 + dice.below(500)));
    }
}

std::vector<std::string> personRows(const Frm_Vistrel& v)
{
    std::vector<std::string> rows;
    for (int r = 0; r < v.Lst_PersonsList.listCount(); ++r)
        rows.push_back(v.Lst_PersonsList.row(r).text + " #" + std::to_string(v.Lst_PersonsList.row(r).itemData));
    return rows;
}

void expectSameTables(const Frm_Vistrel& a, const Frm_Vistrel& b, const char* what)
{
    int differences = 0;
    for (size_t r = 0; r < Pairs; ++r) {
        if (a.Inv_Removed[r] != b.Inv_Removed[r] || a.Inv_PersonNumber[r] != b.Inv_PersonNumber[r]
            || a.Inv_RejectCount[r] != b.Inv_RejectCount[r]) {
            EXPECT_LT(++differences, 6) << what << ": row " << r + 1 << " is (" << a.Inv_Removed[r] << ", "
                                        << a.Inv_PersonNumber[r] << ", " << a.Inv_RejectCount[r] << ") against ("
                                        << b.Inv_Removed[r] << ", " << b.Inv_PersonNumber[r] << ", "
                                        << b.Inv_RejectCount[r] << ")";
        }
    }
    EXPECT_EQ(differences, 0) << what;
    EXPECT_EQ(personRows(a), personRows(b)) << what;
}

TEST(RestartEqualsLive, TwoStationsOnOneNetworkJournalAgreeAfterARefresh)
{
    constexpr int Actions = 300;
    for (const unsigned seed : {11u, 12u}) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        TempFolder tmp("journal-two-stations");
        const fs::path net = tmp.path() / "net";
        fs::create_directories(net);
        const StationFolders a(tmp.path() / "a");
        const StationFolders b(tmp.path() / "b");
        a.prepare(inventoryText(Pairs), optionsText(true, true, net));
        b.prepare(inventoryText(Pairs), optionsText(false, true, net));

        TestPlatform platformA(a);
        TestPlatform platformB(b);
        Station stationA(platformA);
        Station stationB(platformB);
        stationA.start();
        stationB.start();
        Frm_Vistrel& liveA = stationA.vistrel();
        Frm_Vistrel& liveB = stationB.vistrel();

        Dice dice(seed);
        for (int step = 0; step < Actions && !HasFatalFailure(); ++step) {
            if (dice.chance(50))
                act(dice, platformA, liveA);
            else
                act(dice, platformB, liveB);
        }
        ASSERT_FALSE(HasFatalFailure());
        EXPECT_TRUE(platformA.boxes.empty());
        EXPECT_TRUE(platformB.boxes.empty());

        // The network journal is the two local journals woven together.
        std::vector<std::string> locals = splitJournal(readFile(a.localJournal())).lines;
        for (const std::string& l : splitJournal(readFile(b.localJournal())).lines)
            locals.push_back(l);
        const JournalLines shared = splitJournal(readFile(net / "JournalFile.txt"));
        EXPECT_TRUE(shared.whole) << shared.problem;
        std::vector<std::string> woven = shared.lines;
        std::sort(locals.begin(), locals.end());
        std::sort(woven.begin(), woven.end());
        EXPECT_EQ(woven, locals);

        // B refreshes; A starts afresh and replays its own and the network
        // journal; A's live station refreshes too. All three agree.
        liveB.Cmd_ListPersons_Click();
        TestPlatform platformA2(a);
        Station restartedA(platformA2);
        restartedA.start();
        EXPECT_TRUE(platformA2.boxes.empty());
        EXPECT_FALSE(restartedA.vistrel().Lbl_NetworkJournalDown.visible());
        expectSameTables(restartedA.vistrel(), liveB, "A after a restart against B after a refresh");
        liveA.Cmd_ListPersons_Click();
        // Every network replay counts the journal's measurements again, and
        // a replay that runs past the table's last row ends there, leaving
        // the rest of the journal unread: the day is kept short of that.
        ASSERT_LE(liveA.MeasurementsSaved, Frm_Vistrel::MeasurementRows);
        EXPECT_FALSE(liveA.Lbl_NetworkJournalDown.visible());
        EXPECT_FALSE(liveB.Lbl_NetworkJournalDown.visible());
        expectSameTables(liveA, liveB, "A after a refresh against B after a refresh");

        int given = 0;
        for (size_t r = 0; r < Pairs; ++r)
            given += liveB.Inv_Removed[r];
        std::printf("seed %u: %zu network records, %d pairs out at the end, A counts %d measurements\n", seed,
            shared.lines.size(), given, liveA.MeasurementsSaved);
    }
}

}  // namespace
}  // namespace vistrel::journaltest
