#pragma once

#include <cstdint>

namespace vistrel {

// Colours are numbers in blue-green-red order, as the station has always
// stored them. The system colours carry the high bit, as on the platform the
// station came from; the window program maps them to the desktop palette.
using Color = std::int64_t;

namespace colors {
constexpr Color Black = 0;
constexpr Color Red = 255;
constexpr Color Green = 65280;
constexpr Color Yellow = 65535;
constexpr Color Cyan = 16776960;
constexpr Color White = 16777215;
constexpr Color LightGrey = 14737632;
constexpr Color LightYellow = 8454143;
constexpr Color PaleCyan = 16777152;

constexpr Color SystemFlag = 0x80000000LL;
constexpr Color WindowBackground = -2147483643LL;  // &H80000005
constexpr Color ButtonFace = -2147483633LL;        // &H8000000F
constexpr Color WindowText = -2147483640LL;        // &H80000008
constexpr Color ButtonText = -2147483630LL;        // &H80000012

constexpr bool isSystemColor(Color c) { return c < 0; }
}  // namespace colors

}  // namespace vistrel
