#pragma once

#include <cstdio>
#include <string>

namespace vistrel {

// Reads a text file field by field: commas and line ends both end a field,
// a field that begins with a double quote runs to the next one, blanks and
// line ends before a field are skipped and blanks behind it dropped. A line
// end straight after a comma still ends a field, an empty one: so a record
// may end in empty fields, and only whole blank lines are skipped.
class FieldReader {
public:
    FieldReader() = default;
    ~FieldReader();
    FieldReader(const FieldReader&) = delete;
    FieldReader& operator=(const FieldReader&) = delete;

    bool open(const std::string& path);
    void close();
    bool isOpen() const { return file_ != nullptr; }

    // The next field; empty at the end of the file.
    std::string next();
    // No characters are left.
    bool atEnd();

private:
    int peek();
    bool fill();
    // Steps over what stands before a field; gives the first character of
    // the field (or its delimiter), not taken, or EOF.
    int skipToField();
    // Appends characters up to, not including, the first of the stops; the
    // field is copied a buffer's span at a time, not character by character.
    template <typename Stop>
    void appendUntil(std::string* field, Stop isStop);
    void takeDelimiter();

    std::FILE* file_ = nullptr;
    bool afterComma_ = false;  // the last field ended with a comma
    char buffer_[1 << 16];
    size_t pos_ = 0;
    size_t len_ = 0;
};

}  // namespace vistrel
