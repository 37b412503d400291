#include "LayoutCheck.h"

#include "Wording.h"
#include "inventory/StockCells.h"

#include <algorithm>
#include <optional>

namespace vistrel::check {

namespace {

// A record taking more fields than its line has that ends where a line
// ends: the lines behind are its fields.
bool runsOverWholeLines(const InventoryLayout& layout, const StationRecord& sr, size_t r)
{
    const size_t lastRecord = layout.records().size() - 1;
    const size_t fieldsEnd = layout.endOf(lastRecord);
    const size_t end = sr.first + sr.taken;
    return sr.taken > layout.records()[r].count && end <= fieldsEnd && (end == fieldsEnd || layout.beginsRecord(end));
}

std::string values(const InventoryLayout& layout, size_t from, size_t to)
{
    constexpr size_t Shown = 3;
    std::string out;
    for (size_t i = from; i < to && i < from + Shown; ++i)
        out += (i == from ? "" : ", ") + Quoted(layout.fieldText(i));
    if (to - from > Shown)
        out += ", ...";
    return out;
}

std::string describe(const StationRecord& r)
{
    if (r.kind == InventoryRecordKind::Pair)
        return "a pair with bag number " + std::to_string(r.bag);
    return "a " + KindName(r.kind) + " record";
}

bool isFrames(InventoryRecordKind kind)
{
    return kind == InventoryRecordKind::Frames || kind == InventoryRecordKind::FramesChild;
}

// A run of records read out of step: from the record at the cause on to the
// next record that begins where a laid-out record begins.
struct Run {
    size_t cause = 0;  // laid-out record
    size_t misread = 0;
    size_t lastField = 0;
    bool toEnd = true;
};

class LayoutChecker {
public:
    LayoutChecker(const InventoryLayout& layout, const StationReading& reading, Findings& out)
        : layout_(layout), reading_(reading), out_(out), parts_(layout.records().size()),
          counts_(layout.records().size()), continuation_(layout.records().size()), effects_(layout.records().size()),
          outOfStepSince_(layout.records().size()), runs_(layout.records().size())
    {
    }

    void run()
    {
        if (layout_.records().empty()) {
            out_.push_back({1, "the file holds no records: the station loads no pairs"});
            return;
        }
        quotes();
        for (size_t r = 0; r < layout_.records().size(); ++r)
            written(r);
        read();
        for (size_t r = 0; r < layout_.records().size(); ++r)
            emit(r);
    }

private:
    // Quoted fields that run over line ends or are never closed.
    void quotes()
    {
        const auto& fields = layout_.fields();
        for (size_t i = 0; i < fields.size(); ++i) {
            if (!fields[i].quoted)
                continue;
            const std::uint32_t end = layout_.lineAt(layout_.quoteEnd(i) - (layout_.quoteClosed(i) ? 0 : 1));
            if (!layout_.quoteClosed(i)) {
                const std::string reach = end > fields[i].line ? " (to line " + std::to_string(end) + ")" : "";
                parts_[layout_.recordOf(i)].push_back(
                    "a double quote opens a field that is never closed: the station reads the rest of the file" + reach
                    + " as this one field");
            } else if (end > fields[i].line) {
                const std::uint32_t over = end - fields[i].line;
                parts_[layout_.recordOf(i)].push_back("a double quote opens a field that runs over "
                    + std::to_string(over) + (over == 1 ? " line end" : " line ends") + " to line "
                    + std::to_string(end) + ": the station reads the lines between as part of this field");
            }
        }
    }

    // What is wrong with a record as written, whatever the station makes of it.
    void written(size_t r)
    {
        const LaidOutRecord& rec = layout_.records()[r];
        const InventoryRecordKind kind = IntendedKind(layout_, r);
        const size_t n = FieldsOf(kind);
        std::vector<std::string>& parts = parts_[r];
        if (r == 0 && layout_.hasByteOrderMark()) {
            parts.insert(parts.begin(),
                std::string("the file begins with a UTF-8 byte order mark, which the station reads as part of the "
                            "first field")
                    + (kind == InventoryRecordKind::Pair
                            ? ": the bag number reads as 0 and the pair is never listed nor found"
                            : ": " + KindName(kind) + " is no keyword to it and the line is read as a pair")
                    + "; save the file without it");
        }
        if (rec.count < n) {
            counts_[r] = ("short " + KindName(kind) + " record: " + std::to_string(rec.count) + " of "
                + std::to_string(n) + " fields");
        } else if (rec.count > n) {
            if (auto comment = commaInComment(r, kind))
                counts_[r] = *comment;
            else
                counts_[r] = ("long " + KindName(kind) + " record: " + std::to_string(rec.count) + " fields, a "
                    + KindName(kind) + " record has " + std::to_string(n));
        }
        if (isFrames(kind) && rec.count >= 2) {
            const bool child = kind == InventoryRecordKind::FramesChild;
            const std::string_view size = layout_.fieldText(rec.first + 1);
            if (FrameSizeOf(child, std::string(size)) < 0)
                parts.push_back(KindName(kind) + " size " + Quoted(size) + " is none of "
                    + (child ? "57, 61, 65" : "65, 67, 70") + ": the station drops the record");
        }
    }

