#pragma once

#include <string>

namespace vistrel {

// The kinds of record in "Total_Inventory.txt". The first field of a record,
// folded to upper case, decides its kind; anything that is no keyword
// begins a pair of glasses.
enum class InventoryRecordKind { Reading, Lens, LensChild, Frames, FramesChild, Pair };

InventoryRecordKind InventoryRecordKindOf(const std::string& first);

}  // namespace vistrel
