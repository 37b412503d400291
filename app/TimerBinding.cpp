#include "TimerBinding.h"

namespace vistrel::qt {

TimerBinding::TimerBinding(Timer& timer, QObject* parent) : QObject(parent), timer_(timer)
{
    qtimer_.setTimerType(Qt::CoarseTimer);
    connect(&qtimer_, &QTimer::timeout, this, &TimerBinding::tick);
    timer.setObserver(this);
}

TimerBinding::~TimerBinding()
{
    if (timer_.observer() == this)
        timer_.setObserver(nullptr);
}

void TimerBinding::setActive(bool active)
{
    active_ = active;
    update();
}

void TimerBinding::controlChanged(Control& /*control*/, Prop prop)
{
    if (prop == Prop::Enabled || prop == Prop::Interval)
        update();
}

void TimerBinding::update()
{
    const bool run = active_ && timer_.enabled() && timer_.interval() > 0;
    if (!run) {
        qtimer_.stop();
        return;
    }
    // A changed interval starts the count anew, as setting it always has.
    if (!qtimer_.isActive() || qtimer_.interval() != timer_.interval())
        qtimer_.start(timer_.interval());
}

void TimerBinding::tick()
{
    if (firing_)
        return;
    firing_ = true;
    timer_.fire();
    firing_ = false;
}

}  // namespace vistrel::qt
