#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace vistrel::qt {

// Gives the keyboard back, once a message box or a preview has closed, to
// the window and the control that had it: some desktops (and none at all)
// leave no window active after a box goes, and the volunteer would type
// into nothing.
class KeyboardKeeper {
public:
    KeyboardKeeper() : window_(QApplication::activeWindow()), focus_(QApplication::focusWidget()) {}
    ~KeyboardKeeper()
    {
        if (!window_ || !window_->isVisible())
            return;
        window_->activateWindow();
        if (focus_ && focus_->isVisible() && focus_->window() == window_)
            focus_->setFocus(Qt::OtherFocusReason);
    }
    KeyboardKeeper(const KeyboardKeeper&) = delete;
    KeyboardKeeper& operator=(const KeyboardKeeper&) = delete;

private:
    QPointer<QWidget> window_;
    QPointer<QWidget> focus_;
};

}  // namespace vistrel::qt
