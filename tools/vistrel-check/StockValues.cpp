#include "StockValues.h"

#include "Wording.h"
#include "core/Numbers.h"
#include "inventory/StockCells.h"

namespace vistrel::check {

std::optional<std::string> StockCellTracker::reading(std::string_view power)
{
    // Powers are compared as exact texts: "1.0" is no power to the station.
    const int cell = ReadingCellOf(std::string(power));
    if (cell >= 0) {
        readingCell_ = cell;
        return std::nullopt;
    }
    return "READING power " + Quoted(power)
        + " is none of \"0.00\" to \"4.75\" in steps of 0.25, written so: the station writes its quantity into the "
          "cell "
          "of power "
        + Format(readingCell_ * 0.25, "0.00") + " instead, overwriting that count";
}

std::optional<std::string> StockCellTracker::lens(
    std::string_view kind, std::string_view sphere, std::string_view cylinder)
{
    const std::string sphereText = FormatText(sphere, "0.00");
    const bool row = LensRowOf(sphereText) >= 0 || HighLensRowOf(sphereText) >= 0;
    const bool column = LensColumnOf(FormatText(cylinder, "0.00")) >= 0;
    std::string problem;
    if (!row)
        problem = std::string(kind) + " sphere " + Quoted(sphere)
            + " has no row on the lens grids (16.00 to -16.00 in steps of 0.25)";
    if (!column)
        problem += (problem.empty() ? std::string(kind) + " cylinder " : ", and its cylinder ") + Quoted(cylinder)
            + " has no column (0.00 to -3.00 in steps of 0.25)";
    const bool written = (row || lensRow_) && (column || lensColumn_);
    lensRow_ = lensRow_ || row;
    lensColumn_ = lensColumn_ || column;
    if (problem.empty())
        return std::nullopt;
    return problem
        + (written ? ": the station writes its quantity into the cell of another lens count, overwriting it"
                   : ": the station drops its quantity");
}

}  // namespace vistrel::check
