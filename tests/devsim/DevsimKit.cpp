#include "DevsimKit.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace devsim_test {

ExampleFolder::ExampleFolder()
{
    EXPECT_TRUE(dir_.isValid());
}

std::filesystem::path ExampleFolder::root() const
{
    return std::filesystem::path(dir_.path().toStdString());
}

QString ExampleFolder::rootArg() const
{
    return dir_.path();
}

void ExampleFolder::add(const std::string& model, const std::string& file, const std::string& bytes) const
{
    const std::filesystem::path folder = root() / model;
    std::filesystem::create_directories(folder);
    std::ofstream out(folder / file, std::ios::binary);
    out << bytes;
    ASSERT_TRUE(out.good()) << (folder / file);
}

Simulator::Simulator(const QStringList& args)
{
    process_.start(QStringLiteral(DEVSIM_PROGRAM), args);
    EXPECT_TRUE(process_.waitForStarted(10000)) << "cannot start " << DEVSIM_PROGRAM;
}

Simulator::~Simulator()
{
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

void Simulator::collect()
{
    out_ += process_.readAllStandardOutput().toStdString();
    err_ += process_.readAllStandardError().toStdString();
}

int Simulator::finish(std::chrono::milliseconds wait)
{
    if (!process_.waitForFinished(static_cast<int>(wait.count()))) {
        process_.kill();
        process_.waitForFinished(5000);
        collect();
        return -1;
    }
    collect();
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

std::string Simulator::firstLine(std::chrono::milliseconds wait)
{
    const Clock::time_point until = Clock::now() + wait;
    while (out_.find('\n') == std::string::npos && Clock::now() < until) {
        process_.waitForReadyRead(100);
        collect();
    }
    return out_.substr(0, out_.find('\n'));
}

SimRun runSimulator(const QStringList& args, std::chrono::milliseconds wait)
{
    Simulator sim(args);
    SimRun run;
    run.exitCode = sim.finish(wait);
    run.out = sim.out();
    run.err = sim.err();
    return run;
}

#if defined(__unix__) || defined(__APPLE__)

namespace {

std::vector<Arrival> receiveFrom(int fd, size_t count, std::chrono::milliseconds wait)
{
    std::vector<Arrival> got;
    size_t total = 0;
    const Clock::time_point until = Clock::now() + wait;
    while (total < count) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - Clock::now());
        if (left.count() <= 0)
            break;
        pollfd p{fd, POLLIN, 0};
        if (::poll(&p, 1, static_cast<int>(left.count())) <= 0)
            continue;
        if (!(p.revents & POLLIN)) {
            // The simulator has not opened its end yet.
            std::this_thread::sleep_for(10ms);
            continue;
        }
        char buffer[512];
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n <= 0)
            break;
        got.push_back({Clock::now(), std::string(buffer, static_cast<size_t>(n))});
        total += static_cast<size_t>(n);
    }
    return got;
}

void makeRaw(int fd)
{
    termios t{};
    if (::tcgetattr(fd, &t) == 0) {
        cfmakeraw(&t);
        ::tcsetattr(fd, TCSANOW, &t);
    }
}

}  // namespace

std::string joined(const std::vector<Arrival>& arrivals)
{
    std::string all;
    for (const Arrival& a : arrivals)
        all += a.bytes;
    return all;
}

StationEnd::StationEnd()
{
    master_ = posix_openpt(O_RDWR | O_NOCTTY);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
        ADD_FAILURE() << "no pseudo-terminal";
        return;
    }
    path_ = ptsname(master_);
    makeRaw(master_);
}

StationEnd::~StationEnd()
{
    if (master_ >= 0)
        ::close(master_);
}

void StationEnd::send(const std::string& bytes) const
{
    ASSERT_EQ(::write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
}

std::vector<Arrival> StationEnd::receive(size_t count, std::chrono::milliseconds wait) const
{
    return receiveFrom(master_, count, wait);
}

std::string StationEnd::receiveFor(std::chrono::milliseconds wait) const
{
    return joined(receiveFrom(master_, SIZE_MAX, wait));
}

StationOpening::StationOpening(const std::string& path)
{
    fd_ = ::open(path.c_str(), O_RDWR | O_NOCTTY);
    if (fd_ >= 0)
        makeRaw(fd_);
}

StationOpening::~StationOpening()
{
    if (fd_ >= 0)
        ::close(fd_);
}

std::vector<Arrival> StationOpening::receive(size_t count, std::chrono::milliseconds wait) const
{
    return receiveFrom(fd_, count, wait);
}

#endif

}  // namespace devsim_test

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
