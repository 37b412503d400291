#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vistrel::check {

struct Finding {
    std::uint32_t line = 0;
    std::string message;
    bool operator==(const Finding&) const = default;
};

using Findings = std::vector<Finding>;

}  // namespace vistrel::check
