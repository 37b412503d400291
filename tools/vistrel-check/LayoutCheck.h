#pragma once

#include "Finding.h"
#include "InventoryLayout.h"
#include "StationReading.h"

namespace vistrel::check {

// How the records are laid out against how the station reads them: a byte
// order mark, quoted fields that run over line ends, records that are short
// or long, FRAMES the station drops, a blank line at the very end; for each
// record the station reads otherwise than it is written, which fields moved,
// what the station reads instead and how far behind it the reading stays
// out of step.
void CheckLayout(const InventoryLayout& layout, const StationReading& reading, Findings& out);

// How many of the record's first fields the station reads as they are
// written: none for a record read out of step, else those on its own line,
// or all when it goes on over whole lines.
size_t FieldsReadAsWritten(const InventoryLayout& layout, const StationRecord& record);

// The kind of a laid-out record as its writer meant it: by its first field,
// without a byte order mark in front.
InventoryRecordKind IntendedKind(const InventoryLayout& layout, size_t record);

}  // namespace vistrel::check
