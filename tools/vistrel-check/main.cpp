// vistrel-check: checks an inventory file before a mission, reading it as
// the station does, and tells what the station would get wrong without a
// word. Exit status 0 when clean, 1 with findings, 2 for a usage error or a
// file that can't be read.

#include "InventoryCheck.h"
#include "platform/FileSystem.h"
#include "platform/ProgramStart.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

const char* const Usage = "usage: vistrel-check [--highest N] FILE...\n";

const char* const Help = "Checks \"Total_Inventory.txt\" before a mission. The file is read with the\n"
                         "station's own reader, and everything the station would read otherwise than\n"
                         "it is written is told, one finding a line as FILE:LINE: message:\n"
                         "\n"
                         "  - short and long records (line ends separate fields as commas do, so the\n"
                         "    fields behind them move): which fields moved, what the station reads\n"
                         "    instead, and how far the reading stays out of step; a record that runs\n"
                         "    on over whole lines is read whole, but a record of its own there is lost\n"
                         "  - commas in comments that are not in double quotes, double quotes that\n"
                         "    run over line ends or are never closed, a UTF-8 byte order mark, blank\n"
                         "    lines at the end, FRAMES sizes the station drops\n"
                         "  - stock records (READING, LENS, FRAMES) before pair records, and the pairs\n"
                         "    that then fall out of the station's lists and searches\n"
                         "  - bag numbers given twice, bag numbers that are no number, 0, below 1,\n"
                         "    not whole, above 32000, or above the highest inventory number (where\n"
                         "    the station stops reading); more than 32000 records\n"
                         "  - spheres and cylinders off the 0.25 step, spheres beyond -20.00 to\n"
                         "    +20.00, positive cylinders, cylinders below -10.00, axes outside 0 to\n"
                         "    180 or not whole, adds off the 0.25 step or outside 0.00 to 4.00, flags\n"
                         "    and prescription values that are no number\n"
                         "  - field 16 values that are no gender code: 0 either, 1 F, 2 M, 3 child,\n"
                         "    plus 10 for each rejection (so 21 is F with two rejections)\n"
                         "  - READING powers, LENS spheres and cylinders that have no cell, whose\n"
                         "    quantity overwrites another count\n"
                         "\n"
                         "options:\n"
                         "  --highest N   the station's highest inventory number (its option\n"
                         "                Txt_HighestInventoryNumber), 32000 unless given\n"
                         "  -h, --help    this text\n"
                         "\n"
                         "Each file ends with a summary line. Exit status: 0 no findings, 1 findings,\n"
                         "2 a usage error or a file that can't be read.\n";

bool readWhole(const std::string& path, std::string& text)
{
    std::error_code ec;
    if (std::filesystem::is_directory(vistrel::FsPath(path), ec))
        return false;
    std::FILE* f = vistrel::OpenFile(path, "rb");
    if (!f)
        return false;
    char buffer[1 << 16];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, f)) > 0)
        text.append(buffer, n);
    const bool ok = !std::ferror(f);
    std::fclose(f);
    return ok;
}

// A whole number of 2 or more: the station takes 1 or less as 32000.
bool parseHighest(const std::string& text, double& highest)
{
    long value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size() || value < 2)
        return false;
    highest = static_cast<double>(value);
    return true;
}

int usageError(const std::string& why)
{
    std::cerr << "vistrel-check: " << why << "\n" << Usage;
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    vistrel::UseBinaryStandardStreams();
    const std::vector<std::string> args = vistrel::ProgramArguments(argc, argv);
    vistrel::check::CheckOptions options;
    std::vector<std::string> files;
    bool optionsDone = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (optionsDone || arg.empty() || arg[0] != '-' || arg == "-") {
            files.push_back(arg);
        } else if (arg == "--") {
            optionsDone = true;
        } else if (arg == "-h" || arg == "--help") {
            std::cout << Usage << "\n" << Help;
            return 0;
        } else if (arg == "--highest" || arg.rfind("--highest=", 0) == 0) {
            std::string value;
            if (arg == "--highest") {
                if (i + 1 >= args.size())
                    return usageError("--highest needs a number");
                value = args[++i];
            } else {
                value = arg.substr(10);
            }
            if (!parseHighest(value, options.highest))
                return usageError("--highest needs a whole number of 2 or more, not \"" + value + "\"");
        } else {
            return usageError("unknown option " + arg);
        }
    }
    if (files.empty())
        return usageError("no inventory file given");

    int status = 0;
    for (const std::string& path : files) {
        std::string text;
        if (!readWhole(path, text)) {
            std::cerr << "vistrel-check: cannot read " << path << "\n";
            status = 2;
            continue;
        }
        const auto result = vistrel::check::CheckInventory(text, options);
        std::cout << vistrel::check::FormatReport(path, result);
        if (!result.findings.empty() && status == 0)
            status = 1;
    }
    std::cout.flush();
    return status;
}
