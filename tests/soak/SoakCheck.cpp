// vistrel-soakcheck: checks a mission day that vistrel-soakgen planned and
// scripts/soak.sh ran, two stations at once on one network journal.
//
//   vistrel-soakcheck RUN
//
// RUN is the generator's folder after the run: besides what the generator
// wrote, a/live.out and b/live.out hold each station's output of its day,
// a/restart.out and b/restart.out the output of a fresh start on the
// station's folders, and network/ the shared journal and readings.
//
// It checks that
//   - every line of every journal and readings file is whole: closed by CR
//     LF, with the field count of its kind;
//   - each station journaled exactly what it said, in order: one record for
//     each pair it gave out, refused or took back (the index and flag it
//     printed) and for each measurement it saved, nothing for a cancel;
//   - the network journal is the two local journals woven together, nothing
//     lost, nothing doubled, and the shared readings are both stations';
//   - the tables of each live station after a last refresh, of each restart,
//     and the tables the network journal says (the inventory overlaid by its
//     records, the last one of a pair winning) are the same;
//   - the reading glasses left are the stock less those handed out, and the
//     stock journal the grid saves to says so too;
// and prints the day's figures. Exit status 0 when all holds, 1 otherwise.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

int failures = 0;

void fail(const std::string& what)
{
    ++failures;
    std::cout << "FAIL: " << what << "\n";
}

std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        fail("cannot read " + path.string());
        return {};
    }
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

std::vector<std::string> splitFields(const std::string& line)
{
    std::vector<std::string> fields;
    size_t from = 0;
    for (size_t at; (at = line.find(',', from)) != std::string::npos; from = at + 1)
        fields.push_back(line.substr(from, at - from));
    fields.push_back(line.substr(from));
    return fields;
}

bool isInteger(const std::string& s) { return !s.empty() && s.find_first_not_of("0123456789") == std::string::npos; }

// The lines of a file that only ever grows by whole lines: each closed by
// CR LF, no other CR or LF, nothing after the last.
std::vector<std::string> wholeLines(const fs::path& path)
{
    const std::string text = readFile(path);
    std::vector<std::string> lines;
    size_t from = 0;
    while (from < text.size()) {
        const size_t end = text.find("\r\n", from);
        const std::string line = text.substr(from, end == std::string::npos ? std::string::npos : end - from);
        if (end == std::string::npos) {
            fail(path.string() + ": the last line is torn (no CR LF): \"" + line + "\"");
            break;
        }
        if (line.find_first_of("\r\n") != std::string::npos)
            fail(path.string() + ": line " + std::to_string(lines.size() + 1) + " holds a stray line end");
        lines.push_back(line);
        from = end + 2;
    }
    return lines;
}

struct Record {
    bool measurement = false;
    int index = 0;
    std::string flag;
    int person = 0;
};

std::string describe(const Record& r)
{
    return r.measurement ? "Measurement" : std::to_string(r.index) + ",\"" + r.flag + "\"," + std::to_string(r.person);
}

bool operator==(const Record& a, const Record& b)
{
    return a.measurement == b.measurement
        && (a.measurement || (a.index == b.index && a.flag == b.flag && a.person == b.person));
}

// A journal's records, every line of the right shape for its kind.
std::vector<Record> journalRecords(const fs::path& path, const std::vector<std::string>& lines, int pairs)
{
    std::vector<Record> records;
    for (size_t n = 0; n < lines.size(); ++n) {
        const std::vector<std::string> f = splitFields(lines[n]);
        const std::string where = path.string() + ": line " + std::to_string(n + 1) + " \"" + lines[n] + "\"";
        Record r;
        if (f[0] == "Measurement") {
            r.measurement = true;
            if (f.size() != 11)
                fail(where + ": a measurement has 11 fields, not " + std::to_string(f.size()));
        } else {
            const bool flagOk = f.size() > 1
                && (f[1] == "True" || f[1] == "False"
                    || (f[1].size() > 1 && f[1][0] == ' ' && isInteger(f[1].substr(1))));
            if (f.size() != 13 || !isInteger(f[0]) || !flagOk || !isInteger(f[2])) {
                fail(where + ": not a dispensing record of 13 fields");
                continue;
            }
            r.index = std::stoi(f[0]);
            r.flag = f[1];
            r.person = std::stoi(f[2]);
            if (r.index < 1 || r.index > pairs)
                fail(where + ": index out of the inventory");
        }
        records.push_back(r);
    }
    return records;
}

