#include "SimOptions.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

namespace vistrel::devsim {

namespace {

bool unixLike()
{
#if defined(__unix__) || defined(__APPLE__)
    return true;
#else
    return false;
#endif
}

int wholeNumber(const std::string& option, const std::string& text, int lowest, int highest)
{
    int value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || end != text.data() + text.size() || value < lowest || value > highest)
        throw std::invalid_argument(option + " wants a whole number from " + std::to_string(lowest) + " to "
            + std::to_string(highest) + ", not \"" + text + "\"");
    return value;
}

std::chrono::milliseconds seconds(const std::string& option, const std::string& text, double lowest, double highest)
{
    double value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || end != text.data() + text.size() || !std::isfinite(value)
        || value < lowest || value > highest) {
        std::string range = std::to_string(static_cast<int>(highest));
        throw std::invalid_argument(option + " wants seconds, " + (lowest > 0 ? "more than 0" : "0") + " to " + range
            + ", not \"" + text + "\"");
    }
    return std::chrono::milliseconds(std::lround(value * 1000));
}

std::string modelNames()
{
    std::string names;
    for (const DeviceModel& m : deviceModels())
        names += (names.empty() ? "" : ", ") + std::string(m.folder);
    return names;
}

}  // namespace

SimOptions parseSimOptions(const std::vector<std::string>& args)
{
    SimOptions o;
    bool quiet = false;
    bool verbose = false;
    for (size_t i = 0; i < args.size(); ++i) {
        std::string a = args[i];
        std::optional<std::string> inlineValue;
        if (a.rfind("--", 0) == 0) {
            if (const size_t eq = a.find('='); eq != std::string::npos) {
                inlineValue = a.substr(eq + 1);
                a.resize(eq);
            }
        }
        const auto valueOf = [&]() -> std::string {
            if (inlineValue)
                return *inlineValue;
            if (i + 1 >= args.size())
                throw std::invalid_argument(a + " needs a value");
            return args[++i];
        };
        const auto flag = [&] {
            if (inlineValue)
                throw std::invalid_argument(a + " takes no value");
            return true;
        };

        if (a == "-h" || a == "--help")
            o.help = flag();
        else if (a == "--version")
            o.version = flag();
        else if (a == "--list-models")
            o.listModels = flag();
        else if (a == "--list-cases")
            o.listCases = flag();
        else if (a == "--model") {
            const std::string name = valueOf();
            o.model = findDeviceModel(name);
            if (!o.model)
                throw std::invalid_argument("no model \"" + name + "\"; the models are " + modelNames());
        } else if (a == "--port") {
            o.port = valueOf();
            if (o.port->empty())
                throw std::invalid_argument("--port wants a port name, such as /dev/ttyUSB0 or COM3");
        } else if (a == "--pty")
            o.pty = flag();
        else if (a == "--settings") {
            const std::string text = valueOf();
            o.settings = parseLineSettings(text);
            if (!o.settings)
                throw std::invalid_argument("--settings wants baud,parity,data bits,stop bits such as 9600,n,8,1, not \""
                    + text + "\"");
        } else if (a == "--data")
            o.dataFolder = valueOf();
        else if (a == "--case")
            o.cases.push_back(valueOf());
        else if (a == "--all-cases")
            o.allCases = flag();
        else if (a == "--repeat")
            o.repeat = wholeNumber(a, valueOf(), 0, 1'000'000);
        else if (a == "--interval")
            o.interval = seconds(a, valueOf(), 0, 3600);
        else if (a == "--interactive")
            o.interactive = flag();
        else if (a == "--chunk")
            o.chunkBytes = wholeNumber(a, valueOf(), 0, 4096);
        else if (a == "--chunk-gap")
            o.chunkGap = std::chrono::milliseconds(
                wholeNumber(a, valueOf(), 0, static_cast<int>(longestChunkGap.count())));
        else if (a == "--reply-timeout") {
            o.replyTimeout = seconds(a, valueOf(), 0, 600);
            if (o.replyTimeout.count() <= 0)
                throw std::invalid_argument("--reply-timeout wants more than 0 seconds");
        } else if (a == "-q" || a == "--quiet")
            quiet = flag();
        else if (a == "-v" || a == "--verbose")
            verbose = flag();
        else if (!a.empty() && a[0] == '-')
            throw std::invalid_argument("unknown option " + a);
        else
            throw std::invalid_argument("unexpected argument \"" + a + "\"");
    }

    if (o.help || o.version || o.listModels)
        return o;
    if (quiet && verbose)
        throw std::invalid_argument("--quiet and --verbose don't go together");
    o.verbosity = quiet ? Verbosity::Quiet : verbose ? Verbosity::Verbose : Verbosity::Normal;
    if (!o.model)
        throw std::invalid_argument("which device? --model is missing (--list-models names them)");
    if (o.listCases)
        return o;
    if (o.port && o.pty)
        throw std::invalid_argument("--port and --pty don't go together");
    if (!o.port && !o.pty)
        throw std::invalid_argument("where to? give --port NAME or --pty");
    if (o.pty && !unixLike())
        throw std::invalid_argument("--pty needs a Unix system; give --port with a serial port");
    return o;
}

