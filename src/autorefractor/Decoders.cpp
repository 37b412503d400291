#include "Decoders.h"

#include "FamilyDecoders.h"

namespace vistrel {

namespace {

using Decoder = DecodeOutcome (*)(std::string_view, CaptureBoxes&);

struct DeviceRow {
    const char* type;  // as the options file names it, upper case
    Decoder decode;    // nullptr for "NONE": the boxes go to the check as they stand
};

// Searched in this order, names compared exactly.
constexpr DeviceRow Devices[] = {
    {"NIKON RETINOMAX3", autoref::DecodeRetinomax3},
    {"NIKON RETINOMAX2", autoref::DecodeRetinomax},
    {"NIKON RETINOMAX", autoref::DecodeRetinomax},
    {"BURTON VELO 20-10", autoref::DecodeBurtonVelo},
    {"SHIN NIPPON 8001", autoref::DecodeShinNippon},
    {"REICHERT RK600", autoref::DecodeReichertRK600},
    {"HUMPHREY 597", autoref::DecodeHumphrey},
    {"WELCHALLYN SURESIGHT", autoref::DecodeSuresight},
    {"MARCONIDEK ARK-20/30", autoref::DecodeMarcoNidek},
    {"TOPCON KR-3000-7000", autoref::DecodeTopcon},
    {"CANON RK-2", autoref::DecodeCanon},
    {"NONE", nullptr},
};

struct QuietRow {
    const char* type;
    int ticks;
};

// The quiet limits are a table of their own. Its RK600 row has always been
// written "Reichert RK600" and never matches the upper-case type, so an
// RK600 gets the 0 of a type without a row and its buffer is looked at on
// every tick; the capture check expects partial RK600 data for that reason.
constexpr QuietRow QuietLimits[] = {
    {"NIKON RETINOMAX3", 10},
    {"NIKON RETINOMAX2", 10},
    {"NIKON RETINOMAX", 10},
    {"BURTON VELO 20-10", 10},
    {"SHIN NIPPON 8001", 10},
    {"Reichert RK600", 50},
    {"HUMPHREY 597", 2},
    {"WELCHALLYN SURESIGHT", 10},
    {"MARCONIDEK ARK-20/30", 2},
    {"TOPCON KR-3000-7000", 2},
    {"CANON RK-2", 2},
    {"NONE", 10},
};

}  // namespace

DecodeOutcome DecodeMessage(const std::string& deviceType, std::string_view message, CaptureBoxes& boxes)
{
    for (const DeviceRow& row : Devices) {
        if (deviceType != row.type)
            continue;
        if (row.decode == nullptr)
            return DecodeOutcome{};
        return row.decode(message, boxes);
    }
    DecodeOutcome unknown;
    unknown.next = DecodeOutcome::Next::UnknownDevice;
    return unknown;
}

int QuietLimitTicks(const std::string& deviceType)
{
    for (const QuietRow& row : QuietLimits)
        if (deviceType == row.type)
            return row.ticks;
    return 0;
}

}  // namespace vistrel
