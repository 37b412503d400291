#include "InventoryLayout.h"

#include "core/FieldReader.h"

#include <algorithm>

namespace vistrel::check {

InventoryLayout::InventoryLayout(std::string_view text) : text_(text)
{
    // Line ends as the reader knows them: CR LF, CR or LF.
    lineStarts_.push_back(0);
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        if (text[i] == '\r' || text[i] == '\n')
            lineStarts_.push_back(i + 1);
    }

    // The fields, exactly as the station reads them: one at a time until the
    // reader is at its end, so an empty text still gives one empty field.
    FieldReader reader;
    reader.openText(text);
    size_t lineCursor = 0;
    do {
        const std::string field = reader.next();
        Field f;
        f.start = reader.fieldStart();
        f.size = static_cast<std::uint32_t>(field.size());
        f.quoted = f.start < text.size() && text[f.start] == '"';
        while (lineCursor + 1 < lineStarts_.size() && lineStarts_[lineCursor + 1] <= f.start)
            ++lineCursor;
        f.line = static_cast<std::uint32_t>(lineCursor + 1);
        fields_.push_back(f);
    } while (!reader.atEnd());

    // Lines group the fields; a quoted field that runs over line ends joins
    // the lines it covers. An empty field at the very end on a line of its
    // own comes from blank lines behind the last record and belongs to none.
    recordOf_.assign(fields_.size(), NoRecord);
    std::uint32_t joinedUpTo = 0;
    for (size_t i = 0; i < fields_.size(); ++i) {
        const Field& f = fields_[i];
        const bool sameRecord = !records_.empty() && f.line <= joinedUpTo;
        if (!sameRecord && f.size == 0 && f.start == text.size() && !f.quoted)
            break;
        if (!sameRecord) {
            records_.push_back({f.line, i, 0});
            joinedUpTo = f.line;
        }
        ++records_.back().count;
        recordOf_[i] = records_.size() - 1;
        if (f.quoted)
            joinedUpTo = std::max(joinedUpTo, lineAt(quoteEnd(i)));
    }
}

std::string_view InventoryLayout::fieldText(size_t i) const
{
    if (i >= fields_.size())
        return {};
    const Field& f = fields_[i];
    return text_.substr(f.start + (f.quoted ? 1 : 0), f.size);
}

bool InventoryLayout::beginsRecord(size_t i) const
{
    const size_t r = recordOf(i);
    return r != NoRecord && records_[r].first == i;
}

std::uint32_t InventoryLayout::lineAt(size_t offset) const
{
    const auto after = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    return static_cast<std::uint32_t>(after - lineStarts_.begin());
}

}  // namespace vistrel::check
