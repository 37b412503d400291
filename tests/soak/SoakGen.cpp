// vistrel-soakgen: a mission day under load, for two stations that share a
// network journal.
//
//   vistrel-soakgen --out DIR --network DIR [--seed S] [--persons N] [--pairs P]
//
// Writes into DIR:
//   inventory.txt        the stock both stations hold, line for line
//   a/ and b/            each station's folders: docs/Vistrel/ with the
//                        inventory, shared/ with its options (network
//                        journal on, at --network; its own autorefractor;
//                        on even seeds b fills its lists after every change)
//   a/part1.vs, part2.vs the station's day in two runs of the driver (it is
//                        switched off and on between them), each beginning
//                        with "Frm_Vistrel.InventoryCount=": the persons it
//                        serves, then the line "Frm_Vistrel.VistrelFlag=True"
//                        (the day is over), a gate of output too long for a
//                        pipe to hold, "Frm_Vistrel.FirstLoad=False", a last
//                        refresh and the dump of its tables
//   a/plan.txt ...       what the day must journal, in order
//   a/readers.txt ...    the reading glasses that must be left, by grid cell
//   a/counts.txt ...     the station's figures
//   restart.vs           a fresh start and the same dump
//   day.txt              the day's figures
//
// The script can't look at the screen, so every row it clicks must exist
// whatever the other station does meanwhile. A pair is given out or refused
// from row 0 of the result list, with the person's measurement typed (or
// sent by the autorefractor) exactly as the pair's, its adds and the lens
// and gender options agreeing. Such a pair scores 0.0, the best there is,
// and ties are ranked by bag number. The pairs meant for this (the targets)
// therefore hold the lowest bag numbers and lie first in the file, and no
// two targets could tie: for each eye, neither the same sphere and cylinder,
// nor the one's equivalent on the other's equivalent score of a pair with a
// quarter of cylinder or none. Each target goes out once, from the station
// whose person it was drawn for, and is refused before that only there; a
// few spares never go out and are refused at both stations. So row 0 is
// always the person's pair. A pair comes back from the person list just
// listed anew, on a row below what is surely there: the station's own
// give-outs less every return either station may make.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

// splitmix64: the same day from the same seed on every platform.
class Dice {
public:
    explicit Dice(std::uint64_t seed)
        : state_(seed)
    {
    }
    std::uint64_t next()
    {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    double uniform() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }
    int below(int n) { return static_cast<int>(next() % static_cast<std::uint64_t>(n)); }
    int between(int lo, int hi) { return lo + below(hi - lo + 1); }
    bool chance(double p) { return uniform() < p; }
    double gauss(double mean, double sd)
    {
        const double u = 1.0 - uniform();
        return mean + sd * std::sqrt(-2.0 * std::log(u)) * std::cos(6.283185307179586 * uniform());
    }

private:
    std::uint64_t state_;
};

// Dioptres are kept in quarters.
int quarters(double dioptres) { return static_cast<int>(std::lround(dioptres * 4)); }
int clampInt(int v, int lo, int hi) { return std::max(lo, std::min(hi, v)); }

std::string text(int q)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, "%.2f", q / 4.0);
    return buf;
}

std::string signedText(int q)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, q == 0 ? "%.2f" : "%+.2f", q / 4.0);
    return buf;
}

std::string padLeft(const std::string& s, size_t width)
{
    return std::string(width > s.size() ? width - s.size() : 0, ' ') + s;
}

struct Eye {
    int sphere = 0, cylinder = 0, axis = 0, add = 0;
};

struct Pair {
    Eye left, right;
    bool sun = false, reading = false, progressive = false, bifocal = false;
    int gender = 0; // 0 either, 1 female, 2 male, 3 child
    int rejects = 0;
    std::string pd = "M";
    std::string comment;
};

int drawAxis(Dice& d)
{
    const double kind = d.uniform();
    int axis = kind < 0.5 ? static_cast<int>(std::lround(d.gauss(180, 12)))
        : kind < 0.8      ? static_cast<int>(std::lround(d.gauss(90, 12)))
                          : d.between(1, 179);
    axis = ((axis % 180) + 180) % 180;
    return axis == 0 ? 180 : axis;
}

