#include "ScaledStyle.h"

#include <cmath>

namespace vistrel::qt {

ScaledStyle::ScaledStyle(QStyle* base, double scale) : QProxyStyle(base), scale_(scale > 0 ? scale : 1.0) {}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int size = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return static_cast<int>(std::lround(size * scale_));
    default:
        return size;
    }
}

}  // namespace vistrel::qt
