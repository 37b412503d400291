#include "BagNumbers.h"

#include "LayoutCheck.h"
#include "Wording.h"
#include "core/Numbers.h"

#include <algorithm>
#include <cmath>

namespace vistrel::check {

namespace {

const char* const NeverListed = " and never lists the pair nor finds it in a search";

bool readAsWritten(const InventoryLayout& layout, const StationRecord& r)
{
    return FieldsReadAsWritten(layout, r) > 0;
}

// "and the 12 records behind it (to line 60)", counting laid-out records.
std::string behind(const InventoryLayout& layout, size_t field)
{
    const auto& records = layout.records();
    const auto after = std::upper_bound(
        records.begin(), records.end(), field, [](size_t f, const LaidOutRecord& r) { return f < r.first; });
    const auto count = static_cast<size_t>(records.end() - after);
    if (count == 0)
        return "";
    return " and the " + std::to_string(count) + (count == 1 ? " record" : " records") + " behind it (to line "
        + std::to_string(records.back().line) + ")";
}

class BagChecker {
public:
    BagChecker(const InventoryLayout& layout, const StationReading& reading, double highest, Findings& out)
        : layout_(layout), reading_(reading), highest_(highest), out_(out), firstLine_(32768, 0)
    {
    }

    void run()
    {
        const auto& records = reading_.records;
        for (size_t k = 0; k < records.size(); ++k) {
            const StationRecord& r = records[k];
            const bool stopsHere = reading_.stop != LoadStop::None && k == reading_.stopRecord;
            if (stopsHere && reading_.stop == LoadStop::TableFull)
                say(r,
                    "the station reads at most 32000 records: this record" + behind(layout_, r.first)
                        + (behind(layout_, r.first).empty() ? " is" : " are") + " not loaded");
            if (r.kind != InventoryRecordKind::Pair || layout_.recordOf(r.first) == InventoryLayout::NoRecord)
                continue;
            if (readAsWritten(layout_, r) && !(r.first == 0 && layout_.hasByteOrderMark()))
                number(k, r, stopsHere && reading_.stop == LoadStop::AboveHighest);
            else if (stopsHere && reading_.stop == LoadStop::AboveHighest)
                say(r,
                    "the station reads bag number " + std::to_string(r.bag) + " here (from "
                        + Quoted(layout_.fieldText(r.first))
                        + ", read out of step), above the highest inventory number " + highestText()
                        + ": it stops reading, so the records from here on are not loaded");
        }
    }

private:
    void say(const StationRecord& r, const std::string& message)
    {
        out_.push_back({layout_.fields()[r.first].line, message});
    }

    std::string highestText() const { return ShortestNumber(highest_); }

    void number(size_t k, const StationRecord& r, bool stopsHere)
    {
        const std::string_view text = layout_.fieldText(r.first);
        const double value = Val(text);
        if (!IsNumeric(text)) {
            say(r,
                "bag number " + (text.empty() ? std::string("is empty") : Quoted(text) + " is no number")
                    + ": the station reads bag " + std::to_string(r.bag) + (r.bag == 0 ? NeverListed : ""));
            if (r.bag == 0)
                return;
        } else if (!ToInteger(value)) {
            say(r, "bag number " + Quoted(text) + " is too large for the station: it reads bag 0" + NeverListed);
            return;
        } else if (r.bag == 0) {
            say(r,
                "bag number " + Quoted(text) + (value == 0 ? "" : " reads as 0")
                    + ": the station never lists the pair nor finds it in a search");
            return;
        } else if (std::fabs(value - std::round(value)) > 1e-9) {
            say(r, "bag number " + Quoted(text) + " is no whole number: the station reads " + std::to_string(r.bag));
        }
        if (r.bag < 0)
            say(r, "bag number " + std::to_string(r.bag) + " is below 1: bag numbers run from 1 to 32000");
        if (highest_ < r.bag) {
            if (stopsHere)
                say(r,
                    "bag number " + std::to_string(r.bag) + " is above the highest inventory number " + highestText()
                        + ": the station stops reading here, so this pair" + behind(layout_, r.first)
                        + (behind(layout_, r.first).empty() ? " is" : " are") + " not loaded");
            else
                say(r,
                    "bag number " + std::to_string(r.bag) + " is above the highest inventory number " + highestText()
                        + (reading_.stop != LoadStop::None && k > reading_.stopRecord
                                ? " (the station has stopped reading before it, at line "
                                    + std::to_string(layout_.fields()[reading_.records[reading_.stopRecord].first].line)
                                    + ")"
                                : ""));
        } else if (r.bag > TableRows) {
            say(r, "bag number " + std::to_string(r.bag) + " is above 32000, the most the station keeps track of");
        }
        if (r.bag >= 1) {
            std::uint32_t& first = firstLine_[static_cast<size_t>(r.bag)];
            if (first)
                say(r, "duplicate bag number " + std::to_string(r.bag) + ", also on line " + std::to_string(first));
            else
                first = layout_.fields()[r.first].line;
        }
    }

    const InventoryLayout& layout_;
    const StationReading& reading_;
    double highest_;
    Findings& out_;
    std::vector<std::uint32_t> firstLine_;  // by bag number: the line that has it first
};

}  // namespace

void CheckBagNumbers(const InventoryLayout& layout, const StationReading& reading, double highest, Findings& out)
{
    BagChecker(layout, reading, highest, out).run();
}

void CheckStockOrder(const InventoryLayout& layout, const StationReading& reading, Findings& out)
{
    // The lists and searches walk rows 1 to the count of pairs, and every
    // record uses up a row: each stock record among those rows leaves a pair
    // behind the walk.
    const int count = reading.pairsCounted;
    const StationRecord* firstStock = nullptr;
    std::vector<const StationRecord*> lost;
    for (const StationRecord& r : reading.records) {
        if (!r.loaded)
            continue;
        if (r.kind != InventoryRecordKind::Pair && r.index <= count && !firstStock)
            firstStock = &r;
        // A pair with bag number 0 is a hole that no list shows anyway, and
        // one read out of step has only chance values.
        if (r.kind == InventoryRecordKind::Pair && r.index > count && r.bag != 0 && readAsWritten(layout, r))
            lost.push_back(&r);
    }
    if (lost.empty() || !firstStock)
        return;
    const std::uint32_t stockLine = layout.fields()[firstStock->first].line;
    const std::string from = std::to_string(layout.fields()[lost.front()->first].line);
    out.push_back({stockLine,
        KindName(firstStock->kind)
            + " record stands before pair records: the station lists and searches only rows 1 to "
            + std::to_string(count) + " (its count of pairs) and every record takes a row, so "
            + (lost.size() == 1 ? "the pair on line " + from + " is"
                                : std::to_string(lost.size()) + " pairs from line " + from + " on are")
            + " loaded but never listed nor found; put the READING, LENS and FRAMES records behind the pairs"});
    for (const StationRecord* r : lost) {
        out.push_back({layout.fields()[r->first].line,
            "pair with bag number " + std::to_string(r->bag) + " is never listed nor found in a search: it takes row "
                + std::to_string(r->index) + ", behind the station's count of " + std::to_string(count)
                + " pairs, pushed out by the stock records before it (from line " + std::to_string(stockLine) + ")"});
    }
}

}  // namespace vistrel::check
