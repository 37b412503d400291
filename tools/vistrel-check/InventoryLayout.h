#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vistrel::check {

// One field as the station's field reader splits the file.
struct Field {
    size_t start = 0;  // byte offset of its first character (the quote of a quoted one)
    std::uint32_t size = 0;
    std::uint32_t line = 0;  // physical line of its first character, from 1
    bool quoted = false;
};

// A record as the file lays it out: the fields of one line, or of several
// lines that a quoted field running over line ends joins into one.
struct LaidOutRecord {
    std::uint32_t line = 0;  // physical line of its first field
    size_t first = 0;  // index of its first field
    size_t count = 0;
};

// The file as written: every field in the order the station reads them,
// and how the lines group them.
class InventoryLayout {
public:
    explicit InventoryLayout(std::string_view text);

    std::string_view text() const { return text_; }
    const std::vector<Field>& fields() const { return fields_; }
    const std::vector<LaidOutRecord>& records() const { return records_; }

    // The text of field i as the station gets it; empty past the end.
    std::string_view fieldText(size_t i) const;
    // The laid-out record that field i belongs to, or NoRecord for the empty
    // field the station reads from blank lines at the very end.
    static constexpr size_t NoRecord = static_cast<size_t>(-1);
    size_t recordOf(size_t i) const { return i < recordOf_.size() ? recordOf_[i] : NoRecord; }
    bool beginsRecord(size_t i) const;
    // One past the last field of laid-out record r.
    size_t endOf(size_t r) const { return records_[r].first + records_[r].count; }

    // The physical line of a byte offset, from 1.
    std::uint32_t lineAt(size_t offset) const;
    // A quoted field: where its closing quote stands, or the end of the text
    // when there is none.
    size_t quoteEnd(size_t i) const { return fields_[i].start + 1 + fields_[i].size; }
    bool quoteClosed(size_t i) const { return quoteEnd(i) < text_.size(); }
    // The text begins with the UTF-8 byte order mark.
    bool hasByteOrderMark() const { return text_.substr(0, 3) == "\xEF\xBB\xBF"; }

private:
    std::string_view text_;
    std::vector<size_t> lineStarts_;
    std::vector<Field> fields_;
    std::vector<size_t> recordOf_;
    std::vector<LaidOutRecord> records_;
};

}  // namespace vistrel::check
