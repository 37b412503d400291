#include "BenchStation.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>

namespace vistrel::bench {

QuietPlatform::QuietPlatform(std::filesystem::path root) : root_(std::move(root)) {}

void QuietPlatform::runModal(Form& form)
{
    if (Control* ok = form.control("Cmd_Continue"))
        ok->click();
    if (form.visible())
        form.hide();
}

void QuietPlatform::endProcess()
{
    throw std::runtime_error("the station ended");
}

namespace {

void writeInventory(const std::filesystem::path& file, int pairs)
{
    std::mt19937 rng(20261121);
    std::normal_distribution<double> sphere(-0.75, 3.5);
    std::uniform_int_distribution<int> cylinderSteps(1, 12);
    std::uniform_int_distribution<int> axis(1, 180);
    std::uniform_int_distribution<int> percent(0, 99);
    auto quarter = [](double v) { return std::round(v * 4) / 4; };
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

}  // namespace

BenchStation::BenchStation(int pairs)
{
    root = std::filesystem::temp_directory_path() / ("vistrel-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(root / "docs/Vistrel");
    std::filesystem::create_directories(root / "shared/Application Data/Vistrel");
    writeInventory(root / "docs/Vistrel/Total_Inventory.txt", pairs);
    std::ofstream options(root / "shared/Application Data/Vistrel/Vistrel-Options.txt", std::ios::binary);
    options << "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE, 1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,"
               "56,99,2.50,100,101,2.50,102,103,2.50,104,105,2.50,YES,NO,NO,NO,YES,NO,35,NO,NO,YES,NO,"
               "C:\\NetworkJournal,1,Default,1,32000\r\n";
    options.close();
    platform = std::make_unique<QuietPlatform>(root);
    station = std::make_unique<Station>(*platform);
    station->start();
}

BenchStation::~BenchStation()
{
    station.reset();
    std::error_code ec;
    std::filesystem::remove_all(root, ec);
}

}  // namespace vistrel::bench