std::string usageLines()
{
    return "usage: vistrel-devsim --model MODEL (--port NAME | --pty) [options]\n"
           "       vistrel-devsim --model MODEL --list-cases [--data DIR]\n"
           "       vistrel-devsim --list-models | --help\n";
}

std::string usageText()
{
    return usageLines()
        + "\n"
          "Plays an autorefractor's example readings into a serial port or a\n"
          "pseudo-terminal and answers the station as the device does, so that the\n"
          "station can be tried, and volunteers trained, without the instrument.\n"
          "\n"
          "Device and line:\n"
          "  --model MODEL           the device to play, e.g. canon-rk2 (--list-models)\n"
          "  --port NAME             the serial port to send on: /dev/ttyUSB0, COM3 ...\n"
          "  --pty                   make a pseudo-terminal instead and print its path;\n"
          "                          start the station with VISTREL_COM1=<that path> and\n"
          "                          port 1 in its options (Linux and other Unix systems)\n"
          "  --settings B,P,D,S      the line as the station's options write it, e.g.\n"
          "                          9600,n,8,1 (default: the model's own)\n"
          "\n"
          "Examples:\n"
          "  --data DIR              the folder of example messages, one folder a model\n"
          "                          (default: devices/, ../share/vistrel/devices or\n"
          "                          ../../share/vistrel/devices beside the program,\n"
          "                          then the source tree's)\n"
          "  --case NAME             send only this example, whatever the station is\n"
          "                          meant to make of it; may be given more than once\n"
          "  --all-cases             send the examples the station should refuse as well\n"
          "                          (by default only those it should take)\n"
          "  --list-cases            list the model's examples and end\n"
          "\n"
          "Pace:\n"
          "  --repeat N              play the examples N times, 0 until stopped (1)\n"
          "  --interval SECONDS      pause after each reading, so that the station can\n"
          "                          take it (6 for models the station looks at every\n"
          "                          2 s, 3 for the others)\n"
          "  --interactive           wait for Enter before each reading, for training\n"
          "  --chunk BYTES           bytes a write, a few ms apart, as a device's UART\n"
          "                          gives them; 0 writes a message at once (8)\n"
          "  --chunk-gap MS          the pause between two writes of a message, 0 to 150\n"
          "                          (10)\n"
          "  --reply-timeout SECONDS how long the Canon waits for each ACK and the Marco\n"
          "                          Nidek for the station's request (5); without it the\n"
          "                          device gives up the reading and goes on\n"
          "\n"
          "Output:\n"
          "  -q, --quiet             report problems only\n"
          "  -v, --verbose           show every byte sent (->) and received (<-)\n"
          "  -h, --help              show this text\n"
          "      --version           show the version\n"
          "\n"
          "Exit status: 0 when all went as the examples expect, 1 when the port or the\n"
          "examples can't be used, 2 for a wrong command line, 3 when the station missed\n"
          "a reply or answered other than the examples expect.\n";
}

}  // namespace vistrel::devsim
