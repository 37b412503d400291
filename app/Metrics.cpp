#include "Metrics.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace vistrel::qt {

namespace {

// The frame of a window drawn on the screens' desktop: 4 pixels of border
// on each side, a 23-pixel title bar and a 20-pixel menu bar.
constexpr int BorderTwips = 2 * 60;
constexpr int TitleTwips = 465;
constexpr int MenuBarTwips = 300;

}  // namespace

Metrics::Metrics(double userScale, double logicalDpi)
{
    if (!(userScale > 0))
        userScale = 1.0;
    if (!(logicalDpi > 0))
        logicalDpi = 96.0;
    pixelsPerTwip_ = userScale * (logicalDpi / 96.0) / TwipsPerPixel;
    // Point sizes already follow the screen's dots per inch.
    fontScale_ = userScale;
}

double parseScale(const QString& text)
{
    bool ok = false;
    const double scale = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(scale) || scale <= 0.1 || scale > 10.0)
        return 1.0;
    return scale;
}

Metrics Metrics::fromEnvironment()
{
    const double scale = parseScale(qEnvironmentVariable("VISTREL_SCALE"));
    double dpi = 96.0;
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        dpi = screen->logicalDotsPerInch();
    return Metrics(scale, dpi);
}

int Metrics::px(int twips) const
{
    return static_cast<int>(std::lround(twips * pixelsPerTwip_));
}

QRect Metrics::rect(const Control& control) const
{
    // Edges are rounded, not sizes, so that touching controls stay touching.
    const int left = px(control.left());
    const int top = px(control.top());
    const int right = px(control.left() + control.width());
    const int bottom = px(control.top() + control.height());
    return QRect(left, top, std::max(0, right - left), std::max(0, bottom - top));
}

QFont Metrics::font(const vistrel::Font& font, bool fixedPitch) const
{
    QFont face;
    if (fixedPitch || font.fixedPitch()) {
        face = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    } else if (font.name != "MS Sans Serif" && QFontDatabase::hasFamily(QString::fromStdString(font.name))) {
        face = QFont(QString::fromStdString(font.name));
    } else {
        // The classic dialog face is narrow; the desktop's face is not, so
        // a condensed cut (where there is one) keeps captions inside the
        // controls drawn for it.
        face = QGuiApplication::font();
        face.setStretch(QFont::SemiCondensed);
    }
    const double size = font.size > 0 ? font.size : 8.25;
    face.setPointSizeF(size * fontScale_);
    face.setBold(font.bold);
    return face;
}

QSize Metrics::clientSize(int widthTwips, int heightTwips, bool hasMenuBar) const
{
    const int w = widthTwips - BorderTwips;
    const int h = heightTwips - TitleTwips - (hasMenuBar ? MenuBarTwips : 0);
    return QSize(std::max(40, px(w)), std::max(20, px(h)));
}

}  // namespace vistrel::qt
