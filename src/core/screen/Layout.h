#pragma once

#include "Control.h"

#include <string>

namespace vistrel {

// Puts a control in its container at a place in twips, with its caption and
// tool tip, as the screens' design files draw them.
inline void place(Control& c, Control* container, int left, int top, int width, int height,
    const std::string& caption = {}, const std::string& tip = {})
{
    c.setContainer(container);
    c.setGeometry(left, top, width, height);
    if (!caption.empty())
        c.setCaption(caption);
    if (!tip.empty())
        c.setToolTipText(tip);
}

}  // namespace vistrel
