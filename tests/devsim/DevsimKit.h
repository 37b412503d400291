#pragma once

// Helpers of the simulator's tests: a folder of examples, the simulator as
// a child process, and (on Unix) a pseudo-terminal whose far end the test
// holds as the station would.

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace devsim_test {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// A data folder of its own, laid out as the simulator reads it:
// <root>/<model>/<file>.
class ExampleFolder {
public:
    ExampleFolder();
    std::filesystem::path root() const;
    QString rootArg() const;
    void add(const std::string& model, const std::string& file, const std::string& bytes) const;

private:
    QTemporaryDir dir_;
};

// The simulator, started with the given arguments.
class Simulator {
public:
    explicit Simulator(const QStringList& args);
    ~Simulator();
    // Waits for the end; -1 when it did not end in time (then it is killed).
    int finish(std::chrono::milliseconds wait = 20s);
    // The first line of its standard output, waiting for it.
    std::string firstLine(std::chrono::milliseconds wait = 10s);
    std::string out() const { return out_; }
    std::string err() const { return err_; }

private:
    void collect();
    QProcess process_;
    std::string out_, err_;
};

// Runs the simulator to its end.
struct SimRun {
    int exitCode = -1;
    std::string out, err;
};
SimRun runSimulator(const QStringList& args, std::chrono::milliseconds wait = 20s);

#if defined(__unix__) || defined(__APPLE__)
// Bytes as they came off the line, with the moment of each read.
struct Arrival {
    Clock::time_point at;
    std::string bytes;
};

std::string joined(const std::vector<Arrival>& arrivals);

// The station's end of a serial line: the master of a pseudo-terminal in
// raw mode; the simulator opens the other end by path, as a serial port.
class StationEnd {
public:
    StationEnd();
    ~StationEnd();
    bool ok() const { return master_ >= 0; }
    QString devicePath() const { return QString::fromStdString(path_); }
    void send(const std::string& bytes) const;
    // Reads until `count` bytes have come or the wait is over.
    std::vector<Arrival> receive(size_t count, std::chrono::milliseconds wait) const;
    // Whatever comes within the wait.
    std::string receiveFor(std::chrono::milliseconds wait) const;

private:
    int master_ = -1;
    std::string path_;
};

// The station opening a path by name, as it opens a serial port.
class StationOpening {
public:
    explicit StationOpening(const std::string& path);
    ~StationOpening();
    bool ok() const { return fd_ >= 0; }
    std::vector<Arrival> receive(size_t count, std::chrono::milliseconds wait) const;

private:
    int fd_ = -1;
};
#endif

}  // namespace devsim_test
