#pragma once

#include "core/screen/Controls.h"

#include <QObject>
#include <QTimer>

namespace vistrel::qt {

// A Qt timer per core timer: it runs while the core timer is enabled, has
// an interval above zero and its screen has been loaded, and fires the
// core timer on each tick. A tick that comes while the previous one's
// handler still runs (a message box in it) is skipped.
class TimerBinding : public QObject, public ControlObserver {
    Q_OBJECT
public:
    explicit TimerBinding(Timer& timer, QObject* parent = nullptr);
    ~TimerBinding() override;

    // Set once the screen has been shown for the first time.
    void setActive(bool active);
    bool running() const { return qtimer_.isActive(); }
    const Timer& timer() const { return timer_; }

    void controlChanged(Control& control, Prop prop) override;

private:
    void update();
    void tick();

    Timer& timer_;
    QTimer qtimer_;
    bool active_ = false;
    bool firing_ = false;
};

}  // namespace vistrel::qt
