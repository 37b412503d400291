#pragma once

#include "Finding.h"

#include <string>
#include <string_view>

namespace vistrel::check {

struct CheckOptions {
    // The station's highest inventory number: a bag number above it ends
    // the load.
    double highest = 32000;
};

struct CheckResult {
    Findings findings;  // in line order
    size_t records = 0;  // records as the file lays them out
    size_t pairs = 0;  // of them pairs of glasses
    int pairsLoaded = 0;  // the station's count of pairs
};

// Checks the text of an inventory file against the way the station reads
// it, and tells what it would get wrong without a word.
CheckResult CheckInventory(std::string_view text, const CheckOptions& options = {});

// The report: "NAME:LINE: message" for each finding, then the summary line.
std::string FormatReport(const std::string& name, const CheckResult& result);

}  // namespace vistrel::check
