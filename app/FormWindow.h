#pragma once

#include "ControlBinder.h"
#include "MenuBuilder.h"
#include "Metrics.h"

#include "core/screen/Form.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

class QScrollArea;

namespace vistrel::qt {

// The window of one screen: a main window with a menu bar for the screen
// that has menus, a dialog for the others. It follows the form's caption,
// size and visibility, passes the close box to the core, keeps the tab
// order by TabIndex and runs the screen's timers once it has been shown.
class FormWindow : public QObject, public FormObserver {
    Q_OBJECT
public:
    enum class Kind { MainWindow, Dialog };

    FormWindow(Form& form, Kind kind, const Metrics& metrics, QWidget* parent = nullptr);
    ~FormWindow() override;

    Form& form() const { return form_; }
    QWidget* window() const { return window_; }
    QWidget* canvas() const { return canvas_; }
    const ControlBinder& binder() const { return binder_; }
    const MenuBuilder& menus() const { return menus_; }
    QWidget* widgetFor(const Control& control) const { return binder_.widgetFor(control); }

    void formChanged(Form& form) override;

    // Chains the focusable widgets by the controls' TabIndex.
    void updateTabOrder();

    // Once the screen's activation has run: the caret goes to the first
    // control by TabIndex as the activation left the controls.
    void settleFocus();

    // Fits the window to the controls now shown (and the status line).
    void refit();

    // Starts the screen's timers (once it has been shown, or once the
    // station's main screen has).
    void activateTimers();

signals:
    // The form is not (or no longer) visible.
    void hidden();
    // The screen's timers have started.
    void timersActivated();

private:
    void applyCaption();
    void applyGeometry(bool place = true);
    void applyVisibility();
    // A place for the window near the designed one, inside the screen.
    QPoint onScreen(QPoint place) const;
    void scheduleTabOrder();
    void scheduleRefit();
    bool typingElsewhere() const;
    void focusFirst();
    void restoreFocus();
    // The main window made larger than designed: the canvas fills the view
    // and the controls take the extra room by their stretch.
    void spreadIntoView();
    bool eventFilter(QObject* watched, QEvent* event) override;

    Form& form_;
    Kind kind_;
    Metrics metrics_;
    QPointer<QWidget> window_;
    QScrollArea* scroll_ = nullptr;
    QWidget* scrollViewport_ = nullptr;  // see ListBinding::viewport_
    QWidget* canvas_ = nullptr;
    ControlBinder binder_;
    MenuBuilder menus_;
    bool tabOrderPending_ = false;
    bool refitPending_ = false;
    bool timersActive_ = false;
    bool shownByCore_ = false;
    QPointer<QWidget> returnFocus_;
    QSize designedClient_;
    int geometryRequestsSeen_ = -1;
};

}  // namespace vistrel::qt
