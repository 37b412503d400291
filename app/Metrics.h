#pragma once

#include "core/screen/Control.h"

#include <QFont>
#include <QRect>
#include <QSize>

namespace vistrel::qt {

// How the screens' twips and point sizes become pixels and fonts here.
// The screens were drawn at 96 dots per inch: 15 twips to a pixel.
class Metrics {
public:
    static constexpr double TwipsPerPixel = 15.0;

    Metrics() = default;
    Metrics(double userScale, double logicalDpi);

    // VISTREL_SCALE (a positive number, default 1) and the primary screen.
    static Metrics fromEnvironment();

    double pixelsPerTwip() const { return pixelsPerTwip_; }
    double fontScale() const { return fontScale_; }

    int px(int twips) const;
    QRect rect(const Control& control) const;

    // The face a control's font gets: a fixed-pitch one for tables of
    // columns, the desktop's own face for the classic dialog font.
    QFont font(const vistrel::Font& font, bool fixedPitch = false) const;

    // The client area of a window whose outer size, title and border
    // included, the screen gives in twips.
    QSize clientSize(int widthTwips, int heightTwips, bool hasMenuBar) const;

private:
    double pixelsPerTwip_ = 1.0 / TwipsPerPixel;
    double fontScale_ = 1.0;
};

// Parses a scale factor as VISTREL_SCALE gives it; 1 when absent or unusable.
double parseScale(const QString& text);

}  // namespace vistrel::qt
