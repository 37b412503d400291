#include "PtyLine.h"

#include <algorithm>
#include <thread>

#if defined(__unix__) || defined(__APPLE__)
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>
#define VISTREL_HAVE_PTY 1
#endif

namespace vistrel::devsim {

#ifdef VISTREL_HAVE_PTY

namespace {

constexpr std::chrono::milliseconds lingerAfterWrite{1000};

std::string systemError(const std::string& what)
{
    return what + ": " + std::strerror(errno);
}

}  // namespace

std::unique_ptr<PtyLine> PtyLine::create(std::string& error)
{
    std::unique_ptr<PtyLine> line(new PtyLine);
    line->master_ = posix_openpt(O_RDWR | O_NOCTTY);
    if (line->master_ < 0) {
        error = systemError("cannot make a pseudo-terminal");
        return nullptr;
    }
    ::fcntl(line->master_, F_SETFD, FD_CLOEXEC);
    if (grantpt(line->master_) != 0 || unlockpt(line->master_) != 0) {
        error = systemError("cannot unlock the pseudo-terminal");
        return nullptr;
    }
    const char* path = ptsname(line->master_);
    if (!path) {
        error = systemError("cannot name the pseudo-terminal");
        return nullptr;
    }
    line->path_ = path;

    // Raw mode on the station's side; it stays when the side is closed, so
    // that the station (or a plain terminal program) gets the bytes as sent.
    const int slave = ::open(path, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave < 0) {
        error = systemError("cannot open " + line->path_);
        return nullptr;
    }
    termios t{};
    const bool raw = ::tcgetattr(slave, &t) == 0 && (cfmakeraw(&t), ::tcsetattr(slave, TCSANOW, &t) == 0);
    if (!raw)
        error = systemError("cannot put " + line->path_ + " in raw mode");
    ::close(slave);
    return raw ? std::move(line) : nullptr;
}

PtyLine::~PtyLine()
{
    if (master_ < 0)
        return;
    // Closing hangs the line up, and the station's side drops what it has
    // not read yet: give it a moment after the last write.
    const auto sinceWrite = std::chrono::steady_clock::now() - lastWrite_;
    if (sinceWrite < lingerAfterWrite)
        std::this_thread::sleep_for(lingerAfterWrite - sinceWrite);
    ::close(master_);
}

Line::State PtyLine::state()
{
    if (!error_.empty())
        return State::Failed;
    pollfd p{master_, POLLIN, 0};
    if (::poll(&p, 1, 0) < 0 && errno != EINTR) {
        error_ = systemError("watching " + path_);
        return State::Failed;
    }
    // The hang-up stands while no program has the station's side open.
    return (p.revents & POLLHUP) ? State::NoStation : State::Ready;
}

bool PtyLine::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(master_, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            error_ = systemError("writing to " + path_);
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(n));
    }
    lastWrite_ = std::chrono::steady_clock::now();
    return true;
}

std::string PtyLine::read(std::chrono::milliseconds wait)
{
    pollfd p{master_, POLLIN, 0};
    const int ready = ::poll(&p, 1, static_cast<int>(std::max<long long>(0, wait.count())));
    if (ready > 0 && (p.revents & POLLIN)) {
        char buffer[1024];
        const ssize_t n = ::read(master_, buffer, sizeof buffer);
        if (n > 0)
            return std::string(buffer, static_cast<size_t>(n));
    }
    if (ready > 0 && (p.revents & POLLHUP)) {
        // Nobody on the other side: poll would return at once, so wait here.
        std::this_thread::sleep_for(std::min(wait, std::chrono::milliseconds(100)));
    }
    return {};
}

#else

std::unique_ptr<PtyLine> PtyLine::create(std::string& error)
{
    error = "pseudo-terminals need a Unix system";
    return nullptr;
}

PtyLine::~PtyLine() = default;

Line::State PtyLine::state()
{
    return State::Failed;
}

bool PtyLine::write(std::string_view)
{
    return false;
}

std::string PtyLine::read(std::chrono::milliseconds wait)
{
    std::this_thread::sleep_for(wait);
    return {};
}

#endif

std::string PtyLine::name() const
{
    return path_;
}

std::string PtyLine::error() const
{
    return error_;
}

}  // namespace vistrel::devsim
