#pragma once

#include "Metrics.h"

#include "core/screen/Control.h"

#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace vistrel::qt {

// Keeps one widget in step with one core control: the core's property
// changes are mirrored onto the widget, a person's actions on the widget
// go to the core. Each kind of control has a subclass for its widget.
class ControlBinding : public QObject, public ControlObserver {
    Q_OBJECT
public:
    ControlBinding(Control& control, QWidget* widget, const Metrics& metrics);
    ~ControlBinding() override;

    Control& control() const { return *control_; }
    QWidget* widget() const { return widget_; }

    // Whether the widget is part of the form's tab order.
    virtual bool takesFocus() const { return false; }

    // Copies every property of the control onto the widget.
    void applyAll();

    void controlChanged(Control& control, Prop prop) override;

    // Told when the control's tab index changes, so the form re-chains.
    std::function<void()> onTabIndexChanged;
    // Told when the control is shown, hidden or moved, so the form refits.
    std::function<void()> onLayoutChanged;

    // The room the window has beyond its designed size, in pixels: the
    // control moves and grows by its shares of it.
    void setExtraRoom(QSize extra);
    // Where the widget stands: the designed place, stretched.
    QRect placement() const;

protected:
    // Kind-specific properties; the base handles the common ones.
    virtual void apply(Prop prop);
    virtual void applyAllOwn() {}

    // The palette roles the control's back and fore colours paint, and
    // whether the widget fills its background itself.
    virtual QPalette::ColorRole backRole() const { return QPalette::Window; }
    virtual QPalette::ColorRole foreRole() const { return QPalette::WindowText; }
    // By default, when its colour differs from the container's: a control
    // drawn in the colour of its box lets the box show, as the style shades
    // a group box's panel.
    virtual bool fillsBackground() const;
    virtual bool fixedPitch() const { return false; }

    // Mouse clicks and double clicks on this object raise the control's
    // Click and DblClick (labels, images, text boxes).
    void forwardClicks(QObject* target, bool clicks = true, bool doubleClicks = true);
    bool eventFilter(QObject* watched, QEvent* event) override;

    // True while the binding writes core values onto the widget, so that
    // the widget's change signals are not taken for a person's action.
    bool mirroring() const { return mirroring_ > 0; }
    struct Mirror {
        explicit Mirror(ControlBinding& b) : b_(b) { ++b_.mirroring_; }
        ~Mirror() { --b_.mirroring_; }
        Mirror(const Mirror&) = delete;
        Mirror& operator=(const Mirror&) = delete;
        ControlBinding& b_;
    };

    const Metrics& metrics() const { return metrics_; }

    // The widget that takes the keyboard when the core asks for the focus.
    virtual QWidget* focusWidget() const { return widget_; }
    virtual void giveFocus();

private:
    void applyColors();

    Control* control_;
    QPointer<QWidget> widget_;
    Metrics metrics_;
    int mirroring_ = 0;
    QSize extra_;
    QObject* clickTarget_ = nullptr;
    bool forwardClick_ = false;
    bool forwardDblClick_ = false;
    bool pressed_ = false;
};

}  // namespace vistrel::qt
