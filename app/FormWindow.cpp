#include "FormWindow.h"

#include "TextConversion.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTextEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace vistrel::qt {

namespace {

// The close box asks the core; the window stays until the core hides it.
class MainFormWindow : public QMainWindow {
public:
    MainFormWindow(std::function<void()> closeBox, QWidget* parent)
        : QMainWindow(parent), closeBox_(std::move(closeBox))
    {
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        event->ignore();
        closeBox_();
    }

private:
    std::function<void()> closeBox_;
};

class DialogFormWindow : public QDialog {
public:
    DialogFormWindow(std::function<void()> closeBox, QWidget* parent)
        : QDialog(parent), closeBox_(std::move(closeBox))
    {
        setSizeGripEnabled(false);
    }

    // Escape is the close box: the screen decides what leaving means (a
    // question's close box is its Cancel).
    void reject() override { closeBox_(); }

protected:
    // Enter presses the button that has the focus, as on the desktop the
    // screens were drawn for. No button is a default one otherwise, so
    // Enter in a text box presses nothing.
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            if (auto* button = qobject_cast<QPushButton*>(focusWidget());
                button && button->isVisible() && button->isEnabled())
                button->click();
            return;
        }
        QDialog::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent* event) override
    {
        event->ignore();
        closeBox_();
    }

private:
    std::function<void()> closeBox_;
};

}  // namespace

FormWindow::FormWindow(Form& form, Kind kind, const Metrics& metrics, QWidget* parent)
    : form_(form), kind_(kind), metrics_(metrics), binder_(metrics)
{
    auto closeBox = [this] { form_.closeBox(); };
    scroll_ = new QScrollArea;
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(false);
    scroll_->setFocusPolicy(Qt::NoFocus);
    canvas_ = new QWidget;
    canvas_->setObjectName(QString::fromStdString(form.name()));
    canvas_->setAutoFillBackground(true);
    scroll_->setWidget(canvas_);

    if (kind == Kind::MainWindow) {
        auto* main = new MainFormWindow(closeBox, parent);
        main->setCentralWidget(scroll_);
        scrollViewport_ = scroll_->viewport();
        scrollViewport_->installEventFilter(this);
        menus_.build(form.controls(), main->menuBar());
        window_ = main;
    } else {
        auto* dialog = new DialogFormWindow(closeBox, parent);
        dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        auto* layout = new QVBoxLayout(dialog);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(scroll_);
        window_ = dialog;
    }
    window_->setObjectName(QString::fromStdString(form.name()) + QLatin1String("Window"));

    binder_.bind(form, canvas_);
    for (const auto& b : binder_.bindings()) {
        b->onTabIndexChanged = [this] { scheduleTabOrder(); };
        b->onLayoutChanged = [this] { scheduleRefit(); };
    }
    updateTabOrder();

    form.setObserver(this);
    applyCaption();
    applyGeometry();
}

FormWindow::~FormWindow()
{
    form_.setObserver(nullptr);
    delete window_;
}

void FormWindow::formChanged(Form& /*form*/)
{
    if (!window_)
        return;
    applyCaption();
    applyGeometry();
    applyVisibility();
}

void FormWindow::applyCaption()
{
    window_->setWindowTitle(fromCore(form_.caption()));
}

void FormWindow::refit()
{
    if (window_)
        applyGeometry(false);
}

void FormWindow::scheduleRefit()
{
    // Controls that come into view past the designed edge (practice play
    // at the foot of the main screen) get room; many at once fit once.
    if (refitPending_)
        return;
    refitPending_ = true;
    QTimer::singleShot(0, this, [this] {
        refitPending_ = false;
        refit();
    });
}

