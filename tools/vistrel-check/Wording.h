#pragma once

#include "inventory/InventoryRecordKind.h"

#include <string>
#include <string_view>

namespace vistrel::check {

// A field's text for a message: in double quotes, bytes that aren't
// printable ASCII as \xNN, cut after 40 characters.
std::string Quoted(std::string_view text);

// The name of a record kind in messages: "pair", "READING", ...
std::string KindName(InventoryRecordKind kind);

// The name of field n (from 1) of a record of this kind: "left sphere".
std::string FieldName(InventoryRecordKind kind, size_t n);

// "field 18 (extra 1)" or "fields 3 to 19 (left cylinder to extra 2)".
std::string FieldRange(InventoryRecordKind kind, size_t from, size_t to);

}  // namespace vistrel::check
