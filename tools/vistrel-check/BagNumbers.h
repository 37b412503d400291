#pragma once

#include "Finding.h"
#include "InventoryLayout.h"
#include "StationReading.h"

namespace vistrel::check {

// Bag numbers as the station reads them: numbers it can't use (no number,
// 0, below 1, no whole number, too large), numbers above 32000 or the
// highest inventory number, where the load stops, and numbers given twice.
void CheckBagNumbers(const InventoryLayout& layout, const StationReading& reading, double highest, Findings& out);

// Stock records that stand before pairs, and the pairs they push out of the
// station's lists and searches.
void CheckStockOrder(const InventoryLayout& layout, const StationReading& reading, Findings& out);

}  // namespace vistrel::check
