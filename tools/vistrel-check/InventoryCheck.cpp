#include "InventoryCheck.h"

#include "BagNumbers.h"
#include "InventoryLayout.h"
#include "LayoutCheck.h"
#include "PairValues.h"
#include "StationReading.h"
#include "StockValues.h"

#include <algorithm>

namespace vistrel::check {

namespace {

// The values of every record, where the station reads them as written: a
// record read out of step has only chance values, and the finding about
// the step tells of it.
void checkValues(const InventoryLayout& layout, const StationReading& reading, Findings& out)
{
    StockCellTracker cells;
    std::vector<std::string_view> fields;
    for (const StationRecord& r : reading.records) {
        const size_t onLine = FieldsReadAsWritten(layout, r);
        const bool asWritten = onLine > 0;
        const std::uint32_t line = layout.fields()[r.first].line;
        auto say = [&](const std::optional<std::string>& problem) {
            if (problem && asWritten)
                out.push_back({line, *problem});
        };
        switch (r.kind) {
        case InventoryRecordKind::Pair:
            if (!asWritten)
                break;
            fields.clear();
            for (size_t i = 0; i < onLine; ++i)
                fields.push_back(layout.fieldText(r.first + i));
            // A record over several lines: each problem on the line of its field.
            for (ValueProblem& problem : CheckPairValues(fields))
                out.push_back({layout.fields()[r.first + problem.field - 1].line, std::move(problem.message)});
            break;
        case InventoryRecordKind::Reading: {
            auto problem = cells.reading(layout.fieldText(r.first + 1));
            if (onLine >= 2)
                say(problem);
            break;
        }
        case InventoryRecordKind::Lens:
        case InventoryRecordKind::LensChild: {
            auto problem = cells.lens(r.kind == InventoryRecordKind::Lens ? "LENS" : "LENSCHILD",
                layout.fieldText(r.first + 1), layout.fieldText(r.first + 2));
            if (onLine >= 3)
                say(problem);
            break;
        }
        default:
            break;
        }
    }
}

}  // namespace

CheckResult CheckInventory(std::string_view text, const CheckOptions& options)
{
    const InventoryLayout layout(text);
    const StationReading reading = ReadAsStation(layout, options.highest);
    CheckResult result;
    result.records = layout.records().size();
    for (size_t r = 0; r < layout.records().size(); ++r)
        if (IntendedKind(layout, r) == InventoryRecordKind::Pair)
            ++result.pairs;
    result.pairsLoaded = reading.pairsCounted;

    // Each pass gives its findings in line order; the merge keeps, within a
    // line, the layout first, then values, bag numbers and the order of stock.
    Findings& out = result.findings;
    CheckLayout(layout, reading, out);
    checkValues(layout, reading, out);
    CheckBagNumbers(layout, reading, options.highest, out);
    CheckStockOrder(layout, reading, out);
    std::stable_sort(out.begin(), out.end(), [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return result;
}

std::string FormatReport(const std::string& name, const CheckResult& result)
{
    std::string out;
    for (const Finding& f : result.findings)
        out += name + ":" + std::to_string(f.line) + ": " + f.message + "\n";
    out += name + ": " + std::to_string(result.records) + (result.records == 1 ? " record" : " records") + " ("
        + std::to_string(result.pairs) + (result.pairs == 1 ? " pair" : " pairs") + "), ";
    const size_t n = result.findings.size();
    out += n == 0 ? "no findings" : std::to_string(n) + (n == 1 ? " finding" : " findings");
    return out + "\n";
}

}  // namespace vistrel::check
