#pragma once

#include "FieldReader.h"
#include "platform/AppendFile.h"

#include <map>
#include <memory>
#include <string>

namespace vistrel {

// The pool of numbered file handles the station takes for one job each:
// a handle is opened, used and closed at once; nothing stays open between
// operations. Errors are reported by return value and mostly ignored.
class FileHandles {
public:
    enum class Mode { Input, Output, Append };

    FileHandles() = default;
    FileHandles(const FileHandles&) = delete;
    FileHandles& operator=(const FileHandles&) = delete;

    // The lowest number not in use.
    int freeFile() const;
    bool open(int handle, const std::string& path, Mode mode);
    void close(int handle);
    bool isOpen(int handle) const;

    // Input: the next field, and whether the file is now at its end.
    std::string readField(int handle, bool& atEnd);
    // Output and Append: one line with a carriage return and line feed.
    bool printLine(int handle, const std::string& text);

private:
    struct Handle {
        Mode mode = Mode::Input;
        FieldReader reader;
        std::FILE* out = nullptr;  // Output
        AppendFile appended;       // Append: whole lines, one write each
        ~Handle();
    };
    Handle* find(int handle);

    std::map<int, std::unique_ptr<Handle>> open_;
    // The handle found last: a load reads one handle field after field, and
    // this spares a lookup in the map for each field.
    int lastFound_ = 0;
    Handle* lastFoundHandle_ = nullptr;
};

}  // namespace vistrel