    // A pair whose unquoted comment was split at its commas.
    std::optional<std::string> commaInComment(size_t r, InventoryRecordKind kind)
    {
        const LaidOutRecord& rec = layout_.records()[r];
        if (kind != InventoryRecordKind::Pair)
            return std::nullopt;
        const size_t first = rec.first + 16;
        const Field& f = layout_.fields()[first];
        const std::string_view text = layout_.fieldText(first);
        const bool wording = std::any_of(text.begin(), text.end(), [](char c) {
            return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
        });
        if (f.quoted || !wording)
            return std::nullopt;
        const Field& last = layout_.fields()[first + (rec.count - 19)];
        const std::string_view comment = layout_.text().substr(f.start, last.start + last.size - f.start);
        return "comment " + Quoted(comment) + " holds a comma but is not in double quotes, so the line has "
            + std::to_string(rec.count) + " fields where a pair has 19: put the comment in double quotes";
    }

    // Walks the records as the station reads them.
    void read()
    {
        std::optional<Run> run;
        auto close = [&](bool toEnd) {
            if (run && run->misread > 0) {
                run->toEnd = toEnd;
                runs_[run->cause] = *run;
            }
            run.reset();
        };
        const auto& records = reading_.records;
        for (size_t k = 0; k < records.size(); ++k) {
            const StationRecord& sr = records[k];
            if (layout_.recordOf(sr.first) == InventoryLayout::NoRecord) {
                blankAtEnd(sr);
                continue;
            }
            if (layout_.beginsRecord(sr.first)) {
                close(false);
                const size_t r = layout_.recordOf(sr.first);
                if (wraps(sr, r)) {
                    wrapped(sr, r);
                } else if (sr.taken != layout_.records()[r].count) {
                    effects_[r] = effect(k, r);
                    run = Run {r, 0, 0, true};
                }
            } else if (run) {
                ++run->misread;
            }
            if (run) {
                run->lastField = std::min(sr.first + sr.taken, realFields()) - 1;
                outOfStepSinceLine(sr, run->cause);
            }
        }
        close(true);
    }

    size_t realFields() const
    {
        const size_t count = layout_.records().size();
        return count ? layout_.endOf(count - 1) : 0;
    }

    // A record that goes on over whole lines: the station reads it whole,
    // and the lines behind are its fields rather than records.
    bool wraps(const StationRecord& sr, size_t r) const { return runsOverWholeLines(layout_, sr, r); }

    void wrapped(const StationRecord& sr, size_t r)
    {
        const size_t m = layout_.records()[r].count;
        const size_t last = layout_.recordOf(sr.first + sr.taken - 1);
        for (size_t c = r + 1; c <= last; ++c)
            continuation_[c] = true;
        const std::string from = std::to_string(layout_.records()[r + 1].line);
        const std::string to = std::to_string(layout_.fields()[sr.first + sr.taken - 1].line);
        const std::string lines = last == r + 1 ? "line " + from : "lines " + from + " to " + to;
        counts_[r] = KindName(sr.kind) + " record runs over lines " + std::to_string(layout_.records()[r].line) + " to "
            + to + ": the station reads " + lines + " as its " + FieldRange(sr.kind, m + 1, sr.taken) + " ("
            + values(layout_, sr.first + m, sr.first + sr.taken) + "); if " + (last == r + 1 ? "" : "one of ") + lines
            + " is a record of its own, it is lost";
    }

    void outOfStepSinceLine(const StationRecord& sr, size_t cause)
    {
        for (size_t i = sr.first + 1; i < sr.first + sr.taken && i < realFields(); ++i)
            if (layout_.beginsRecord(i))
                outOfStepSince_[layout_.recordOf(i)] = cause;
    }

