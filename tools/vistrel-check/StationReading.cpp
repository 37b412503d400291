#include "StationReading.h"

#include "core/Numbers.h"
#include "inventory/StockCells.h"

#include <string>

namespace vistrel::check {

size_t FieldsOf(InventoryRecordKind kind)
{
    switch (kind) {
    case InventoryRecordKind::Pair:
        return 19;
    case InventoryRecordKind::Lens:
    case InventoryRecordKind::LensChild:
        return 4;
    default:
        return 3;
    }
}

size_t FieldsTaken(InventoryRecordKind kind, std::string_view second)
{
    // The quantity of frames is read only for a size the station knows.
    if (kind == InventoryRecordKind::Frames || kind == InventoryRecordKind::FramesChild)
        return FrameSizeOf(kind == InventoryRecordKind::FramesChild, std::string(second)) >= 0 ? 3 : 2;
    return FieldsOf(kind);
}

StationReading ReadAsStation(const InventoryLayout& layout, double highest)
{
    StationReading reading;
    const size_t fieldCount = layout.fields().size();
    bool loading = true;
    int index = 0;
    // The loader reads records until a read leaves the file at its end: the
    // record holding the last field is the last one.
    for (size_t at = 0; at < fieldCount;) {
        StationRecord r;
        r.first = at;
        r.index = ++index;
        r.kind = InventoryRecordKindOf(std::string(layout.fieldText(at)));
        r.taken = FieldsTaken(r.kind, layout.fieldText(at + 1));
        if (loading && index > TableRows) {
            loading = false;
            reading.stop = LoadStop::TableFull;
            reading.stopRecord = reading.records.size();
        }
        if (r.kind == InventoryRecordKind::Pair) {
            r.bag = ToInteger(Val(layout.fieldText(at))).value_or(0);
            if (loading && highest < r.bag) {
                loading = false;
                reading.stop = LoadStop::AboveHighest;
                reading.stopRecord = reading.records.size();
            }
            if (loading)
                ++reading.pairsCounted;
        }
        r.loaded = loading;
        reading.records.push_back(r);
        at += r.taken;
    }
    return reading;
}

}  // namespace vistrel::check