// A pair as missions receive them: mostly mild myopia and hyperopia, some
// strong, a third without cylinder, a sixth with an add.
Pair drawPair(Dice& d)
{
    Pair p;
    p.sun = d.chance(0.06);
    p.reading = !p.sun && d.chance(0.06);
    const bool multifocal = !p.sun && !p.reading && d.chance(0.18);
    p.progressive = multifocal && d.chance(0.45);
    p.bifocal = multifocal && !p.progressive;
    if (p.reading) {
        const int power = d.between(4, 14);
        p.left = {power, 0, 0, 0};
        p.right = p.left;
    } else {
        const double kind = d.uniform();
        int s = kind < 0.55 ? clampInt(quarters(d.gauss(-1.75, 0.9)), -15, -1)
            : kind < 0.65   ? quarters(-4.0 - 4.5 * d.uniform())
            : kind < 0.90   ? clampInt(quarters(d.gauss(1.5, 0.8)), 1, 14)
            : kind < 0.95   ? d.between(15, 24)
                            : 0;
        const int rs = d.chance(0.03) ? s + (d.chance(0.5) ? 1 : -1) * d.between(4, 10) : s + quarters(d.gauss(0, 0.3));
        const auto cylinder = [&d] {
            const double k = d.uniform();
            if (k < 0.35)
                return 0;
            if (k < 0.95)
                return -clampInt(quarters(-std::log(1.0 - d.uniform()) / 1.6), 1, 8);
            return -d.between(9, 12);
        };
        const int lc = cylinder();
        const int rc = lc == 0 ? (d.chance(0.75) ? 0 : -1) : clampInt(lc + quarters(d.gauss(0, 0.25)), -12, 0);
        const int la = lc ? drawAxis(d) : 0;
        int ra = 0;
        if (rc) {
            ra = la ? ((180 - la + static_cast<int>(std::lround(d.gauss(0, 6)))) % 180 + 180) % 180 : drawAxis(d);
            ra = ra == 0 ? 180 : ra;
        }
        p.left = {s, lc, la, 0};
        p.right = {rs, rc, ra, 0};
    }
    if (multifocal) {
        const int add = clampInt(quarters(d.gauss(2.0, 0.45)), 4, 12);
        p.left.add = p.right.add = add;
    }
    const int g = d.below(100);
    p.gender = g < 45 ? 0 : g < 70 ? 1 : g < 92 ? 2 : 3;
    if (p.gender == 3 && (p.reading || multifocal))
        p.gender = 0;
    if (p.gender == 3) {
        for (Eye* e : {&p.left, &p.right}) {
            e->sphere = clampInt(e->sphere, -16, 16);
            e->add = 0;
        }
        p.progressive = p.bifocal = false;
    }
    if (d.chance(0.05))
        p.rejects = d.between(1, 3);
    static const char* const pds[] = {"S", "M", "L", "60", "62", "63", "64", "66"};
    p.pd = pds[d.below(8)];
    static const char* const comments[] = {"", "", "", "Tortoise frame", "Black plastic", "Wire frame", "Rimless",
        "Loose hinge", "Scratch L", "Aviator style", "Round lenses"};
    p.comment = comments[d.below(11)];
    return p;
}

std::string inventoryLine(int bag, const Pair& p)
{
    std::string line = std::to_string(bag);
    for (const Eye* e : {&p.left, &p.right})
        line += "," + text(e->sphere) + "," + text(e->cylinder) + "," + std::to_string(e->axis) + "," + text(e->add);
    for (bool flag : {p.sun, p.reading, false, p.progressive, p.bifocal})
        line += flag ? ",1" : ",0";
    line += "," + p.pd + "," + std::to_string(p.gender + 10 * p.rejects) + ",\"" + p.comment + "\",\"\",\"\"";
    return line;
}

// Could a person measured as pair p see pair q on row 0 of the result list
// at 0.0, as well as p? Only when, for both eyes, q scores 0 too.
bool eyeMayTie(const Eye& p, const Eye& q)
{
    if (p.sphere == q.sphere && p.cylinder == q.cylinder)
        return true;
    // A pair with a quarter of cylinder or none is scored on its
    // equivalent, which keeps the minus: sphere minus half the cylinder.
    return q.cylinder >= -1 && 2 * p.sphere + p.cylinder == 2 * q.sphere - q.cylinder;
}

bool mayTie(const Pair& p, const Pair& q)
{
    return (eyeMayTie(p.left, q.left) && eyeMayTie(p.right, q.right))
        || (eyeMayTie(q.left, p.left) && eyeMayTie(q.right, p.right));
}

// A target: its own measurement must score it 0. An eye with a quarter of
// cylinder beside an astigmatic one is scored on the equivalent and misses.
bool fitsTarget(const Pair& p)
{
    const bool astigmatic = p.left.cylinder < -1 || p.right.cylinder < -1;
    if (astigmatic && (p.left.cylinder == -1 || p.right.cylinder == -1))
        return false;
    // The autorefractors' columns hold spheres up to two digits.
    return std::abs(p.left.sphere) < 40 && std::abs(p.right.sphere) < 40 && p.left.add == p.right.add;
}

enum class Kind {
    GiveTyped, // typed, searched, the pair given out
    GiveSerial, // read from the autorefractor, searched by itself, given out
    GiveWizard, // typed, the wizard widens both eyes, given out
    Reject, // typed, the pair on row 0 tried and refused
    Cancel, // typed, row 0 clicked and the question cancelled
    Search, // typed, searched, nothing given
    SearchBlind, // one eye blind
    SearchReading, // reading glasses only
    SearchSerial, // read from the autorefractor, nothing given
    WizardCases, // a strong cylinder cut back in the wizard, nothing given
};