    // Which fields move and what the station reads instead.
    std::string effect(size_t k, size_t r)
    {
        const StationRecord& sr = reading_.records[k];
        const size_t m = layout_.records()[r].count;
        const size_t start = sr.first;
        const StationRecord* next = k + 1 < reading_.records.size() ? &reading_.records[k + 1] : nullptr;
        const bool nextOutOfStep
            = next && !layout_.beginsRecord(next->first) && layout_.recordOf(next->first) != InventoryLayout::NoRecord;
        std::string text;
        if (sr.taken > m) {
            const size_t stolenEnd = std::min(start + sr.taken, realFields());
            const std::string range = FieldRange(sr.kind, m + 1, sr.taken);
            if (stolenEnd <= start + m)
                return "the station reads " + range + " as empty";
            text = "the station fills " + range + " with " + values(layout_, start + m, stolenEnd) + " from line "
                + std::to_string(layout_.fields()[start + m].line);
            if (nextOutOfStep) {
                const size_t at = next->first - layout_.records()[layout_.recordOf(next->first)].first + 1;
                text += ", and the next record starts at field " + std::to_string(at) + " of line "
                    + std::to_string(layout_.fields()[next->first].line) + " (" + Quoted(layout_.fieldText(next->first))
                    + "), read as " + describe(*next);
            }
        } else {
            text = (m - sr.taken == 1 ? "field " + std::to_string(m)
                                      : "fields " + std::to_string(sr.taken + 1) + " to " + std::to_string(m))
                + " (" + values(layout_, start + sr.taken, start + m) + ") " + (m - sr.taken == 1 ? "starts" : "start")
                + " the next record";
            if (next)
                text += ", read as " + describe(*next);
        }
        return text;
    }

    // Blank lines behind the last record give the station one more pair.
    void blankAtEnd(const StationRecord& sr)
    {
        if (layout_.records().empty())
            return;
        const std::uint32_t line = layout_.fields()[sr.first - 1].line + 1;
        out_.push_back({line,
            "blank line at the end of the file: the station reads it as one more pair, with bag "
            "number 0, and counts one pair too many"});
    }

    void emit(size_t r)
    {
        std::vector<std::string> parts = parts_[r];
        if (!counts_[r].empty() && !continuation_[r])
            parts.insert(parts.begin() + (r == 0 && layout_.hasByteOrderMark() ? 1 : 0), counts_[r]);
        const std::optional<Run>& run = runs_[r];
        if (!effects_[r].empty())
            parts.push_back(effects_[r]);
        if (parts.empty())
            return;
        std::string message;
        for (const std::string& p : parts)
            message += (message.empty() ? "" : "; ") + p;
        if (run) {
            const std::string count = std::to_string(run->misread) + (run->misread == 1 ? " record" : " records");
            message += run->toEnd ? "; the reading stays out of step to the end of the file (" + count + " misread)"
                                  : "; the reading stays out of step up to line "
                    + std::to_string(layout_.fields()[run->lastField].line) + " (" + count + " misread)";
        }
        if (outOfStepSince_[r])
            message += " (the reading is out of step here already, since line "
                + std::to_string(layout_.records()[*outOfStepSince_[r]].line) + ")";
        out_.push_back({layout_.records()[r].line, message});
    }

    const InventoryLayout& layout_;
    const StationReading& reading_;
    Findings& out_;
    std::vector<std::vector<std::string>> parts_;
    std::vector<std::string> counts_;  // too few or too many fields, or a record over several lines
    std::vector<bool> continuation_;  // the fields of a record from a line before
    std::vector<std::string> effects_;
    std::vector<std::optional<size_t>> outOfStepSince_;
    std::vector<std::optional<Run>> runs_;  // by the laid-out record that causes them
};

}  // namespace

InventoryRecordKind IntendedKind(const InventoryLayout& layout, size_t record)
{
    std::string_view first = layout.fieldText(layout.records()[record].first);
    if (record == 0 && layout.hasByteOrderMark() && layout.records()[0].first == 0
        && first.substr(0, 3) == "\xEF\xBB\xBF")
        first.remove_prefix(3);
    return InventoryRecordKindOf(std::string(first));
}

size_t FieldsReadAsWritten(const InventoryLayout& layout, const StationRecord& record)
{
    if (!layout.beginsRecord(record.first))
        return 0;
    const size_t r = layout.recordOf(record.first);
    if (IntendedKind(layout, r) != record.kind)
        return 0;
    return runsOverWholeLines(layout, record, r) ? record.taken : std::min(layout.records()[r].count, record.taken);
}

void CheckLayout(const InventoryLayout& layout, const StationReading& reading, Findings& out)
{
    LayoutChecker(layout, reading, out).run();
}

}  // namespace vistrel::check
