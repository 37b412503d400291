#include "AppendFile.h"

#include <cerrno>
#include <cstring>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <chrono>
#include <thread>

namespace vistrel {

namespace {

// How long an append waits for another station's lock before it writes
// anyway: a stuck lock must not stop the station from recording.
constexpr int kLockTries = 40;
constexpr auto kLockPause = std::chrono::milliseconds(25);

#ifdef _WIN32
std::wstring widePath(const std::string& path)
{
    if (path.empty())
        return {};
    const int n = MultiByteToWideChar(CP_UTF8, 0, path.data(), static_cast<int>(path.size()), nullptr, 0);
    std::wstring wide(static_cast<size_t>(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, path.data(), static_cast<int>(path.size()), wide.data(), n);
    return wide;
}

std::string lastErrorText()
{
    const DWORD code = GetLastError();
    char buffer[512] = {};
    const DWORD n = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
        buffer, sizeof buffer, nullptr);
    std::string text(buffer, n);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == '.'))
        text.pop_back();
    return text.empty() ? "error " + std::to_string(code) : text;
}
#endif

}  // namespace

AppendFile::~AppendFile()
{
    close();
}

// Another writer's line may be half written at the moment of the look,
// unless we hold the lock or no one else writes.
bool AppendFile::mayCloseTail(bool locked) const
{
    return options_.closeTornTail && (locked || !options_.lockAgainstOtherWriters);
}

void AppendFile::fail(const char* what)
{
    failed_ = true;
#ifdef _WIN32
    error_ = std::string(what) + ": " + lastErrorText();
#else
    error_ = std::string(what) + ": " + std::strerror(errno);
#endif
}

#ifdef _WIN32

bool AppendFile::isOpen() const
{
    return handle_ != nullptr;
}

bool AppendFile::open(const std::string& path, Options options)
{
    close();
    options_ = options;
    path_ = path;
    failed_ = false;
    error_.clear();
    needsLineEnd_ = false;
    // Append-only access: every write lands at the end of the file, also
    // on a shared folder written by other stations.
    HANDLE h = CreateFileW(widePath(path).c_str(), FILE_APPEND_DATA | FILE_READ_DATA | SYNCHRONIZE,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE) {
        fail("cannot open the file");
        return false;
    }
    handle_ = h;
    bool locked = false;
    if (options_.lockAgainstOtherWriters) {
        OVERLAPPED whole{};
        for (int i = 0; i < kLockTries && !locked; ++i) {
            locked = LockFileEx(h, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD, MAXDWORD, &whole);
            if (!locked)
                std::this_thread::sleep_for(kLockPause);
        }
    }
    LARGE_INTEGER size{};
    if (mayCloseTail(locked) && GetFileSizeEx(h, &size) && size.QuadPart > 0) {
        OVERLAPPED at{};
        const unsigned long long last = static_cast<unsigned long long>(size.QuadPart - 1);
        at.Offset = static_cast<DWORD>(last & 0xffffffffu);
        at.OffsetHigh = static_cast<DWORD>(last >> 32);
        char c = '\n';
        DWORD got = 0;
        if (ReadFile(h, &c, 1, &got, &at) && got == 1)
            needsLineEnd_ = c != '\n' && c != '\r';
    }
    return true;
}

bool AppendFile::appendLine(std::string_view text)
{
    if (!handle_) {
        failed_ = true;
        return false;
    }
    std::string line;
    line.reserve(text.size() + 4);
    if (needsLineEnd_)
        line += "\r\n";
    line.append(text);
    line += "\r\n";
    DWORD written = 0;
    if (!WriteFile(static_cast<HANDLE>(handle_), line.data(), static_cast<DWORD>(line.size()), &written, nullptr)
        || written != line.size()) {
        fail("cannot write to the file");
        return false;
    }
    needsLineEnd_ = false;
    return true;
}

bool AppendFile::close()
{
    if (!handle_)
        return !failed_;
    HANDLE h = static_cast<HANDLE>(handle_);
    if (options_.syncOnClose && !failed_ && !FlushFileBuffers(h))
        fail("cannot flush the file to the disk");
    CloseHandle(h);
    handle_ = nullptr;
    return !failed_;
}

#else

bool AppendFile::isOpen() const
{
    return fd_ >= 0;
}

bool AppendFile::open(const std::string& path, Options options)
{
    close();
    options_ = options;
    path_ = path;
    failed_ = false;
    error_.clear();
    needsLineEnd_ = false;
    locked_ = false;

    // Read access too, for a look at the last byte; a file that may only be
    // written is appended to without that look.
    bool canRead = true;
    int fd = ::open(path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0 && errno == EACCES) {
        canRead = false;
        fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    }
    if (fd < 0) {
        fail("cannot open the file");
        return false;
    }
    fd_ = fd;

    if (options_.lockAgainstOtherWriters) {
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        for (int i = 0; i < kLockTries && !locked_; ++i) {
            if (::fcntl(fd_, F_SETLK, &lock) == 0)
                locked_ = true;
            else if (errno == EACCES || errno == EAGAIN)
                std::this_thread::sleep_for(kLockPause);
            else
                break;  // no locks on this file system: O_APPEND alone
        }
    }

    struct stat st {};
    if (canRead && mayCloseTail(locked_) && ::fstat(fd_, &st) == 0 && st.st_size > 0) {
        char c = '\n';
        if (::pread(fd_, &c, 1, st.st_size - 1) == 1)
            needsLineEnd_ = c != '\n' && c != '\r';
    }
    return true;
}

bool AppendFile::appendLine(std::string_view text)
{
    if (fd_ < 0) {
        failed_ = true;
        return false;
    }
    std::string line;
    line.reserve(text.size() + 4);
    if (needsLineEnd_)
        line += "\r\n";
    line.append(text);
    line += "\r\n";
    // One write carries the whole line. A short write only happens when the
    // disk is full or a signal ends the process; the rest is still tried,
    // and the next open closes a line left torn.
    const char* data = line.data();
    size_t left = line.size();
    while (left > 0) {
        const ssize_t n = ::write(fd_, data, left);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            fail("cannot write to the file");
            return false;
        }
        data += n;
        left -= static_cast<size_t>(n);
    }
    needsLineEnd_ = false;
    return true;
}

bool AppendFile::close()
{
    if (fd_ < 0)
        return !failed_;
    if (options_.syncOnClose && !failed_) {
        int rc;
        do {
            rc = ::fdatasync(fd_);
        } while (rc != 0 && errno == EINTR);
        // Pipes and some special files can't be synced: they hold nothing to lose.
        if (rc != 0 && errno != EINVAL && errno != EROFS)
            fail("cannot flush the file to the disk");
    }
    if (::close(fd_) != 0 && errno != EINTR && !failed_)
        fail("cannot close the file");
    fd_ = -1;
    locked_ = false;
    return !failed_;
}

#endif

bool AppendFile::appendOneLine(const std::string& path, std::string_view text, Options options, std::string* error)
{
    AppendFile file;
    bool ok = file.open(path, options) && file.appendLine(text);
    ok = file.close() && ok;
    if (!ok && error)
        *error = file.error();
    return ok;
}

}  // namespace vistrel
