// Screens as windows: shown and hidden by the core, the close box asked of
// the core, modal screens waited for, menus built from menu controls, and
// the event pump of long loads.

#include "TestForm.h"

#include "MenuBuilder.h"
#include "StationWindows.h"

#include <QCloseEvent>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

using namespace vistrel;
using namespace vistrel::test;

namespace {

class MenuForm : public Form {
public:
    explicit MenuForm(Station& station) : Form(station, "Frm_Menus")
    {
        setCaption("Menus");
        setGeometry(0, 0, 6000, 4000);
        File.setCaption("&File");
        Save.setCaption("&Save");
        Line.setCaption("-");
        Quit.setCaption("&Quit");
        Options.setCaption("&Options");
    }
    Menu File{*this, "File"};
    Menu Save{*this, "Save", &File};
    Menu Line{*this, "Line", &File};
    Menu Quit{*this, "Quit", &File};
    Menu Options{*this, "Options"};
    Label Lbl_Info{*this, "Lbl_Info"};
};

}  // namespace

class FormWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestStation> station_;
    Station& station() { return station_->station; }

private slots:
    void initTestCase() { station_ = std::make_unique<TestStation>(); }
    void cleanupTestCase() { station_.reset(); }

    void theWindowFollowsTheForm()
    {
        BoundForm b(station());
        QWidget* w = b.window.window();
        QVERIFY(!w->isVisible());
        QCOMPARE(w->windowTitle(), QStringLiteral("Test screen"));
        b.form.show();
        QVERIFY(w->isVisible());
        QCOMPARE(w->windowModality(), Qt::NonModal);
        b.form.setCaption("Renamed");
        QCOMPARE(w->windowTitle(), QStringLiteral("Renamed"));
        b.form.setGeometry(0, 0, 9120, 6165);
        QCOMPARE(b.window.canvas()->size(), QSize(600, 380));
        QSignalSpy hidden(&b.window, &qt::FormWindow::hidden);
        b.form.hide();
        QVERIFY(!w->isVisible());
        QCOMPARE(hidden.count(), 1);
    }

    void controlsJustPastTheEdgeStillGetRoom()
    {
        BoundForm b(station());
        b.form.setGeometry(0, 0, 9120, 6165);  // 600 x 380 inside
        b.form.Cmd_Go.setGeometry(8700, 5550, 450, 300);  // to 610 x 390
        b.form.setCaption("again");  // any change of the form re-fits
        QCOMPARE(b.window.canvas()->size(), QSize(612, 392));
        // Far outside: a control put away, not a control to show.
        b.form.Cmd_Go.setGeometry(20000, 20000, 450, 300);
        b.form.setCaption("once more");
        QCOMPARE(b.window.canvas()->size(), QSize(600, 380));
    }

    void aControlShownPastTheEdgeGetsRoomAtOnce()
    {
        BoundForm b(station());
        b.form.setGeometry(0, 0, 9120, 6165);
        b.form.Cmd_Go.setGeometry(8700, 5550, 450, 300);
        b.form.Cmd_Go.setVisible(false);
        b.form.setCaption("fitted without the button");
        QCOMPARE(b.window.canvas()->size(), QSize(600, 380));
        // Shown by a handler, as practice play shows its controls.
        b.form.Cmd_Go.setVisible(true);
        QTRY_COMPARE(b.window.canvas()->size(), QSize(612, 392));
        b.form.Cmd_Go.setVisible(false);
        QTRY_COMPARE(b.window.canvas()->size(), QSize(600, 380));
    }

    void aScreenPlacedLowStaysOnTheScreen()
    {
        BoundForm b(station());
        const QRect room = b.window.window()->screen()->availableGeometry();
        // Drawn 1.5 screens down, as the capture screen is on a small one.
        b.form.setGeometry(1500, (room.height() * 3 / 2) * 15, 6000, 3000);
        b.form.show();
        const QWidget* w = b.window.window();
        QCOMPARE(w->x(), 100);
        QVERIFY2(w->y() >= room.top() && w->y() + w->height() <= room.bottom() + 1,
            qPrintable(QStringLiteral("%1 + %2 in %3").arg(w->y()).arg(w->height()).arg(room.height())));
        b.form.hide();
    }

    void theCaretStartsInTheFirstControlByTabIndex()
    {
        BoundForm b(station());
        int next = 5;
        for (Control* c : b.form.controls())
            c->setTabIndex(next++);
        b.form.Txt_Age.setTabIndex(1);
        b.form.Cmd_Go.setTabIndex(0);
        b.form.Cmd_Go.setEnabled(false);  // cannot take the caret
        b.form.show();
        QCOMPARE(b.window.window()->focusWidget(), b.window.widgetFor(b.form.Txt_Age));
        b.form.hide();
    }

    void theCloseBoxAsksTheCore()
    {
        BoundForm b(station());
        int asked = 0;
        b.form.onCloseBox = [&] { ++asked; };  // the screen says no
        b.form.show();
        QVERIFY(!b.window.window()->close());
        QCOMPARE(asked, 1);
        QVERIFY(b.window.window()->isVisible());
        QVERIFY(b.form.visible());

        b.form.onCloseBox = nullptr;  // hiding, by default
        b.window.window()->close();
        QVERIFY(!b.form.visible());
        QVERIFY(!b.window.window()->isVisible());
    }

    void escapeIsTheCloseBoxOfADialog()
    {
        BoundForm b(station());
        int asked = 0;
        b.form.onCloseBox = [&] { ++asked; };  // the screen stays
        b.form.show();
        QTest::keyClick(b.window.window(), Qt::Key_Escape);
        QCOMPARE(asked, 1);
        QVERIFY(b.window.window()->isVisible());
        QVERIFY(b.form.visible());
        b.form.onCloseBox = nullptr;
        QTest::keyClick(b.window.window(), Qt::Key_Escape);
        QVERIFY(!b.form.visible());
        QVERIFY(!b.window.window()->isVisible());
    }

    void enterPressesTheFocusedButtonOnlyAndNothingFromATextBox()
    {
        BoundForm b(station());
        int goes = 0;
        b.form.Cmd_Go.onClick = [&] { ++goes; };
        b.form.show();
        QWidget* name = b.window.widgetFor(b.form.Txt_Name);
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(goes, 0);
        QWidget* go = b.window.widgetFor(b.form.Cmd_Go);
        go->setFocus();
        QTest::keyClick(go, Qt::Key_Return);
        QTest::keyClick(go, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(goes, 2);
        // Focus left on a button does not make it the default.
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(goes, 2);
        b.form.hide();
    }

    void aModalScreenIsWaitedForUntilTheCoreHidesIt()
    {
        qt::QtPlatform platform;
        Station modalStation(platform);
        TestForm mainForm(modalStation);
        TestForm form(modalStation);
        qt::StationWindows windows({&mainForm, &form}, mainForm, qt::Metrics(1.0, 96.0));
        QVERIFY(qobject_cast<QMainWindow*>(windows.main().window()));
        platform.setWindows(&windows);
        qt::FormWindow* window = windows.windowFor(form);
        QVERIFY(window);

        form.Cmd_Go.onClick = [&] { form.hide(); };
        bool wasModal = false;
        QTimer::singleShot(50, [&] {
            wasModal = window->window()->isVisible() && window->window()->windowModality() == Qt::ApplicationModal;
            qobject_cast<QPushButton*>(window->widgetFor(form.Cmd_Go))->click();
        });
        QElapsedTimer clock;
        clock.start();
        form.show(true);  // returns once the button has hidden it
        QVERIFY(clock.elapsed() >= 40);
        QVERIFY(wasModal);
        QVERIFY(!form.visible());
        QVERIFY(!window->window()->isVisible());
    }

    void theMenuBarIsBuiltFromMenuControls()
    {
        MenuForm form(station());
        qt::FormWindow window(form, qt::FormWindow::Kind::MainWindow, qt::Metrics(1.0, 96.0));
        auto* main = qobject_cast<QMainWindow*>(window.window());
        QVERIFY(main);
        const QList<QAction*> top = main->menuBar()->actions();
        QCOMPARE(top.size(), 2);
        QCOMPARE(top[0]->text(), QStringLiteral("&File"));
        QVERIFY(top[0]->menu());
        QCOMPARE(top[1]->text(), QStringLiteral("&Options"));
        QVERIFY(!top[1]->menu());

        const QList<QAction*> entries = top[0]->menu()->actions();
        QCOMPARE(entries.size(), 3);
        QVERIFY(entries[1]->isSeparator());

        int saves = 0, options = 0, opened = 0;
        form.Save.onClick = [&] { ++saves; };
        form.Options.onClick = [&] { ++options; };
        form.File.onClick = [&] { ++opened; };
        entries[0]->trigger();
        top[1]->trigger();
        QCOMPARE(saves, 1);
        QCOMPARE(options, 1);
        emit top[0]->menu()->aboutToShow();
        QCOMPARE(opened, 1);

        form.Quit.setVisible(false);
        QVERIFY(!entries[2]->isVisible());
        form.Save.setEnabled(false);
        QVERIFY(!entries[0]->isEnabled());
        form.Save.setChecked(true);
        QVERIFY(entries[0]->isChecked());
        form.Save.setEnabled(true);
        // Qt would untick it on a trigger; the core decides.
        entries[0]->trigger();
        QVERIFY(entries[0]->isChecked());
        form.Options.setCaption("&Settings");
        QCOMPARE(top[1]->text(), QStringLiteral("&Settings"));
    }

    void doEventsRunsPendingEventsButNotOnEveryCall()
    {
        qt::QtPlatform platform;
        platform.setEventPumpInterval(30);
        int delivered = 0;
        QTimer::singleShot(0, [&] { ++delivered; });
        platform.doEvents();
        QCOMPARE(delivered, 1);

        QTimer::singleShot(0, [&] { ++delivered; });
        platform.doEvents();  // too soon after the last pass
        QCOMPARE(delivered, 1);

        // A pending event is served once the interval has passed.
        QElapsedTimer clock;
        clock.start();
        while (delivered < 2 && clock.elapsed() < 1000)
            platform.doEvents();
        QCOMPARE(delivered, 2);
        QVERIFY2(clock.elapsed() >= 20, qPrintable(QString::number(clock.elapsed())));

        // A long load calls it for every record: that stays cheap.
        clock.restart();
        for (int i = 0; i < 32000; ++i)
            platform.doEvents();
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    }
};

QTEST_MAIN(FormWindowTest)
#include "FormWindowTest.moc"
