#include "ColorMapping.h"

namespace vistrel::qt {

SystemRole systemRole(Color color)
{
    const auto index = static_cast<std::uint32_t>(color) & 0xFFFFFFu;
    using P = QPalette;
    switch (index) {
    case 1:  // desktop
    case 12: return {P::Active, P::Dark};  // application workspace
    case 2:  // active title
    case 13: return {P::Active, P::Highlight};
    case 3: return {P::Inactive, P::Highlight};
    case 4: return {P::Active, P::Window};  // menu
    case 5: return {P::Active, P::Base};  // window background
    case 6: return {P::Active, P::Shadow};  // window frame
    case 7: return {P::Active, P::WindowText};  // menu text
    case 8: return {P::Active, P::Text};  // window text
    case 9:  // title text
    case 14: return {P::Active, P::HighlightedText};
    case 16: return {P::Active, P::Dark};  // button shadow
    case 17: return {P::Disabled, P::Text};  // grey text
    case 18: return {P::Active, P::ButtonText};
    case 19: return {P::Inactive, P::HighlightedText};
    case 20: return {P::Active, P::Light};  // button highlight
    case 21: return {P::Active, P::Shadow};  // dark 3-D shadow
    case 22: return {P::Active, P::Midlight};  // 3-D light
    case 23: return {P::Active, P::ToolTipText};
    case 24: return {P::Active, P::ToolTipBase};
    case 0:  // scroll bar
    case 10:  // borders
    case 11:
    case 15: return {P::Active, P::Button};  // button face
    default: return {P::Active, P::Window};
    }
}

QColor mapColor(Color color, const QPalette& palette)
{
    if (colors::isSystemColor(color)) {
        const SystemRole r = systemRole(color);
        return palette.color(r.group, r.role);
    }
    const auto bgr = static_cast<std::uint32_t>(color);
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
        static_cast<int>((bgr >> 16) & 0xFF));
}

QPalette controlPalette(const QPalette& base, QPalette::ColorRole backRole, QPalette::ColorRole foreRole,
    Color back, Color fore)
{
    QPalette palette = base;
    const QColor backColor = mapColor(back, base);
    const QColor foreColor = mapColor(fore, base);
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, backRole, backColor);
    for (auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, foreRole, foreColor);
    return palette;
}

}  // namespace vistrel::qt
