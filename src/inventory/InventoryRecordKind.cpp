#include "InventoryRecordKind.h"

#include "core/Text.h"

namespace vistrel {

InventoryRecordKind InventoryRecordKindOf(const std::string& first)
{
    if (UCaseEquals(first, "READING"))
        return InventoryRecordKind::Reading;
    if (UCaseEquals(first, "LENS"))
        return InventoryRecordKind::Lens;
    if (UCaseEquals(first, "LENSCHILD"))
        return InventoryRecordKind::LensChild;
    if (UCaseEquals(first, "FRAMES"))
        return InventoryRecordKind::Frames;
    if (UCaseEquals(first, "FRAMESCHILD"))
        return InventoryRecordKind::FramesChild;
    return InventoryRecordKind::Pair;
}

}  // namespace vistrel