void FormWindow::applyGeometry(bool place)
{
    const bool menuBar = kind_ == Kind::MainWindow && MenuBuilder::hasMenus(form_.controls());
    QSize client = metrics_.clientSize(form_.width(), form_.height(), menuBar);
    // The desktop's window frame is not the one the screens were drawn
    // for: controls that reach a little past the edge still get room.
    constexpr int Slack = 48;
    for (const Control* c : form_.controls()) {
        if (c->container() || c->kind() == ControlKind::Menu || c->kind() == ControlKind::Timer || !c->visible())
            continue;
        const QRect r = metrics_.rect(*c);
        if (r.right() < client.width() + Slack)
            client.setWidth(std::max(client.width(), r.right() + 3));
        if (r.bottom() < client.height() + Slack)
            client.setHeight(std::max(client.height(), r.bottom() + 3));
    }
    designedClient_ = client;
    const bool mainWindow = kind_ == Kind::MainWindow;
    if (!mainWindow && canvas_->size() != client)
        canvas_->resize(client);
    QSize outer = client;
    if (auto* main = qobject_cast<QMainWindow*>(window_.data())) {
        outer.rheight() += main->menuBar()->sizeHint().height();
        // The status line is made only by whoever has something to say.
        if (auto* status = main->findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly); status && !status->isHidden())
            outer.rheight() += status->sizeHint().height();
    }
    // A screen taller or wider than the desktop (the options with the
    // autorefractor's part on a 1024x768 laptop, any screen drawn larger)
    // fits it, and its content scrolls.
    if (const QScreen* screen = (window_->parentWidget() ? window_->parentWidget()->window() : window_.data())->screen()) {
        const QSize room = screen->availableGeometry().size() - QSize(16, 40);
        outer = outer.boundedTo(room.expandedTo(QSize(320, 240)));
    }
    if (mainWindow) {
        // The designed size is the smallest; a person may make the window
        // larger, and a new size set by the station (its "Home" button)
        // brings the designed one back.
        window_->setMinimumSize(outer);
        const bool sizeRequested = form_.geometryRequests() != geometryRequestsSeen_;
        geometryRequestsSeen_ = form_.geometryRequests();
        if (sizeRequested) {
            window_->setWindowState(window_->windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
            window_->resize(outer);
        }
        spreadIntoView();
    } else {
        // A window the person has made as large as the screen stays so.
        const bool personSized = window_->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
        if (window_->size() != outer && !personSized)
            window_->resize(outer);
    }
    if (place && (form_.left() != 0 || form_.top() != 0))
        window_->move(onScreen(QPoint(metrics_.px(form_.left()), metrics_.px(form_.top()))));
}

void FormWindow::spreadIntoView()
{
    const QSize view = scroll_->viewport()->size();
    const QSize canvas = designedClient_.expandedTo(view);
    if (canvas_->size() != canvas)
        canvas_->resize(canvas);
    const QSize extra = canvas - designedClient_;
    for (const auto& b : binder_.bindings())
        b->setExtraRoom(extra);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == scrollViewport_ && event->type() == QEvent::Resize && kind_ == Kind::MainWindow
        && designedClient_.isValid())
        spreadIntoView();
    return QObject::eventFilter(watched, event);
}

QPoint FormWindow::onScreen(QPoint place) const
{
    // The screens were placed for a desktop of their time: the capture
    // screen sits low, below a small laptop's edge and far below it when
    // the screens are drawn larger. It comes as low as fits.
    QWidget* anchor = window_->parentWidget() ? window_->parentWidget()->window() : window_.data();
    const QScreen* screen = anchor->screen();
    if (!screen)
        return place;
    const QRect room = screen->availableGeometry();
    QMargins frame(8, 31, 8, 8);  // until the desktop has framed the window
    if (window_->isVisible()) {
        const QRect outer = window_->frameGeometry(), inner = window_->geometry();
        frame = QMargins(inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom());
    }
    const int width = window_->width() + frame.left() + frame.right();
    const int height = window_->height() + frame.top() + frame.bottom();
    place.setX(std::max(room.left(), std::min(place.x(), room.right() + 1 - width)));
    place.setY(std::max(room.top(), std::min(place.y(), room.bottom() + 1 - height)));
    return place;
}

