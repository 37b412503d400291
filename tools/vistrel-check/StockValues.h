#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vistrel::check {

// The cells that READING and LENS records fill, followed in the order the
// station reads them: a power, sphere or cylinder it doesn't know keeps the
// cell of the record before, so the quantity overwrites another count.
class StockCellTracker {
public:
    // A problem with the record, if any; every stock record the station
    // reads must pass through here, in its order.
    std::optional<std::string> reading(std::string_view power);
    std::optional<std::string> lens(std::string_view kind, std::string_view sphere, std::string_view cylinder);

private:
    int readingCell_ = 0;
    bool lensRow_ = false;
    bool lensColumn_ = false;
};

}  // namespace vistrel::check
