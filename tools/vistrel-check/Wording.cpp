#include "Wording.h"

#include <array>
#include <cstdio>

namespace vistrel::check {

std::string Quoted(std::string_view text)
{
    constexpr size_t Longest = 40;
    std::string out = "\"";
    for (size_t i = 0; i < text.size() && i < Longest; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x20 && c < 0x7f && c != '\\') {
            out += static_cast<char>(c);
        } else {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02X", c);
            out += hex;
        }
    }
    if (text.size() > Longest)
        out += "...";
    return out + "\"";
}

std::string KindName(InventoryRecordKind kind)
{
    switch (kind) {
    case InventoryRecordKind::Reading:
        return "READING";
    case InventoryRecordKind::Lens:
        return "LENS";
    case InventoryRecordKind::LensChild:
        return "LENSCHILD";
    case InventoryRecordKind::Frames:
        return "FRAMES";
    case InventoryRecordKind::FramesChild:
        return "FRAMESCHILD";
    case InventoryRecordKind::Pair:
        break;
    }
    return "pair";
}

std::string FieldName(InventoryRecordKind kind, size_t n)
{
    static const std::array<const char*, 19> pair {"bag number", "left sphere", "left cylinder", "left axis",
        "left add", "right sphere", "right cylinder", "right axis", "right add", "sunglasses flag", "reading flag",
        "spare flag", "progressive flag", "bifocal flag", "pupillary distance", "gender and rejections", "comment",
        "extra 1", "extra 2"};
    static const std::array<const char*, 3> reading {"keyword", "power", "quantity"};
    static const std::array<const char*, 4> lens {"keyword", "sphere", "cylinder", "quantity"};
    static const std::array<const char*, 3> frames {"keyword", "size", "quantity"};
    auto pick = [n](const auto& names) { return n >= 1 && n <= names.size() ? names[n - 1] : "field"; };
    switch (kind) {
    case InventoryRecordKind::Pair:
        return pick(pair);
    case InventoryRecordKind::Reading:
        return pick(reading);
    case InventoryRecordKind::Lens:
    case InventoryRecordKind::LensChild:
        return pick(lens);
    case InventoryRecordKind::Frames:
    case InventoryRecordKind::FramesChild:
        return pick(frames);
    }
    return "field";
}

std::string FieldRange(InventoryRecordKind kind, size_t from, size_t to)
{
    if (from == to)
        return "field " + std::to_string(from) + " (" + FieldName(kind, from) + ")";
    const std::string names = to == from + 1 ? FieldName(kind, from) + ", " + FieldName(kind, to)
                                             : FieldName(kind, from) + " to " + FieldName(kind, to);
    return "fields " + std::to_string(from) + " to " + std::to_string(to) + " (" + names + ")";
}

}  // namespace vistrel::check
