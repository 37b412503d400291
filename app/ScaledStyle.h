#pragma once

#include <QProxyStyle>

namespace vistrel::qt {

// The desktop's style with its check boxes and option dots grown by the
// screens' scale, so that a screen drawn larger for VISTREL_SCALE doesn't
// keep them at the small size. Scroll bars keep theirs: the lists were
// drawn with room for rows, not for wider bars.
class ScaledStyle : public QProxyStyle {
public:
    ScaledStyle(QStyle* base, double scale);

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;

private:
    double scale_;
};

}  // namespace vistrel::qt
