#pragma once

#include "core/screen/Colors.h"

#include <QColor>
#include <QPalette>

namespace vistrel::qt {

// A core colour (blue-green-red, or a system colour with the high bit) as
// the desktop shows it; system colours come from the given palette.
QColor mapColor(Color color, const QPalette& palette);

// The palette role a system colour stands for, with the group to read it
// from (grey text is the disabled text colour).
struct SystemRole {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};
SystemRole systemRole(Color color);

// The palette a widget gets for a control's back and fore colour: the back
// colour fills backRole in every state, the fore colour colours foreRole
// while enabled; disabled text keeps the desktop's grey.
QPalette controlPalette(const QPalette& base, QPalette::ColorRole backRole, QPalette::ColorRole foreRole,
    Color back, Color fore);

}  // namespace vistrel::qt
