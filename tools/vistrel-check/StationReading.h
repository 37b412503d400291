#pragma once

#include "InventoryLayout.h"
#include "inventory/InventoryRecordKind.h"

#include <cstdint>
#include <vector>

namespace vistrel::check {

// One record as the station's loader takes it from the stream of fields.
struct StationRecord {
    InventoryRecordKind kind = InventoryRecordKind::Pair;
    size_t first = 0;  // index of its first field
    size_t taken = 0;  // fields it takes, the first included
    int index = 0;  // its table row, from 1: the ordinal among all records
    std::int16_t bag = 0;  // a pair's bag number as stored; 0 when it doesn't fit
    bool loaded = false;  // read before the load stopped (a pair: counted)
};

// Why the load ended before the end of the file.
enum class LoadStop { None, AboveHighest, TableFull };

// The whole file as the loader reads it. The reading goes on past a stop,
// as it would once the cause is mended, so that the records behind it can
// be checked too; they are marked as not loaded.
struct StationReading {
    std::vector<StationRecord> records;
    int pairsCounted = 0;  // the station's count of pairs: its lists and searches walk rows 1 to this
    LoadStop stop = LoadStop::None;
    size_t stopRecord = 0;  // the first record not loaded, when stopped
};

// How many fields a record takes: 19 for a pair, 3 for READING and FRAMES,
// 4 for LENS; FRAMES with a size the station doesn't know takes only 2.
size_t FieldsTaken(InventoryRecordKind kind, std::string_view second);
// The fields a record of this kind has in a well-formed file.
size_t FieldsOf(InventoryRecordKind kind);

// The table has this many rows; the loader reads no record beyond.
constexpr int TableRows = 32000;

StationReading ReadAsStation(const InventoryLayout& layout, double highest);

}  // namespace vistrel::check
