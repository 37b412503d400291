// A volunteer who presses anything: a few thousand random clicks, keys and
// typed texts over the real window of a station on the demo data, into
// every screen that comes up (a screen is worked for a while and then
// closed). The station must neither crash nor hang, and afterwards every
// text box, check box and option button shows what its control holds.
// VISTREL_RANDOM_SEED replays a run; VISTREL_RANDOM_ACTIONS sets its length.

#include "MenuBuilder.h"
#include "TextConversion.h"
#include "WindowTestSupport.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QtTest>

#include <set>

using namespace vistrel;

namespace {

int environmentNumber(const char* name, int otherwise)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok ? value : otherwise;
}

// What the random volunteer leaves alone: the ways out of the program.
const std::set<std::string> WaysOut = {"ExitProgram", "Cmd_CloseProgram"};

const char* const Typings[] = {"-2.25", "1.5", "180", "0", "45", "-", "+", ".", "abc", "99999", "-0.75", "x", " ",
    "12", "3.00", "-10", "2", "90"};

const Qt::Key Keys[] = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down,
    Qt::Key_Left, Qt::Key_Right, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown};

}  // namespace

class RandomUseTest : public QObject, public qt::DialogWatcher {
    Q_OBJECT

    std::unique_ptr<test::WindowStation> window_;
    qt::StationWindows* windows_ = nullptr;
    QRandomGenerator random_;
    int actionsLeft_ = 0;
    int depth_ = 0;
    int screensOpened_ = 0;

    int below(int n) { return static_cast<int>(random_.bounded(static_cast<quint32>(n))); }

    // The shown, enabled widgets of the controls of the screen in `window`.
    std::vector<QWidget*> targets(const qt::FormWindow& window)
    {
        std::vector<QWidget*> widgets;
        for (const Control* control : window.form().controls()) {
            if (WaysOut.count(control->name()))
                continue;
            QWidget* w = window.widgetFor(*control);
            if (w && w->isVisible() && w->isEnabled() && w->width() > 0 && w->height() > 0)
                widgets.push_back(w);
        }
        return widgets;
    }

    std::vector<QAction*> menuEntries()
    {
        std::vector<QAction*> entries;
        for (const auto& binding : windows_->main().menus().bindings())
            if (!binding->dropDown() && binding->action()->isEnabled() && !WaysOut.count(binding->menu().name()))
                entries.push_back(binding->action());
        return entries;
    }

    // One random thing done to the screen in `window`.
    void act(const qt::FormWindow& window)
    {
        --actionsLeft_;
        const std::vector<QWidget*> widgets = targets(window);
        if (widgets.empty())
            return;
        QWidget* w = widgets[static_cast<size_t>(below(static_cast<int>(widgets.size())))];
        const int choice = below(10);
        if (choice == 0 && &window == &windows_->main()) {
            const std::vector<QAction*> entries = menuEntries();
            if (!entries.empty())
                entries[static_cast<size_t>(below(static_cast<int>(entries.size())))]->trigger();
        } else if (auto* view = qobject_cast<QAbstractItemView*>(w); view && view->model()
                   && view->model()->rowCount() > 0) {
            const QModelIndex index = view->model()->index(below(view->model()->rowCount()), 0);
            view->scrollTo(index);
            const QPoint at = view->visualRect(index).center();
            if (choice < 3)
                QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
            else
                QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        } else if (auto* line = qobject_cast<QLineEdit*>(w); line && choice < 7) {
            line->setFocus();
            if (choice < 2)
                line->selectAll();
            QTest::keyClicks(line, QString::fromLatin1(Typings[below(static_cast<int>(std::size(Typings)))]));
        } else if (choice < 8) {
            w->setFocus();
            QTest::keyClick(w, Keys[below(static_cast<int>(std::size(Keys)))]);
        } else {
            QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
        }
        QCoreApplication::processEvents();
    }

public:
    // A screen that comes up is worked for a while, then closed by its
    // close box if it is still there.
    void modalShown(Form& form, QWidget* window) override
    {
        ++screensOpened_;
        QTimer::singleShot(0, window, [this, &form] {
            ++depth_;
            const qt::FormWindow* w = windows_->windowFor(form);
            for (int n = depth_ > 2 ? 0 : below(40); n > 0 && form.visible() && actionsLeft_ > 0; --n)
                act(*w);
            if (form.visible())
                form.closeBox();
            --depth_;
        });
    }
    void messageShown(QMessageBox& box) override
    {
        QTimer::singleShot(0, &box, [&box] { box.accept(); });
    }

private slots:
    void initTestCase()
    {
        const int seed = environmentNumber("VISTREL_RANDOM_SEED", static_cast<int>(QRandomGenerator::global()->bounded(1 << 30)));
        random_.seed(static_cast<quint32>(seed));
        actionsLeft_ = environmentNumber("VISTREL_RANDOM_ACTIONS", 3000);
        qInfo("seed %d (VISTREL_RANDOM_SEED=%d replays this run), %d actions", seed, seed, actionsLeft_);

        window_ = std::make_unique<test::WindowStation>();
        window_->useDemoData();
        window_->start(*this);
        windows_ = &window_->windows();
    }

    void cleanupTestCase() { window_.reset(); }

    void aVolunteerWhoPressesAnything()
    {
        while (actionsLeft_ > 0)
            act(windows_->main());
        // A burst of writes to a text box is shown once it is over.
        QTest::qWait(300);
        qInfo("%d screens came up", screensOpened_);
        QVERIFY(screensOpened_ > 0);

        // The window still shows what the station holds.
        for (const auto& window : windows_->all()) {
            for (const Control* control : window->form().controls()) {
                QWidget* w = window->widgetFor(*control);
                const QString name = QString::fromStdString(window->form().name() + "." + control->fullName());
                if (auto* line = qobject_cast<QLineEdit*>(w); line && control->kind() == ControlKind::TextBox)
                    QVERIFY2(line->text() == qt::fromCore(static_cast<const TextBox*>(control)->text()),
                        qPrintable(name + QStringLiteral(": shows \"") + line->text() + QStringLiteral("\", holds \"")
                            + qt::fromCore(static_cast<const TextBox*>(control)->text()) + QStringLiteral("\"")));
                else if (auto* box = qobject_cast<QCheckBox*>(w); box && control->kind() == ControlKind::CheckBox)
                    QVERIFY2((box->checkState() == Qt::Checked) == (static_cast<const CheckBox*>(control)->value() == 1),
                        qPrintable(name));
                else if (auto* radio = qobject_cast<QRadioButton*>(w); radio && control->kind() == ControlKind::OptionButton)
                    QVERIFY2(radio->isChecked() == static_cast<const OptionButton*>(control)->value(), qPrintable(name));
            }
        }
    }
};

QTEST_MAIN(RandomUseTest)
#include "RandomUseTest.moc"
