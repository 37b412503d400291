#pragma once

#include <string>
#include <string_view>

namespace vistrel {

// A text file that only ever grows by whole lines. Each line, with its
// carriage return and line feed, reaches the file in one write to a file
// opened for appending (O_APPEND, or append-only access on Windows), so a
// process killed at any moment leaves no torn line and processes appending
// to one file at the same moment never mix their bytes.
//
// A file left by an earlier crash without a line end at its end gets one
// in front of the first new line, so new records never glue onto a torn one.
// The look at the file's end is only sound while no one else appends: it
// is made for a file of one writer, or under the lock.
class AppendFile {
public:
    struct Options {
        // Flush to the disk when closing, so that a record whose append has
        // returned survives a loss of power.
        bool syncOnClose = false;
        // Hold a write lock on the file for the time it is open. Appends on
        // one machine are whole without it; a network file system needs it
        // to serialise the appends of several machines. Waits a little for
        // another writer, then writes without the lock rather than not at all.
        bool lockAgainstOtherWriters = false;
        // Close a line left torn at the file's end. Off for a file that others
        // append to without the lock: their line may be half written when
        // we look, and the line end would then stand alone.
        bool closeTornTail = true;
    };

    AppendFile() = default;
    ~AppendFile();
    AppendFile(const AppendFile&) = delete;
    AppendFile& operator=(const AppendFile&) = delete;

    bool open(const std::string& path, Options options);
    bool open(const std::string& path) { return open(path, Options{}); }
    bool isOpen() const;
    // Appends text and a carriage return and line feed in one write.
    bool appendLine(std::string_view text);
    // Flushes when asked to and closes; false when anything since the open
    // failed, the flush included.
    bool close();

    // What went wrong last, in words for a message box.
    const std::string& error() const { return error_; }

    // Opens, appends one line and closes, flushing when asked to.
    static bool appendOneLine(const std::string& path, std::string_view text, Options options,
        std::string* error = nullptr);

private:
    void fail(const char* what);
    bool mayCloseTail(bool locked) const;

#ifdef _WIN32
    void* handle_ = nullptr;
#else
    int fd_ = -1;
    bool locked_ = false;
#endif
    Options options_;
    bool needsLineEnd_ = false;
    bool failed_ = false;
    std::string path_;
    std::string error_;
};

}  // namespace vistrel