struct Person {
    int number = 0;
    Kind kind = Kind::Search;
    int target = -1; // index into the targets for give-outs, rejects and cancels
    Pair measured; // for the kinds without a target
    bool save = false; // the measurement is saved, unmatched
    int reader = 0; // the reading glasses handed out, by grid cell; 0: none
    bool reload = false; // CLEAR & RELOAD after the person: the stock lists anew
    int ticks = 0; // refresh-timer minutes after the person
    int report = -1;
};

struct Station {
    std::string name;
    std::string model;
    std::vector<Person> persons;
    bool refreshOnAddRemove = false;
    int plannedReturns = 0;
    size_t switchedOffAfter = 0; // persons served before the station is switched off and on; 0: never
};

// The add of the options' age chart, in quarters, and an age that gives it.
int ageForAdd(Dice& d, int add)
{
    switch (add) {
    case 0:
        return d.between(18, 37);
    case 4:
        return d.between(38, 43);
    case 6:
        return d.between(44, 47);
    case 8:
        return d.between(48, 55);
    case 10:
        return d.between(56, 85);
    default:
        return 0;
    }
}

class Script {
public:
    void line(const std::string& s) { text_ += s + "\n"; }
    void set(const std::string& target, const std::string& value) { line("set " + target + " " + value); }
    const std::string& str() const { return text_; }

private:
    std::string text_;
};

void typeEyes(Script& s, const Pair& p, bool left, bool right)
{
    auto eye = [&s](const char* side, const Eye& e) {
        s.set(std::string("Frm_Vistrel.Txt_Sphere_") + side, text(e.sphere));
        s.set(std::string("Frm_Vistrel.Txt_Cylinder_") + side, text(e.cylinder));
        s.set(std::string("Frm_Vistrel.Txt_Axis_") + side, std::to_string(e.axis));
    };
    if (left)
        eye("Left", p.left);
    if (right)
        eye("Right", p.right);
}

void typeAdds(Script& s, const Pair& p)
{
    s.set("Frm_Vistrel.Txt_LeftAdd", text(p.left.add));
    s.set("Frm_Vistrel.Txt_RightAdd", text(p.right.add));
}

// The options that let the pair through, as the volunteer sets them for the person.
void chooseOptions(Script& s, Dice& d, const Pair& p)
{
    static const char* const genders[] = {"Opt_DoNotCare", "Opt_Female", "Opt_Male", "Opt_Child"};
    if (d.chance(0.7))
        s.line(std::string("select Frm_Vistrel.") + genders[p.gender]);
    if (d.chance(0.3))
        s.line(std::string("select Frm_Vistrel.")
            + (p.progressive    ? "Opt_Progressive"
                    : p.bifocal ? "Opt_LensBiFocal"
                                : "Opt_LensSingle"));
}

std::string serialMessage(const std::string& model, const Pair& p)
{
    std::string m;
    if (model == "REICHERT RK600") {
        m = "REICHERT RK600\r\nVD=12mm  PD 63\r\n\r\n";
        auto eye = [&m](const char* marker, const Eye& e) {
            char axis[8];
            std::snprintf(axis, sizeof axis, "%03d", e.axis);
            m += std::string(marker) + " " + padLeft(signedText(e.sphere), 6) + "  C " + padLeft(text(e.cylinder), 6)
                + "  A  " + axis + "\r\n";
        };
        eye("R S ", p.right);
        eye("L S ", p.left);
        m += "\r\n";
    } else {
        m = "\r\n      TOPCON\r\n  NO. 0012\r\n  VD 12.00\r\n\r\n";
        auto eye = [&m](const char* marker, const Eye& e) {
            m += std::string("  ") + marker + " " + padLeft(signedText(e.sphere), 6) + " "
                + padLeft(text(e.cylinder), 5) + " " + padLeft(std::to_string(e.axis), 3) + "\r\n";
        };
        eye("R", p.right);
        eye("L", p.left);
        m += "\r\n";
    }
    std::string quoted = "\"";
    for (char c : m)
        quoted += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
    return quoted + "\"";
}

void dump(Script& s, int pairs)
{
    for (const char* what : {"InventoryCount", "Txt_Used", "Txt_Status", "ListedCount", "HighestInventoryNr",
             "Lbl_NetworkJournalDown.Visible", "Lst_PersonsList", "Lst_LeftInventory", "MeasurementsSaved"})
        s.line(std::string("print Frm_Vistrel.") + what);
    for (int i = 1; i <= pairs; ++i)
        for (const char* table : {"Inv_Removed", "Inv_PersonNumber", "Inv_RejectCount"})
            s.line(std::string("print Frm_Vistrel.") + table + "(" + std::to_string(i) + ")");
}