void FormWindow::applyVisibility()
{
    if (form_.visible()) {
        const bool quiet = !form_.modal() && typingElsewhere();
        const Qt::WindowModality modality = form_.modal() ? Qt::ApplicationModal : Qt::NonModal;
        if (window_->isVisible() && window_->windowModality() != modality)
            window_->hide();  // modality changes only while hidden
        if (!window_->isVisible()) {
            // The focus goes back where it was once this window goes: to
            // the caret of the window that was active, or of the one this
            // window belongs to while the desktop has not yet told which
            // window is active.
            QWidget* focus = QApplication::focusWidget();
            if (!focus && window_->parentWidget())
                focus = window_->parentWidget()->window()->focusWidget();
            returnFocus_ = focus && focus->window() != window_ ? focus : nullptr;
            window_->setWindowModality(modality);
            // A screen that rises by itself (the capture screen when a
            // device sends) comes to the front, but a volunteer typing in
            // another window keeps the keyboard.
            window_->setAttribute(Qt::WA_ShowWithoutActivating, quiet);
            window_->show();
        }
        window_->raise();
        if (!quiet)
            window_->activateWindow();
        // In a window that isn't active this only marks where the caret
        // goes once the person comes to it.
        if (!shownByCore_)
            focusFirst();
        if (quiet) {
            // Where the desktop activates a new window regardless, the
            // keyboard goes back at once to the box being typed in.
            QWidget* typing = QApplication::focusWidget();
            if (typing && typing->window() == window_)
                typing = returnFocus_;
            if (typing && typing->window() != window_) {
                typing->window()->activateWindow();
                typing->setFocus(Qt::OtherFocusReason);
            }
        }
        shownByCore_ = true;
        activateTimers();
    } else {
        shownByCore_ = false;
        if (window_->isVisible()) {
            // The caret goes back only from this window: a person who
            // works in another one meanwhile keeps it there.
            QWidget* focus = QApplication::focusWidget();
            const bool hadCaret = !focus || focus->window() == window_;
            window_->hide();
            if (hadCaret)
                restoreFocus();
            else
                returnFocus_ = nullptr;
        }
        emit hidden();
    }
}

bool FormWindow::typingElsewhere() const
{
    QWidget* focus = QApplication::focusWidget();
    if (!focus || focus->window() == window_)
        return false;
    return qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus) ||
        qobject_cast<QTextEdit*>(focus) || qobject_cast<QAbstractSpinBox*>(focus);
}

void FormWindow::restoreFocus()
{
    QWidget* back = returnFocus_;
    returnFocus_ = nullptr;
    if (!back || !back->isVisible() || !back->isEnabled())
        return;
    back->window()->activateWindow();
    back->setFocus(Qt::OtherFocusReason);
}

void FormWindow::activateTimers()
{
    if (timersActive_)
        return;
    timersActive_ = true;
    for (const auto& t : binder_.timers())
        t->setActive(true);
    emit timersActivated();
}

void FormWindow::settleFocus()
{
    // The screen's activation may have hidden the control that had the
    // caret, or shown an earlier one (a question shows the buttons that
    // fit it): start over.
    if (window_ && window_->isVisible())
        focusFirst();
}

void FormWindow::focusFirst()
{
    // A screen coming up has the caret in its first control by TabIndex.
    const ControlBinding* first = nullptr;
    for (const auto& b : binder_.bindings()) {
        QWidget* w = b->widget();
        if (!b->takesFocus() || !b->control().tabStop() || !w->isVisibleTo(window_) || !w->isEnabled())
            continue;
        if (!first || b->control().tabIndex() < first->control().tabIndex())
            first = b.get();
    }
    if (first)
        first->widget()->setFocus(Qt::OtherFocusReason);
}

void FormWindow::scheduleTabOrder()
{
    // A reversal changes many tab indexes at once: chain once afterwards.
    if (tabOrderPending_)
        return;
    tabOrderPending_ = true;
    QTimer::singleShot(0, this, [this] {
        tabOrderPending_ = false;
        updateTabOrder();
    });
}

void FormWindow::updateTabOrder()
{
    std::vector<ControlBinding*> focusable;
    for (const auto& b : binder_.bindings())
        if (b->takesFocus() && b->control().tabStop())
            focusable.push_back(b.get());
    std::stable_sort(focusable.begin(), focusable.end(),
        [](const ControlBinding* a, const ControlBinding* b) { return a->control().tabIndex() < b->control().tabIndex(); });
    for (size_t i = 1; i < focusable.size(); ++i)
        QWidget::setTabOrder(focusable[i - 1]->widget(), focusable[i]->widget());
}

}  // namespace vistrel::qt
