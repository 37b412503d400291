#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vistrel::check {

// The ranges a pair's values are held to; what is outside is reported.
struct ValueRanges {
    static constexpr double SphereLimit = 20.0;  // -20.00 to +20.00
    static constexpr double CylinderLowest = -10.0;  // -10.00 to 0.00
    static constexpr double AddHighest = 4.0;  // 0.00 to +4.00
};

// Checks fields 2 to 16 of a pair (prescription, flags, gender code) as the
// station reads them. fields[0] is field 1; only the fields given are
// checked, so a short record is checked as far as it goes.
struct ValueProblem {
    size_t field = 0;  // from 1
    std::string message;
};
std::vector<ValueProblem> CheckPairValues(const std::vector<std::string_view>& fields);

}  // namespace vistrel::check