void write(const fs::path& path, const std::string& content)
{
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary);
    out << content;
    if (!out)
        throw std::runtime_error("cannot write " + path.string());
}

struct Args {
    fs::path out;
    std::string network;
    std::uint64_t seed = 1;
    int persons = 3000;
    int pairs = 0;
};

Args parse(int argc, char** argv)
{
    Args a;
    for (int i = 1; i < argc; ++i) {
        const std::string k = argv[i];
        if (i + 1 >= argc)
            throw std::invalid_argument(k + " needs a value");
        const std::string v = argv[++i];
        if (k == "--out")
            a.out = v;
        else if (k == "--network")
            a.network = v;
        else if (k == "--seed")
            a.seed = std::stoull(v);
        else if (k == "--persons")
            a.persons = std::stoi(v);
        else if (k == "--pairs")
            a.pairs = std::stoi(v);
        else
            throw std::invalid_argument("unknown option " + k);
    }
    if (a.out.empty() || a.network.empty())
        throw std::invalid_argument("--out and --network are needed");
    if (a.network.find_first_of(",\"\r\n") != std::string::npos)
        throw std::invalid_argument(
            "the network folder's path can't hold a comma or a quote: the options file is comma separated");
    if (a.persons < 20 || a.persons > 20000)
        throw std::invalid_argument("--persons must be 20 to 20000");
    if (a.pairs == 0)
        a.pairs = std::max(400, a.persons * 4 / 3);
    return a;
}

Kind drawKind(Dice& d)
{
    static const std::pair<int, Kind> weights[] = {{28, Kind::GiveTyped}, {10, Kind::GiveSerial}, {4, Kind::GiveWizard},
        {8, Kind::Reject}, {2, Kind::Cancel}, {28, Kind::Search}, {5, Kind::SearchBlind}, {5, Kind::SearchReading},
        {5, Kind::SearchSerial}, {5, Kind::WizardCases}};
    int roll = d.below(100);
    for (const auto& [w, k] : weights) {
        if (roll < w)
            return k;
        roll -= w;
    }
    return Kind::Search;
}

bool givesOut(Kind k) { return k == Kind::GiveTyped || k == Kind::GiveSerial || k == Kind::GiveWizard; }

} // namespace

