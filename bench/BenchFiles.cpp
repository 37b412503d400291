#include "BenchFiles.h"

#include "core/Numbers.h"
#include "journal/JournalRecords.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace vistrel::bench {

namespace {

double quarter(double v)
{
    return std::round(v * 4) / 4;
}

void writeInventory(const std::filesystem::path& file, int pairs)
{
    std::mt19937 rng(20261121);
    std::normal_distribution<double> sphere(-0.75, 3.5);
    std::uniform_int_distribution<int> cylinderSteps(1, 12);
    std::uniform_int_distribution<int> axis(1, 180);
    std::uniform_int_distribution<int> percent(0, 99);
    std::ofstream out(file, std::ios::binary);
    char line[256];
    for (int n = 1; n <= pairs; ++n) {
        const double ls = quarter(sphere(rng));
        const double rs = quarter(ls + (sphere(rng) + 0.75) / 6);
        const int lc = percent(rng) < 40 ? 0 : cylinderSteps(rng);
        const int rc = percent(rng) < 40 ? 0 : cylinderSteps(rng);
        const bool bifocal = percent(rng) < 8;
        const double add = bifocal ? 1.0 + 0.25 * (percent(rng) % 9) : 0;
        std::snprintf(line, sizeof line, "%d,%.2f,%.2f,%d,%.2f,%.2f,%.2f,%d,%.2f,0,0,0,0,%d,M,%d,\"Bag\",\"\",\"\"\r\n",
            n, ls, -0.25 * lc, lc ? axis(rng) : 0, add, rs, -0.25 * rc, rc ? axis(rng) : 0, add, bifocal ? 1 : 0,
            percent(rng) % 4);
        out << line;
    }
}

void writeOptions(const std::filesystem::path& file)
{
    std::ofstream options(file, std::ios::binary);
    options << "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE, 1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,"
               "56,99,2.50,100,101,2.50,102,103,2.50,104,105,2.50,YES,NO,NO,NO,YES,NO,35,NO,NO,YES,NO,"
               "C:\\NetworkJournal,1,Default,1,32000\r\n";
}

// A journal as stations write it: mostly dispensing records (given out,
// taken back, rejected), some saved measurements, a few stock counts.
class JournalWriter {
public:
    JournalWriter(int pairs, int lines, int dispensed) : pairs_(pairs), lines_(lines), dispensed_(dispensed)
    {
        removed_.assign(static_cast<size_t>(pairs) + 1, false);
        person_.assign(static_cast<size_t>(pairs) + 1, 0);
    }

    std::vector<std::string> write()
    {
        // Measurements stay well below the 2000 rows a replay can keep.
        const int measurements = std::min(900, lines_ / 100);
        const int stock = std::min(30, lines_ / 1000);
        // Room at the end to settle the number of pairs out of stock.
        const int settle = std::min(3000, lines_ / 10);
        const int random = lines_ - measurements - stock - settle;
        const int measureEvery = measurements ? random / measurements : 0;
        const int stockEvery = stock ? random / stock : 0;
        for (int k = 0; k < random; ++k) {
            if (measureEvery && k % measureEvery == measureEvery / 2 && measured_ < measurements)
                measurement();
            if (stockEvery && k % stockEvery == stockEvery / 3 && stocked_ < stock)
                stockLine();
            randomDispensing();
        }
        while (measured_ < measurements)
            measurement();
        while (stocked_ < stock)
            stockLine();
        settleDispensed();
        if (static_cast<int>(out_.size()) > lines_)
            throw std::logic_error("journal: too many lines to settle the pairs out of stock");
        // The rest are rejections, which leave a pair in or out as it was.
        while (static_cast<int>(out_.size()) < lines_)
            record(index_(rng_), Str(1 + percent_(rng_) % 3));
        return std::move(out_);
    }

private:
    void record(int index, const std::string& flag)
    {
        MeasuredEye left{quarter(sphere_(rng_)), -0.25 * (percent_(rng_) % 8), static_cast<std::int16_t>(axis_(rng_)),
            0, 0};
        left.sphereEquivalent = left.sphere + left.cylinder / 2;
        MeasuredEye right = left;
        right.sphere = quarter(right.sphere + 0.25 * (percent_(rng_) % 3 - 1));
        right.sphereEquivalent = right.sphere + right.cylinder / 2;
        const auto i = static_cast<size_t>(index);
        if (flag == "True") {
            removed_[i] = true;
            person_[i] = ++lastPerson_;
        } else if (flag == "False") {
            removed_[i] = false;
            person_[i] = 0;
        }
        out_.push_back(DispensingRecord(index, flag, person_[i], left, right));
    }

    void randomDispensing()
    {
        // Tuned so that about the asked share of pairs ends out of stock.
        const int p = percent_(rng_);
        const int index = index_(rng_);
        record(index, p < 20 ? "True" : p < 50 ? "False" : Str(1 + p % 3));
    }

    void measurement()
    {
        ++measured_;
        out_.push_back(MeasurementRecord({"-1.25", "-0.50", "90", "", "-1.50", "-1.00", "-0.25", "85", "", "-1.13"}));
    }

    void stockLine()
    {
        static const char* const kLines[] = {"Reading,1.00,005", "Lens,-1.25,-0.50,003", "Frames,65,004"};
        out_.push_back(kLines[stocked_++ % 3]);
    }

    void settleDispensed()
    {
        int out = 0;
        for (int i = 1; i <= pairs_; ++i)
            out += removed_[static_cast<size_t>(i)] ? 1 : 0;
        for (int i = 1; i <= pairs_ && out != dispensed_; ++i) {
            if (out > dispensed_ && removed_[static_cast<size_t>(i)]) {
                record(i, "False");
                --out;
            } else if (out < dispensed_ && !removed_[static_cast<size_t>(i)]) {
                record(i, "True");
                ++out;
            }
        }
    }

    int pairs_, lines_, dispensed_;
    std::mt19937 rng_{20261122};
    std::uniform_int_distribution<int> index_{1, pairs_};
    std::uniform_int_distribution<int> percent_{0, 99};
    std::uniform_int_distribution<int> axis_{1, 180};
    std::normal_distribution<double> sphere_{-0.75, 3.0};
    std::vector<bool> removed_;
    std::vector<std::int32_t> person_;
    std::int32_t lastPerson_ = 0;
    int measured_ = 0, stocked_ = 0;
    std::vector<std::string> out_;
};

}  // namespace

BenchFolders::BenchFolders(int pairs, int journalLines, int dispensed)
{
    static int made = 0;
    root = std::filesystem::temp_directory_path()
        / ("vistrel-bench-" + std::to_string(::getpid()) + "-" + std::to_string(++made));
    std::filesystem::create_directories(inventoryFile().parent_path());
    std::filesystem::create_directories(optionsFile().parent_path());
    writeInventory(inventoryFile(), pairs);
    writeOptions(optionsFile());
    if (journalLines > 0) {
        std::ofstream journal(journalFile(), std::ios::binary);
        for (const std::string& line : JournalWriter(pairs, journalLines, dispensed).write())
            journal << line << "\r\n";
    }
}

BenchFolders::~BenchFolders()
{
    std::error_code ec;
    std::filesystem::remove_all(root, ec);
}

}  // namespace vistrel::bench
