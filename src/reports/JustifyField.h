#pragma once

#include "core/screen/Variant.h"

#include <string>
#include <string_view>

namespace vistrel {

// A value set into a column of fixed width: put through the pattern
// (a text through FormatText, a number through Format), cut of blanks at
// both ends, then padded with blanks to fieldSize characters (at least 1),
// in front when justify reads "RIGHT" in any case, behind otherwise.
// A longer text stays whole.
std::string JustifyField(const Variant& value, std::string_view formatText, int fieldSize, std::string_view justify);

}  // namespace vistrel
