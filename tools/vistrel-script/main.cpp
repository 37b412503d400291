// vistrel-script: runs the whole station headless from a script of
// statements, for tests and for reproducing what a person did.

#include "DriverOptions.h"
#include "Output.h"
#include "ScriptError.h"
#include "ScriptParser.h"
#include "ScriptPlatform.h"
#include "ScriptRunner.h"
#include "core/Station.h"
#include "platform/FileSystem.h"
#include "platform/ProgramStart.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

using namespace vistrel;
using namespace vistrel::script;

namespace {

constexpr const char* usage =
    "usage: vistrel-script [--documents DIR] [--shared DIR] [--now \"YYYY-MM-DD HH:MM:SS\"] "
    "[--print-to FILE] SCRIPT\n";

std::vector<std::string> readLines(std::istream& in)
{
    std::vector<std::string> lines;
    std::string line;
    while (std::getline(in, line))
        lines.push_back(line);
    return lines;
}

}  // namespace

int main(int argc, char** argv)
{
    UseBinaryStandardStreams();
    DriverOptions options;
    try {
        options = parseDriverOptions(ProgramArguments(argc, argv));
    } catch (const std::invalid_argument& e) {
        std::cerr << "vistrel-script: " << e.what() << '\n' << usage;
        return 2;
    }

    std::vector<std::string> lines;
    if (options.script == "-") {
        lines = readLines(std::cin);
    } else {
        std::ifstream file(FsPath(options.script), std::ios::binary);
        if (!file) {
            std::cerr << "vistrel-script: cannot read " << options.script << '\n';
            return 2;
        }
        lines = readLines(file);
    }

    std::ofstream printFile;
    if (options.printTo) {
        printFile.open(FsPath(*options.printTo), std::ios::binary | std::ios::trunc);
        if (!printFile) {
            std::cerr << "vistrel-script: cannot write " << *options.printTo << '\n';
            return 2;
        }
    }

    Output out(std::cout);
    PlatformSettings settings;
    settings.documentsFolder = options.documents.value_or(defaultDocumentsFolder(EnvironmentVariable));
    settings.sharedFolder = options.shared.value_or(defaultSharedFolder(EnvironmentVariable));
    settings.programFolder = ProgramFolder(argc > 0 ? argv[0] : nullptr);
    settings.frozenNow = options.now;
    ScriptPlatform platform(out, settings);
    platform.textPrinter().setSink(options.printTo ? &printFile : nullptr);

    Station station(platform);
    ScriptRunner runner([&station](const std::string& name) { return station.form(name); }, platform,
        [&station] { station.start(); });

    for (size_t i = 0; i < lines.size(); ++i) {
        const size_t lineNumber = i + 1;
        try {
            if (const std::optional<Statement> statement = parseStatement(lines[i]))
                runner.run(*statement);
        } catch (const ScriptError& e) {
            platform.textPrinter().finish();
            std::cout.flush();
            std::cerr << "script error: line " << lineNumber << ": " << e.what() << '\n';
            return 2;
        } catch (const std::exception& e) {
            platform.textPrinter().finish();
            std::cout.flush();
            std::cerr << "vistrel-script: line " << lineNumber << ": the station failed: " << e.what() << '\n';
            return 1;
        }
    }
    platform.textPrinter().finish();
    std::cout.flush();
    return 0;
}
