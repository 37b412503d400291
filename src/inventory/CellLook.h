#pragma once

#include "core/screen/Colors.h"

namespace vistrel::cell_look {

// A stock cell's back colour is its state: saved (a click takes one away),
// changed since the last save (will be saved), or open to typing.
constexpr Color Locked = colors::LightGrey;
constexpr Color Changed = colors::LightYellow;
constexpr Color Open = colors::White;

}  // namespace vistrel::cell_look
