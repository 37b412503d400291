// vistrel-devsim: plays an autorefractor's example readings into a serial
// port or a pseudo-terminal and answers the station as the device does, to
// try the station and train volunteers without the instrument.

#include "CaseLibrary.h"
#include "DeviceModel.h"
#include "Player.h"
#include "PtyLine.h"
#include "SerialLine.h"
#include "SimOptions.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>

using namespace vistrel::devsim;
namespace fs = std::filesystem;

namespace {

#ifndef VISTREL_DEVSIM_SOURCE_DATA
#define VISTREL_DEVSIM_SOURCE_DATA ""
#endif
#ifndef VISTREL_DEVSIM_VERSION
#define VISTREL_DEVSIM_VERSION "unknown"
#endif

constexpr int exitProblem = 1;
constexpr int exitUsage = 2;
constexpr int exitStationMissed = 3;

std::string dialogueText(Dialogue d)
{
    switch (d) {
    case Dialogue::RequestToSend: return "sends its result when asked";
    case Dialogue::AcknowledgeLines: return "waits for ACK after each line";
    case Dialogue::None: break;
    }
    return "";
}

void listModels()
{
    const auto row = [](std::string_view a, std::string_view b, std::string_view c, std::string_view d,
                         std::string_view e) {
        char text[160];
        std::snprintf(text, sizeof text, "%-15.*s %-22.*s %-22.*s %-11.*s %.*s", static_cast<int>(a.size()), a.data(),
            static_cast<int>(b.size()), b.data(), static_cast<int>(c.size()), c.data(), static_cast<int>(d.size()),
            d.data(), static_cast<int>(e.size()), e.data());
        std::string line = text;
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    };
    row("MODEL", "DEVICE", "STATION'S OPTION", "LINE", "DIALOGUE");
    for (const DeviceModel& m : deviceModels())
        row(m.folder, m.name, m.stationType, m.settings, dialogueText(m.dialogue));
}

void listCases(const std::vector<DeviceCase>& cases, const fs::path& folder)
{
    std::cout << folder.string() << ":\n";
    for (const DeviceCase& c : cases) {
        std::cout << "  " << c.name;
        if (!c.problem.empty())
            std::cout << "  (can't be played: " << c.problem << ")";
        else {
            std::cout << "  " << c.transmissions.size() << (c.transmissions.size() == 1 ? " transmission" : " transmissions");
            std::cout << ", check " << (c.expected.found ? (c.expected.check.empty() ? "?" : c.expected.check)
                                                         : "unknown (no .expected)");
            if (!c.meantToPass())
                std::cout << ", sent with --all-cases or --case";
        }
        std::cout << '\n';
    }
}

// The examples to play, in order; nullopt after reporting why there are none.
std::optional<std::vector<const DeviceCase*>> chooseCases(const SimOptions& o, const std::vector<DeviceCase>& cases,
    const fs::path& folder, int& exitCode)
{
    std::vector<const DeviceCase*> chosen;
    if (!o.cases.empty()) {
        for (const std::string& name : o.cases) {
            const auto it = std::find_if(cases.begin(), cases.end(), [&](const DeviceCase& c) { return c.name == name; });
            if (it == cases.end()) {
                std::string names;
                for (const DeviceCase& c : cases)
                    names += (names.empty() ? "" : ", ") + c.name;
                std::cerr << "vistrel-devsim: no example \"" << name << "\" in " << folder.string()
                          << (names.empty() ? std::string() : "; there are " + names) << '\n';
                exitCode = exitUsage;
                return std::nullopt;
            }
            if (!it->problem.empty()) {
                std::cerr << "vistrel-devsim: example \"" << name << "\" can't be played: " << it->problem << '\n';
                exitCode = exitProblem;
                return std::nullopt;
            }
            chosen.push_back(&*it);
        }
        return chosen;
    }
    for (const DeviceCase& c : cases) {
        if (!c.problem.empty())
            std::cerr << "vistrel-devsim: passing over example \"" << c.name << "\": " << c.problem << '\n';
        else if (o.allCases || c.meantToPass())
            chosen.push_back(&c);
    }
    if (chosen.empty()) {
        std::cerr << "vistrel-devsim: no examples to send in " << folder.string()
                  << (o.allCases ? "" : " (only those the station should take are sent; --all-cases sends the rest)")
                  << '\n';
        exitCode = exitProblem;
        return std::nullopt;
    }
    return chosen;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::vector<std::string> args;
    const QStringList arguments = QCoreApplication::arguments();
    for (qsizetype i = 1; i < arguments.size(); ++i)
        args.push_back(arguments[i].toStdString());

    SimOptions o;
    try {
        o = parseSimOptions(args);
    } catch (const std::invalid_argument& e) {
        std::cerr << "vistrel-devsim: " << e.what() << '\n' << usageLines() << "Try vistrel-devsim --help.\n";
        return exitUsage;
    }
    if (o.help) {
        std::cout << usageText();
        return 0;
    }
    if (o.version) {
        std::cout << "vistrel-devsim " << VISTREL_DEVSIM_VERSION << '\n';
        return 0;
    }
    if (o.listModels) {
        listModels();
        return 0;
    }

    const DeviceModel& model = *o.model;
    const std::vector<fs::path> candidates = dataFolderCandidates(
        o.dataFolder ? std::optional<fs::path>(fs::path(*o.dataFolder)) : std::nullopt,
        fs::path(QCoreApplication::applicationDirPath().toStdString()), fs::path(VISTREL_DEVSIM_SOURCE_DATA));
    const std::optional<fs::path> folder = findModelFolder(candidates, model.folder);
    if (!folder) {
        std::cerr << "vistrel-devsim: no examples for " << model.folder << "; looked for a folder \"" << model.folder
                  << "\" in:\n";
        for (const fs::path& c : candidates)
            std::cerr << "  " << c.string() << '\n';
        return exitProblem;
    }
    const std::vector<DeviceCase> cases = loadCases(*folder, model.dialogue != Dialogue::None);
    if (o.listCases) {
        listCases(cases, *folder);
        return 0;
    }
    int exitCode = 0;
    const std::optional<std::vector<const DeviceCase*>> chosen = chooseCases(o, cases, *folder, exitCode);
    if (!chosen)
        return exitCode;

    const LineSettings settings = o.settings.value_or(*parseLineSettings(model.settings));
    std::string error, warning;
    std::unique_ptr<Line> line;
    if (o.pty)
        line = PtyLine::create(error);
    else
        line = SerialLine::open(*o.port, settings, error, warning);
    if (!line) {
        std::cerr << "vistrel-devsim: " << error << '\n';
        return exitProblem;
    }
    if (!warning.empty() && o.verbosity != Verbosity::Quiet)
        std::cerr << "vistrel-devsim: " << warning << "; going on\n";
    if (o.pty) {
        // The path alone on the first line, for whoever starts the station.
        std::cout << line->name() << std::endl;
        if (o.verbosity != Verbosity::Quiet)
            std::cout << "Start the station with VISTREL_COM1=" << line->name()
                      << " and port 1 in its options; autorefractor: " << model.name << " (\"" << model.stationType
                      << "\")" << std::endl;
    } else if (o.verbosity != Verbosity::Quiet) {
        std::cout << model.name << " on " << line->name() << " at " << formatLineSettings(settings) << std::endl;
    }

    PlaySettings play;
    play.chunkBytes = o.chunkBytes;
    play.chunkGap = o.chunkGap;
    play.interval = o.interval.value_or(defaultInterval(model));
    play.replyTimeout = o.replyTimeout;
    play.repeat = o.repeat;
    play.interactive = o.interactive;
    play.verbosity = o.verbosity;
    Player player(*line, model, play, std::cout, std::cerr, std::cin);
    const PlaySummary summary = player.play(*chosen);

    if (summary.lineFailed) {
        std::cerr << "vistrel-devsim: " << (summary.lineError.empty() ? "the line failed" : summary.lineError) << '\n';
        return exitProblem;
    }
    if (o.verbosity != Verbosity::Quiet) {
        std::cout << "played " << summary.readings << (summary.readings == 1 ? " reading" : " readings") << "; "
                  << (summary.problems == 0 ? std::string("the station answered as the examples expect")
                                            : std::to_string(summary.problems)
                              + (summary.problems == 1 ? " problem" : " problems") + " with the station's answers")
                  << std::endl;
    }
    return summary.problems == 0 ? 0 : exitStationMissed;
}