std::vector<std::string> outputLines(const fs::path& path)
{
    std::vector<std::string> lines;
    std::istringstream in(readFile(path));
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// "key value" lines; others are passed over.
std::map<std::string, long> counts(const fs::path& path)
{
    std::map<std::string, long> c;
    std::istringstream in(readFile(path));
    for (std::string line; std::getline(in, line);) {
        std::istringstream fields(line);
        std::string key;
        long value = 0;
        if (fields >> key >> value)
            c[key] = value;
    }
    return c;
}

// Is `woven` the lines of `a` and `b`, each in its own order, interleaved?
bool interleaves(
    const std::vector<std::string>& woven, const std::vector<std::string>& a, const std::vector<std::string>& b)
{
    if (woven.size() != a.size() + b.size())
        return false;
    // reach[j]: a prefix of woven made of a's first i and b's first j lines.
    std::vector<char> reach(b.size() + 1, 0);
    reach[0] = 1;
    for (size_t j = 1; j <= b.size(); ++j)
        reach[j] = reach[j - 1] && b[j - 1] == woven[j - 1];
    for (size_t i = 1; i <= a.size(); ++i) {
        reach[0] = reach[0] && a[i - 1] == woven[i - 1];
        for (size_t j = 1; j <= b.size(); ++j)
            reach[j] = (reach[j] && a[i - 1] == woven[i + j - 1]) || (reach[j - 1] && b[j - 1] == woven[i + j - 1]);
    }
    return reach[b.size()] != 0;
}

// The dump that ends a script: every line after "Frm_Vistrel.FirstLoad=",
// less the measurement count, which grows with every replay by design.
std::vector<std::string> dumpOf(const std::vector<std::string>& lines, const std::string& what)
{
    const auto start = std::find_if(
        lines.begin(), lines.end(), [](const std::string& l) { return l.rfind("Frm_Vistrel.FirstLoad=", 0) == 0; });
    if (start == lines.end()) {
        fail(what + ": no dump");
        return {};
    }
    std::vector<std::string> dump;
    for (auto it = start + 1; it != lines.end(); ++it)
        if (it->rfind("Frm_Vistrel.MeasurementsSaved=", 0) != 0)
            dump.push_back(*it);
    return dump;
}

void compareDumps(const std::vector<std::string>& x, const std::vector<std::string>& y, const std::string& what)
{
    int shown = 0;
    for (size_t i = 0; i < std::max(x.size(), y.size()); ++i) {
        const std::string a = i < x.size() ? x[i] : "(nothing)";
        const std::string b = i < y.size() ? y[i] : "(nothing)";
        if (a == b)
            continue;
        if (shown++ == 0)
            fail(what + " differ:");
        if (shown <= 10)
            std::cout << "    " << a << "\n    " << b << "\n";
    }
    if (shown > 10)
        std::cout << "    ... " << shown << " lines differ\n";
}

struct Tables {
    std::vector<std::string> removed, person, rejects;
};

// The tables the network journal says: the inventory's pairs in stock with
// the refusals of their file, overlaid by every record in order.
Tables expectedTables(const std::string& inventory, const std::vector<Record>& network, int pairs)
{
    Tables t;
    t.removed.assign(static_cast<size_t>(pairs), "False");
    t.person.assign(static_cast<size_t>(pairs), "0");
    t.rejects.assign(static_cast<size_t>(pairs), "0");
    std::istringstream in(inventory);
    std::string line;
    for (int row = 0; row < pairs && std::getline(in, line); ++row) {
        const std::vector<std::string> f = splitFields(line);
        if (f.size() > 15 && isInteger(f[15]))
            t.rejects[static_cast<size_t>(row)] = std::to_string(std::stoi(f[15]) / 10);
    }
    for (const Record& r : network) {
        if (r.measurement)
            continue;
        const auto row = static_cast<size_t>(r.index - 1);
        t.person[row] = std::to_string(r.person);
        if (r.flag == "True" || r.flag == "False")
            t.removed[row] = r.flag;
        else
            t.rejects[row] = r.flag.substr(1);
    }
    return t;
}

void compareWithJournal(const std::vector<std::string>& dump, const Tables& t, const std::string& what)
{
    std::map<std::string, std::string> printed;
    for (const std::string& l : dump)
        if (const size_t eq = l.find('='); l.rfind("Frm_Vistrel.Inv_", 0) == 0 && eq != std::string::npos)
            printed[l.substr(0, eq)] = l.substr(eq + 1);
    int wrong = 0;
    for (size_t row = 0; row < t.removed.size(); ++row) {
        const std::string at = "(" + std::to_string(row + 1) + ")";
        for (const auto& [table, value] : {std::pair {"Inv_Removed", t.removed[row]},
                 {"Inv_PersonNumber", t.person[row]}, {"Inv_RejectCount", t.rejects[row]}}) {
            const std::string key = std::string("Frm_Vistrel.") + table + at;
            if (printed[key] != value && ++wrong <= 5)
                fail(what + ": " + key + "=" + printed[key] + ", the network journal says " + value);
        }
    }
}

struct StationFacts {
    std::vector<std::string> localLines;
    std::vector<std::string> readings;
    std::vector<std::string> liveDump, restartDump;
    std::map<std::string, long> counts;
    std::map<int, int> spareRefusals; // pairs refused at both stations: by index, this station's refusals
    std::map<int, bool> givenTo; // the persons this station gave a pair
};

// Reading glasses go out by a click on their grid, and the grid's counts are
// saved to the station's stock journal (C:\JournalFile.txt, apart from the
// network journal), which no start replays: the counts shown at the end of
// the day are the stock less what went out since the station was last
// started, and the last record of each power changed since then says the same.
void checkReadingGlasses(const fs::path& dir, const std::string& name, const std::vector<std::string>& day)
{
    std::map<int, std::string> shown;
    const std::string prefix = "Frm_ReadingGlasses.Txt_NNN(";
    for (const std::string& l : day)
        if (l.rfind(prefix, 0) == 0)
            shown[std::stoi(l.substr(prefix.size()))] = l.substr(l.find('=') + 1);
    const fs::path grid = dir / "shared" / "drive_c" / "JournalFile.txt";
    std::map<int, std::string> saved;
    if (fs::exists(grid)) {
        for (const std::string& line : wholeLines(grid)) {
            const std::vector<std::string> f = splitFields(line);
            if (f.size() != 3 || f[0] != "Reading") {
                fail(grid.string() + ": not a reading glasses record: \"" + line + "\"");
                continue;
            }
            saved[static_cast<int>(std::lround(std::stod(f[1]) * 4))] = f[2];
        }
    }
    std::istringstream expected(readFile(dir / "readers.txt"));
    for (std::string line; std::getline(expected, line);) {
        std::istringstream fields(line);
        int cell = 0, count = 0;
        std::string changed;
        fields >> cell >> count >> changed;
        const std::string& v = shown[cell];
        if (!isInteger(v.substr(v.rfind('-', 0) == 0 ? 1 : 0)) || std::stoi(v) != count)
            fail(name + ": reading glasses of cell " + std::to_string(cell) + " show \"" + v + "\", "
                + std::to_string(count) + " are left");
        if (changed == "changed" && saved[cell] != v)
            fail(grid.string() + ": the last count of cell " + std::to_string(cell) + " is \"" + saved[cell]
                + "\", the grid shows " + v);
    }
}

StationFacts checkStation(const fs::path& run, const std::string& name, int pairs)
{
    const fs::path dir = run / name;
    StationFacts s;
    s.counts = counts(dir / "counts.txt");
    const fs::path localJournal = dir / "docs" / "Vistrel" / "JournalFile.txt";
    s.localLines = wholeLines(localJournal);
    const std::vector<Record> local = journalRecords(localJournal, s.localLines, pairs);
    s.readings = wholeLines(dir / "docs" / "Vistrel" / "AutoRefractorReadings.txt");
    for (const std::string& r : s.readings)
        if (splitFields(r).size() != 10)
            fail(name + ": a readings line without 10 fields: \"" + r + "\"");
    if (static_cast<long>(s.readings.size()) != s.counts["captures"])
        fail(name + ": " + std::to_string(s.readings.size()) + " readings written, "
            + std::to_string(s.counts["captures"]) + " sent by the autorefractor");

    // What the station said it did, against the plan and its journal.
    const std::vector<std::string> out = outputLines(dir / "live.out");
    std::vector<std::string> said;
    long served = 0;
    size_t dayEnd = out.size();
    for (size_t i = 0; i < out.size(); ++i) {
        const std::string& l = out[i];
        if (l.rfind("Frm_Vistrel.VistrelFlag=", 0) == 0) {
            dayEnd = i;
            break;
        }
        if (l.rfind("Frm_Vistrel.Txt_PersonNumber=", 0) == 0)
            ++served;
        else if (l.rfind("Frm_Vistrel.SelectedIndex=", 0) == 0 || l.rfind("Frm_Vistrel.JournalAddFlag=", 0) == 0
            || l.rfind("Frm_Vistrel.MeasurementsSaved=", 0) == 0)
            said.push_back(l.substr(l.find('=') + 1));
        else if (l.rfind("MsgBox: ", 0) == 0 && l.find("File has been created.") == std::string::npos)
            fail(name + ": the station said: " + l);
    }
    if (dayEnd == out.size())
        fail(name + ": the day's output has no end");
    if (served != s.counts["persons"])
        fail(name + ": " + std::to_string(served) + " persons served of " + std::to_string(s.counts["persons"]));
    size_t gate = 0;
    for (size_t i = dayEnd + 1; i < out.size() && out[i].rfind("Frm_Vistrel.FirstLoad=", 0) != 0; ++i)
        gate += out[i].size() + 1;
    if (gate < (1u << 20))
        fail(name + ": the gate printed " + std::to_string(gate) + " bytes, too few to fill a pipe");
    checkReadingGlasses(dir, name, std::vector<std::string>(out.begin(), out.begin() + static_cast<long>(dayEnd)));

    std::vector<Record> expected;
    std::istringstream plan(readFile(dir / "plan.txt"));
    size_t at = 0;
    auto next = [&]() -> std::string { return at < said.size() ? said[at++] : std::string("(nothing)"); };
    for (std::string step; plan >> step;) {
        if (step == "save") {
            const std::string before = next(), after = next();
            if (!isInteger(before) || !isInteger(after) || std::stol(after) != std::stol(before) + 1)
                fail(name + ": a saved measurement counted " + before + " then " + after);
            expected.push_back({true, 0, "", 0});
            continue;
        }
        Record r;
        if (step != "return")
            plan >> r.index;
        const std::string index = next(), flag = next();
        if (step == "remove") {
            plan >> r.person;
            r.flag = "True";
            s.givenTo[r.person] = true;
        } else if (step == "reject") {
            // A pair refused at both stations has a count neither knows ahead.
            std::string count;
            plan >> count;
            r.flag
                = count == "?" && flag.size() > 1 && flag[0] == ' ' && isInteger(flag.substr(1)) ? flag : " " + count;
            if (count == "?")
                ++s.spareRefusals[r.index];
        } else {
            r.index = isInteger(index) ? std::stoi(index) : -1;
            r.flag = "False";
        }
        if (index != std::to_string(r.index) || flag != r.flag)
            fail(name + ": to " + step + " pair " + std::to_string(r.index) + " (\"" + r.flag
                + "\") the station clicked " + index + " and journaled \"" + flag + "\"");
        expected.push_back(r);
    }
    if (at != said.size())
        fail(name + ": the station printed more than the plan holds");
    for (size_t i = 0; i < std::max(expected.size(), local.size()); ++i) {
        if (i < expected.size() && i < local.size() && expected[i] == local[i])
            continue;
        fail(name + ": local journal record " + std::to_string(i + 1) + " is "
            + (i < local.size() ? describe(local[i]) : "missing") + ", the station did "
            + (i < expected.size() ? describe(expected[i]) : "nothing more"));
        break;
    }
    s.liveDump = dumpOf(out, name + " live");
    s.restartDump = dumpOf(outputLines(dir / "restart.out"), name + " restart");
    return s;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: vistrel-soakcheck RUN\n";
        return 2;
    }
    const fs::path run = argv[1];
    const auto day = counts(run / "day.txt");
    const int pairs = static_cast<int>(day.count("pairs") ? day.at("pairs") : 0);

    const StationFacts a = checkStation(run, "a", pairs);
    const StationFacts b = checkStation(run, "b", pairs);

    const fs::path networkJournal = run / "network" / "JournalFile.txt";
    const std::vector<std::string> shared = wholeLines(networkJournal);
    const std::vector<Record> network = journalRecords(networkJournal, shared, pairs);
    if (!interleaves(shared, a.localLines, b.localLines))
        fail("the network journal (" + std::to_string(shared.size()) + " records) is not the local journals of a ("
            + std::to_string(a.localLines.size()) + ") and b (" + std::to_string(b.localLines.size())
            + ") woven together: a record was lost, doubled or torn");
    std::vector<std::string> readings = wholeLines(run / "network" / "AutoRefractorReadings.txt");
    std::vector<std::string> bothReadings = a.readings;
    bothReadings.insert(bothReadings.end(), b.readings.begin(), b.readings.end());
    std::sort(readings.begin(), readings.end());
    std::sort(bothReadings.begin(), bothReadings.end());
    if (readings != bothReadings)
        fail("the shared readings file is not the readings of both stations");

    // Live against restart, station against station, and both against
    // what the network journal says.
    for (const auto& [dump, what] : {std::pair {&a.liveDump, "a live"}, {&a.restartDump, "a restarted"},
             {&b.liveDump, "b live"}, {&b.restartDump, "b restarted"}})
        if (std::find(dump->begin(), dump->end(), "Frm_Vistrel.Lbl_NetworkJournalDown.Visible=False") == dump->end())
            fail(std::string(what) + " says the network journal is down: it was not read to its end");
    compareDumps(a.liveDump, a.restartDump, "a live and a restarted");
    compareDumps(b.liveDump, b.restartDump, "b live and b restarted");
    compareDumps(a.restartDump, b.restartDump, "a restarted and b restarted");
    const std::string inventory = readFile(run / "inventory.txt");
    const Tables journal = expectedTables(inventory, network, pairs);
    compareWithJournal(a.restartDump, journal, "a restarted");
    compareWithJournal(b.restartDump, journal, "b restarted");

    // How the day went: how often the stations' give-outs took turns in the
    // shared journal, and what became of the refusals of pairs refused at
    // both stations (a record holds the count the station knew of).
    long out = 0, turns = 0;
    for (const std::string& v : journal.removed)
        out += v == "True";
    int last = -1;
    for (const Record& r : network) {
        if (r.measurement || r.flag != "True")
            continue;
        const int station = a.givenTo.count(r.person) ? 0 : b.givenTo.count(r.person) ? 1 : -1;
        turns += last >= 0 && station >= 0 && station != last;
        if (station >= 0)
            last = station;
    }
    const Tables inFile = expectedTables(inventory, {}, pairs);
    long refusalsMade = 0, refusalsCounted = 0, refusedPairs = 0;
    std::map<int, int> spareRefusals = a.spareRefusals;
    for (const auto& [index, n] : b.spareRefusals)
        spareRefusals[index] += n;
    for (const auto& [index, n] : spareRefusals) {
        const auto row = static_cast<size_t>(index - 1);
        ++refusedPairs;
        refusalsMade += n;
        refusalsCounted += std::stol(journal.rejects[row]) - std::stol(inFile.rejects[row]);
    }

    for (const auto* s : {&a, &b}) {
        const auto& c = s->counts;
        std::printf("station %s: %ld persons, %ld give-outs, %ld rejects, %ld cancels, %ld returns, %ld saved "
                    "measurements, %ld autorefractor readings, %ld reading glasses, %ld reports; local journal %zu "
                    "records%s\n",
            s == &a ? "a" : "b", c.at("persons"), c.at("give_outs"), c.at("rejects"), c.at("cancels"), c.at("returns"),
            c.at("saves"), c.at("captures"), c.at("readers"), c.at("reports"), s->localLines.size(),
            c.at("refresh_on_add_remove") ? " (lists refreshed on every give-out and return)" : "");
    }
    std::printf("network journal %zu records, the stations' give-outs taking turns %ld times; shared readings %zu "
                "lines; %ld pairs out at the end of the day\n",
        shared.size(), turns, readings.size(), out);
    std::printf("%ld pairs refused at both stations: %ld refusals, %ld counted at the end\n", refusedPairs,
        refusalsMade, refusalsCounted);
    std::printf("%s\n", failures ? "soak check FAILED" : "soak check passed");
    return failures ? 1 : 0;
}
