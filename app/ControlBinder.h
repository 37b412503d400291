#pragma once

#include "ControlBinding.h"
#include "Metrics.h"
#include "TimerBinding.h"

#include "core/screen/Form.h"

#include <QWidget>

#include <map>
#include <memory>
#include <vector>

namespace vistrel::qt {

// Creates a widget for every control of a screen, by kind, inside the
// given canvas: a frame's controls inside the frame's box. Timers get a
// Qt timer; menus are left to the MenuBuilder.
class ControlBinder {
public:
    ControlBinder(const Metrics& metrics) : metrics_(metrics) {}
    ControlBinder(const ControlBinder&) = delete;
    ControlBinder& operator=(const ControlBinder&) = delete;

    void bind(Form& form, QWidget* canvas);

    ControlBinding* bindingFor(const Control& control) const;
    QWidget* widgetFor(const Control& control) const;
    const std::vector<std::unique_ptr<ControlBinding>>& bindings() const { return bindings_; }
    const std::vector<std::unique_ptr<TimerBinding>>& timers() const { return timers_; }

    // The widget for a control kind, not yet bound (no widget for timers
    // and menus).
    std::unique_ptr<ControlBinding> create(Control& control, QWidget* parent) const;

private:
    QWidget* containerWidget(const Control& control, QWidget* canvas) const;

    Metrics metrics_;
    std::vector<std::unique_ptr<ControlBinding>> bindings_;
    std::vector<std::unique_ptr<TimerBinding>> timers_;
    std::map<const Control*, ControlBinding*> byControl_;
};

}  // namespace vistrel::qt