int main(int argc, char** argv)
{
    Args args;
    try {
        args = parse(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << "vistrel-soakgen: " << e.what()
                  << "\nusage: vistrel-soakgen --out DIR --network DIR [--seed S] [--persons N] [--pairs P]\n";
        return 2;
    }
    Dice d(args.seed * 0x2545F4914F6CDD1Dull + 7);

    std::vector<Station> stations(2);
    stations[0].name = "a";
    stations[0].model = "REICHERT RK600";
    stations[1].name = "b";
    stations[1].model = "TOPCON KR-3000-7000";
    // On even days the second station fills its lists after each give-out and return.
    stations[1].refreshOnAddRemove = args.seed % 2 == 0;

    // Who comes to which station, and what happens.
    for (int n = 1; n <= args.persons; ++n) {
        Person p;
        p.number = n;
        p.kind = drawKind(d);
        p.ticks = d.chance(0.2) ? 1 : 0;
        stations[static_cast<size_t>(d.below(2))].persons.push_back(p);
    }

    // The targets: one per give-out, in the order the persons come
    // whichever station serves them, and spares that are only refused, at
    // both stations.
    std::vector<Pair> targets;
    int lostGiveOuts = 0;
    auto newTarget = [&]() -> int {
        for (int attempt = 0; attempt < 400; ++attempt) {
            Pair p = drawPair(d);
            if (!fitsTarget(p))
                continue;
            if (std::none_of(targets.begin(), targets.end(), [&p](const Pair& t) { return mayTie(p, t); })) {
                targets.push_back(p);
                return static_cast<int>(targets.size()) - 1;
            }
        }
        return -1;
    };
    std::vector<Person*> arrivals;
    for (Station& st : stations)
        for (Person& p : st.persons)
            arrivals.push_back(&p);
    std::sort(arrivals.begin(), arrivals.end(), [](const Person* x, const Person* y) { return x->number < y->number; });
    for (Person* p : arrivals) {
        if (!givesOut(p->kind))
            continue;
        p->target = newTarget();
        if (p->target < 0) {
            p->kind = Kind::Search;
            ++lostGiveOuts;
        }
    }
    std::vector<int> spares;
    for (int i = 0; i < args.persons / 80 + 2; ++i)
        if (const int t = newTarget(); t >= 0)
            spares.push_back(t);
    if (static_cast<int>(targets.size()) + 50 > args.pairs) {
        std::cerr << "vistrel-soakgen: " << targets.size() << " pairs are to go out: --pairs must be larger\n";
        return 2;
    }
    std::vector<bool> spare(targets.size(), false);
    for (int t : spares)
        spare[static_cast<size_t>(t)] = true;

    // Refusals and cancels take a pair that is surely still there: one of
    // the station's own that goes out later that day, or a spare.
    for (Station& st : stations) {
        std::vector<int> own;
        for (const Person& p : st.persons)
            if (p.target >= 0)
                own.push_back(p.target);
        size_t given = 0;
        for (Person& p : st.persons) {
            if (givesOut(p.kind)) {
                ++given;
            } else if (p.kind == Kind::Reject || p.kind == Kind::Cancel) {
                const size_t later = own.size() - given;
                if (later > 0 && (spares.empty() || d.chance(0.7)))
                    p.target = own[given + static_cast<size_t>(d.below(static_cast<int>(later)))];
                else if (!spares.empty())
                    p.target = spares[static_cast<size_t>(d.below(static_cast<int>(spares.size())))];
                else
                    p.kind = Kind::Search;
            }
            if (p.target < 0) {
                p.measured = drawPair(d);
                // Noise on the measurement: a person isn't a pair.
                for (Eye* e : {&p.measured.left, &p.measured.right})
                    e->sphere += d.between(-2, 2);
            }
            if (p.kind == Kind::WizardCases) {
                // Two dioptres of cylinder or more: the wizard offers to cut it back.
                p.measured.left.cylinder = -d.between(8, 12);
                p.measured.left.axis = drawAxis(d);
            }
            if (p.kind == Kind::SearchReading || (p.kind == Kind::Search && d.chance(0.05)))
                p.reader = d.between(4, 12);
            p.reload = d.chance(1.0 / 400);
        }
        st.plannedReturns = static_cast<int>(st.persons.size()) / 40;
        st.switchedOffAfter = st.persons.size() * static_cast<size_t>(d.between(30, 70)) / 100;
        for (size_t i = 150; i < st.persons.size(); i += 150 + static_cast<size_t>(d.below(100)))
            st.persons[i].report = d.below(6);
    }

    // Saved measurements are counted again by every replay of the network
    // journal, and the table holds 2000: the day keeps well below. A
    // station replays it three times at each start, twice at every refresh
    // (every fifth minute, the listing of the persons for a return, the last
    // refresh) and, where the lists follow every change, after every
    // give-out and return.
    int replays = 0;
    for (const Station& st : stations) {
        int minutes = 0, giveOuts = 0;
        for (const Person& p : st.persons) {
            minutes += p.ticks;
            giveOuts += givesOut(p.kind);
        }
        int n = 3 + 3 + 2 * (minutes / 5) + 2 * st.plannedReturns + 2;
        if (st.refreshOnAddRemove)
            n += 2 * (giveOuts + st.plannedReturns);
        replays = std::max(replays, n);
    }
    const int saveBudget = std::min(args.persons / 30 + 1, 1900 / (replays + 1));
    std::vector<std::pair<size_t, size_t>> candidates; // station, person
    for (size_t s = 0; s < 2; ++s)
        for (size_t i = 0; i < stations[s].persons.size(); ++i)
            if (stations[s].persons[i].target < 0)
                candidates.emplace_back(s, i);
    for (int k = 0; k < saveBudget && !candidates.empty(); ++k) {
        const auto at = static_cast<size_t>(d.below(static_cast<int>(candidates.size())));
        stations[candidates[at].first].persons[candidates[at].second].save = true;
        candidates.erase(candidates.begin() + static_cast<std::ptrdiff_t>(at));
    }

    // The inventory: targets first, then the rest of the stock, then the
    // reading glasses (powers 1.00 to 3.50), lenses and frames.
    std::string inventory;
    for (size_t i = 0; i < targets.size(); ++i)
        inventory += inventoryLine(static_cast<int>(i) + 1, targets[i]) + "\r\n";
    for (int bag = static_cast<int>(targets.size()) + 1; bag <= args.pairs; ++bag)
        inventory += inventoryLine(bag, drawPair(d)) + "\r\n";
    std::vector<int> readersInStock(20, 0);
    for (int cell = 4; cell <= 14; ++cell) {
        readersInStock[static_cast<size_t>(cell)] = d.between(2, 25);
        inventory += "READING," + text(cell) + "," + std::to_string(readersInStock[static_cast<size_t>(cell)]) + "\r\n";
    }
    for (const char* lens : {"LENS,-1.00,0.00", "LENS,-2.00,-0.50", "LENS,1.50,0.00", "LENSCHILD,-0.75,0.00"})
        inventory += std::string(lens) + "," + std::to_string(d.between(1, 9)) + "\r\n";
    for (const char* frames : {"FRAMES,65", "FRAMES,70", "FRAMESCHILD,57"})
        inventory += std::string(frames) + "," + std::to_string(d.between(2, 15)) + "\r\n";
    write(args.out / "inventory.txt", inventory);

    // The restart's script: a fresh start and the dump that ends every day.
    Script restart;
    restart.line("start");
    restart.line("print Frm_Vistrel.FirstLoad");
    dump(restart, args.pairs);
    write(args.out / "restart.vs", restart.str());

    std::string figures = "seed " + std::to_string(args.seed) + "\npersons " + std::to_string(args.persons) + "\npairs "
        + std::to_string(args.pairs) + "\ntargets " + std::to_string(targets.size()) + "\nspares "
        + std::to_string(spares.size()) + "\nsave_budget " + std::to_string(saveBudget) + "\nreplays_at_most "
        + std::to_string(replays) + "\nlost_give_outs " + std::to_string(lostGiveOuts) + "\n";

    for (size_t s = 0; s < 2; ++s) {
        const Station& st = stations[s];
        const Station& other = stations[1 - s];
        const fs::path dir = args.out / st.name;
        write(dir / "docs" / "Vistrel" / "Total_Inventory.txt", inventory);
        // The options of a mission station: the demo's, with prints off,
        // automatic searches on typing and on a reading, the network journal
        // on, and the station's autorefractor on port 1.
        write(dir / "shared" / "Application Data" / "Vistrel" / "Vistrel-Options.txt",
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO," + std::string(st.refreshOnAddRemove ? "YES" : "NO") + ",YES," + st.model
                + ", "
                  "1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,100,101,2.50,102,103,2.50,104,105,2.50,"
                  "NO,YES,NO,YES,NO,NO,35,NO,NO,YES,YES,"
                + args.network + ",1,Default,1,32000\r\n");

        std::vector<Script> parts(1);
        std::string plan;
        std::vector<int> refusals(targets.size());
        for (size_t t = 0; t < targets.size(); ++t)
            refusals[t] = targets[t].rejects;
        std::vector<int> readers = readersInStock;
        int given = 0, returned = 0, ticks = 0, rejects = 0, cancels = 0, saves = 0, captures = 0, reports = 0;
        int handed = 0, reloads = 0;
        std::vector<bool> changedSinceStart(20, false);
        // Each run of the driver starts the station and says so; the gate's
        // print is made once, so that what it takes is in the heap before the
        // first look at the station's memory.
        auto startStation = [](Script& sc) {
            sc.line("start");
            sc.line("print Frm_Vistrel.InventoryCount");
            sc.line("print Frm_Vistrel.Lst_RightInventory");
        };
        startStation(parts.back());
        for (size_t i = 0; i < st.persons.size(); ++i) {
            if (i > 0 && i == st.switchedOffAfter) {
                // The station is switched off (its reading glasses saved) and
                // on again: it replays its journals and serves on. The grid's
                // counts start again from the inventory.
                parts.back().line("click Frm_ReadingGlasses.Cmd_SaveCells");
                parts.back().line("click Frm_Vistrel.Cmd_CloseProgram");
                parts.emplace_back();
                startStation(parts.back());
                readers = readersInStock;
                changedSinceStart.assign(20, false);
            }
            Script& sc = parts.back();
            const Person& p = st.persons[i];
            const bool hasTarget = p.target >= 0;
            const Pair& pair = hasTarget ? targets[static_cast<size_t>(p.target)] : p.measured;
            sc.line("click Frm_Vistrel.Cmd_CalculateDataClear");
            sc.set("Frm_Vistrel.Txt_PersonNumber", std::to_string(p.number));
            sc.line("print Frm_Vistrel.Txt_PersonNumber");
            const bool serial = p.kind == Kind::GiveSerial || p.kind == Kind::SearchSerial;
            if (serial) {
                // The capture sets both adds from the age chart: an age is
                // typed only when the chart gives the pair's add.
                const int age = ageForAdd(d, pair.left.add);
                if (age > 0 && (p.kind == Kind::SearchSerial || pair.left.add == pair.right.add))
                    sc.set("Frm_Vistrel.Txt_Age", std::to_string(age));
                if (hasTarget)
                    chooseOptions(sc, d, pair);
                sc.line("serial " + serialMessage(st.model, pair));
                sc.line("tick Frm_Autorefractor.Tmr_CountDataFlow 30");
                ++captures;
            } else {
                if (d.chance(0.8))
                    sc.set("Frm_Vistrel.Txt_Age", std::to_string(d.between(8, 85)));
                if (p.kind == Kind::SearchBlind) {
                    const bool left = d.chance(0.5);
                    sc.line(std::string("check Frm_Vistrel.Chk_Blind") + (left ? "Left" : "Right") + " 1");
                    typeEyes(sc, pair, !left, left);
                } else if (p.kind == Kind::SearchReading) {
                    sc.line("check Frm_Vistrel.Chk_OnlyBifocals 1");
                    Pair reader = pair;
                    reader.left.add = reader.right.add = d.between(4, 12);
                    typeEyes(sc, reader, true, true);
                    typeAdds(sc, reader);
                } else {
                    typeEyes(sc, pair, true, true);
                    typeAdds(sc, pair);
                }
                if (hasTarget)
                    chooseOptions(sc, d, pair);
                else if (d.chance(0.3))
                    sc.line(std::string("select Frm_Vistrel.") + (d.chance(0.5) ? "Opt_Female" : "Opt_Male"));
                if (p.kind == Kind::GiveWizard || p.kind == Kind::WizardCases) {
                    sc.line("stay Frm_Advisor");
                    sc.line("click Frm_Vistrel.Cmd_RunAdvisor");
                    if (d.chance(0.3)) {
                        sc.line("click Frm_Advisor.Cmd_Help");
                        sc.line("click Frm_Advisor.Cmd_Help");
                    }
                    if (p.kind == Kind::GiveWizard) {
                        // Wider tolerances find more, and the pair still first.
                        static const char* const wider[] = {"15", "2", "25", "3", "4"};
                        sc.line(std::string("click Frm_Advisor.Opt_Left") + wider[d.below(5)]);
                        sc.line(std::string("click Frm_Advisor.Opt_Right") + wider[d.below(5)]);
                    } else {
                        sc.line("click Frm_Advisor.Chk_Case3_Left");
                        // And a hand on the powers, then back to the reading.
                        if (d.chance(0.4)) {
                            static const char* const steps[]
                                = {"Cmd_SphereLeftUp", "Cmd_CylinderLeftDown", "Cmd_AddLeftUp", "Cmd_AddRightUp"};
                            sc.line(std::string("click Frm_Advisor.") + steps[d.below(4)]);
                            sc.line("click Frm_Advisor.Cmd_RestoreLeft");
                        }
                    }
                    sc.line("click Frm_Advisor.Cmd_Exit");
                } else {
                    sc.line("click Frm_Vistrel.Cmd_Search");
                    if (!hasTarget && d.chance(0.25)) {
                        // Nothing close enough: wider tolerances, a turn of the
                        // screen to show the person, and back to the default.
                        static const char* const presets[] = {"Cmd_2DefTimes2", "Cmd_MAX", "CMD_2DefDev2"};
                        sc.line(std::string("click Frm_Vistrel.") + presets[d.below(3)]);
                        sc.line("click Frm_Vistrel.Cmd_Search");
                        if (d.chance(0.4)) {
                            sc.line("click Frm_Vistrel.Cmd_Flip");
                            sc.line("click Frm_Vistrel.Cmd_Flip");
                        }
                        sc.line("click Frm_Vistrel.Cmd_Default");
                    }
                }
            }
            if (hasTarget) {
                const std::string index = std::to_string(p.target + 1);
                if (givesOut(p.kind)) {
                    if (d.chance(0.5))
                        sc.line("click Frm_Vistrel.Cmd_PrintList");
                    sc.line("answer Frm_RemoveRejectInventory.Cmd_RemoveInventory");
                    plan += "remove " + index + " " + std::to_string(p.number) + "\n";
                    ++given;
                } else if (p.kind == Kind::Reject) {
                    // A pair of this station's own has the file's refusals
                    // and this station's; a spare is refused at both.
                    sc.line("answer Frm_RemoveRejectInventory.Cmd_RejectInventory");
                    const int count = ++refusals[static_cast<size_t>(p.target)];
                    plan += "reject " + index + " "
                        + (spare[static_cast<size_t>(p.target)] ? std::string("?") : std::to_string(count)) + "\n";
                    ++rejects;
                } else {
                    sc.line("answer Frm_RemoveRejectInventory.Cmd_Cancel");
                    ++cancels;
                }
                sc.line("click Frm_Vistrel.Lst_LeftSelection 0");
                if (p.kind != Kind::Cancel) {
                    sc.line("print Frm_Vistrel.SelectedIndex");
                    sc.line("print Frm_Vistrel.JournalAddFlag");
                }
            }
            if (!hasTarget && d.chance(0.15)) {
                // The volunteer tries what the screen offers: a cut-back, no
                // equivalents, either sex; the next person's reset undoes it.
                static const char* const tries[]
                    = {"click Frm_Vistrel.Cmd_BothCutBackSearch", "click Frm_Vistrel.Cmd_LeftCutBackSearch",
                        "check Frm_Vistrel.Chk_NOEquiv 1", "select Frm_Vistrel.Opt_EitherMaleFemale"};
                sc.line(tries[d.below(4)]);
            }
            if (d.chance(0.08)) {
                // A bag looked up by its number: the lists move once the typing pauses.
                sc.set("Frm_Vistrel.Txt_InventoryNr", std::to_string(d.between(1, args.pairs)));
                sc.line("tick Frm_Vistrel.Tmr_InventoryMovement 3");
            }
            if (p.reader > 0) {
                // Ready-made reading glasses of the person's add.
                sc.line("click Frm_ReadingGlasses.Txt_NNN(" + std::to_string(p.reader) + ")");
                --readers[static_cast<size_t>(p.reader)];
                changedSinceStart[static_cast<size_t>(p.reader)] = true;
                ++handed;
            }
            if (p.save) {
                sc.line("print Frm_Vistrel.MeasurementsSaved");
                sc.line("answer Frm_SavePrescription.Cmd_Yes");
                sc.line("click Frm_Vistrel.Cmd_PrescriptionSave");
                sc.line("print Frm_Vistrel.MeasurementsSaved");
                plan += "save\n";
                ++saves;
            }
            if (p.report >= 0) {
                static const char* const menu[] = {"DeletedReport", "RejectedReport", "VacantLocationsReport",
                    "DisplayNoMatchMeasurements", "SaveDeletedRejectedInventory", "SaveUNMatchedMeasurementsFile"};
                sc.line(std::string("click Frm_Vistrel.") + menu[p.report]);
                ++reports;
            }
            // Someone brings a pair back: the volunteer lists the persons
            // and clicks a row that is surely there.
            const int surely = given - returned - other.plannedReturns;
            if (returned < st.plannedReturns && surely > 0 && d.chance(0.05)) {
                sc.line("click Frm_Vistrel.Cmd_ListPersons");
                sc.line("answer Frm_RemoveRejectInventory.Cmd_ReturnInventory");
                sc.line("click Frm_Vistrel.Lst_PersonsList " + std::to_string(d.below(surely)));
                sc.line("print Frm_Vistrel.SelectedIndex");
                sc.line("print Frm_Vistrel.JournalAddFlag");
                plan += "return\n";
                ++returned;
            }
            if (p.reload) {
                sc.line("click Frm_Vistrel.Cmd_ClearReload");
                ++reloads;
            }
            // The minutes pass: the person list refreshes every fifth, the
            // stock grids are saved every second.
            for (int t = 0; t < p.ticks; ++t, ++ticks) {
                sc.line("tick Frm_Vistrel.Tmr_RefreshPersonList");
                sc.line("tick Frm_Vistrel.Tmr_SaveInventory 60");
            }
        }
        Script& sc = parts.back();
        // The reading glasses' counts, saved.
        sc.line("click Frm_ReadingGlasses.Cmd_SaveCells");
        std::string stock;
        for (int cell = 0; cell < 20; ++cell) {
            sc.line("print Frm_ReadingGlasses.Txt_NNN(" + std::to_string(cell) + ")");
            stock += std::to_string(cell) + " " + std::to_string(readers[static_cast<size_t>(cell)])
                + (changedSinceStart[static_cast<size_t>(cell)] ? " changed\n" : "\n");
        }
        // The day is over. The gate's output is more than any pipe holds, so
        // that a reader who stops reading holds the station there.
        sc.line("print Frm_Vistrel.VistrelFlag");
        const int gatePrints = 1 + (3 << 19) / ((args.pairs - static_cast<int>(targets.size())) * 40);
        for (int i = 0; i < gatePrints; ++i)
            sc.line("print Frm_Vistrel.Lst_RightInventory");
        sc.line("print Frm_Vistrel.FirstLoad");
        sc.line("click Frm_Vistrel.Cmd_ListPersons");
        sc.line("call Frm_Vistrel.ListInventory");
        dump(sc, args.pairs);
        for (size_t k = 0; k < parts.size(); ++k)
            write(dir / ("part" + std::to_string(k + 1) + ".vs"), parts[k].str());

        const std::string counts = "persons " + std::to_string(st.persons.size()) + "\ngive_outs "
            + std::to_string(given) + "\nrejects " + std::to_string(rejects) + "\ncancels " + std::to_string(cancels)
            + "\nreturns " + std::to_string(returned) + "\nsaves " + std::to_string(saves) + "\ncaptures "
            + std::to_string(captures) + "\nreaders " + std::to_string(handed) + "\nreports " + std::to_string(reports)
            + "\nreloads " + std::to_string(reloads) + "\nminutes " + std::to_string(ticks) + "\nrefresh_on_add_remove "
            + (st.refreshOnAddRemove ? "1" : "0") + "\nswitched_off_after " + std::to_string(st.switchedOffAfter)
            + "\n";
        write(dir / "plan.txt", plan);
        write(dir / "readers.txt", stock);
        write(dir / "counts.txt", counts);
        figures += "\n[" + st.name + "] " + st.model + "\n" + counts;
    }
    write(args.out / "day.txt", figures);
    std::cout << figures;
    return 0;
}
