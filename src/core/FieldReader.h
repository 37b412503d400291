#pragma once

#include <cstdio>
#include <string>
#include <string_view>

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
    // Reads text held in memory instead of a file, field for field as a
    // file of the same bytes; the text must stay as it is while it is read.
    void openText(std::string_view text);
    void close();
    bool isOpen() const { return file_ != nullptr || fromText_; }

    // The next field; empty at the end of the file.
    std::string next();
    // No characters are left.
    bool atEnd();
    // Where the field read last began, in bytes from the start: its first
    // character (the opening quote of a quoted one), the delimiter of an
    // empty one, the end for a field read at the end.
    size_t fieldStart() const { return fieldStart_; }

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
    std::string_view text_;  // openText: what is still to be copied in
    bool fromText_ = false;
    bool afterComma_ = false;  // the last field ended with a comma
    char buffer_[1 << 16];
    size_t pos_ = 0;
    size_t len_ = 0;
    size_t passed_ = 0;  // bytes before the buffer
    size_t fieldStart_ = 0;
};

}  // namespace vistrel
