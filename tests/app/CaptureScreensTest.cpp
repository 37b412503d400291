// The autorefractor's screens in their windows, worked by the keyboard: the
// readings browser and practice play at the foot of the main screen.

#include "FormWindow.h"
#include "QtPlatform.h"
#include "WindowTestSupport.h"
#include "StationWindows.h"

#include "autorefractor/Frm_AutoReadings.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::columnsLineUp;
using test::key;
using test::tabTo;
using test::writeFile;

namespace {

// Three readings: persons 7, 3 and 7 again.
const char* const Readings =
    "7,45,-2.25,-0.75,180,1.50,-0.50,90,3/12/2025,10:42:00\r\n"
    "3,60,0.50,-0.25,10,0.75,-0.25,170,3/12/2025,10:50:13\r\n"
    "7,45,-2.00,-0.50,175,1.25,-0.50,85,3/12/2025,11:02:40\r\n";

}  // namespace

class CaptureScreensTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    test::Person person_;

    Frm_Vistrel& main() { return station_.station().vistrel(); }
    qt::FormWindow& mainWindow() { return station_.windows().main(); }

private slots:
    void initTestCase()
    {
        writeFile(station_.shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE, 1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
            "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,"
            "32000\r\n");
        station_.writeInventory("1,-2.25,-0.75,180,0.00,1.50,-0.50,90,0.00,0,0,0,0,0,M,0,\"\",\"\",\"\"\r\n");
        writeFile(station_.documents() + QStringLiteral("/Vistrel/AutoRefractorReadings.txt"), Readings);
        station_.start(person_);
    }

    void cleanupTestCase() { station_.stop(); }

    // ---- the capture screen ----
    void theCaptureScreenGoesThroughOneEyeThenTheOther()
    {
        Frm_Autorefractor& capture = station_.station().autorefractor();
        qt::FormWindow* window = station_.windows().windowFor(capture);
        QStringList order;
        person_.answer = [&](Form&, QWidget*) {
            for (int i = 0; i < 6; ++i) {
                for (const auto& b : window->binder().bindings())
                    if (b->widget() == QApplication::focusWidget())
                        order << QString::fromStdString(b->control().fullName());
                key(Qt::Key_Tab);
            }
            key(Qt::Key_Escape);
            QVERIFY(!capture.visible());
        };
        main().AutoRefractorDataCapture.click();
        QCOMPARE(order, QStringList({"Txt_AutoSphere(0)", "Txt_AutoCylinder(0)", "Txt_AutoAxis(0)",
                            "Txt_AutoSphere(1)", "Txt_AutoCylinder(1)", "Txt_AutoAxis(1)"}));
    }

    // ---- the readings browser ----
    void theBrowserLoadsReadingsByKeysAndStaysOpen()
    {
        Frm_AutoReadings& browser = station_.station().autoReadings();
        qt::FormWindow* window = station_.windows().windowFor(browser);
        auto* byTime = qobject_cast<QListView*>(window->widgetFor(browser.Lst_AutorefractorReadings));
        auto* byPerson = qobject_cast<QListView*>(window->widgetFor(browser.Lst_AutorefractorReadingsSorted));
        bool worked = false;
        person_.answer = [&](Form&, QWidget*) {
            QCOMPARE(browser.Lst_AutorefractorReadings.listCount(), 3);
            // Columns stand under each other only in a fixed-pitch face.
            QVERIFY(columnsLineUp(byTime->font()));
            QVERIFY(columnsLineUp(byPerson->font()));
            QVERIFY(columnsLineUp(window->widgetFor(browser.Lbl_Heading)->font()));
            // A whole row is in view, not cut at the list's edge.
            const QString row = byTime->model()->index(0, 0).data().toString();
            QVERIFY(byTime->fontMetrics().horizontalAdvance(row) < byTime->viewport()->width());

            // The list has the caret; Down then Enter loads the second reading.
            QCOMPARE(QApplication::focusWidget(), byTime);
            key(Qt::Key_Down);
            key(Qt::Key_Down);
            key(Qt::Key_Return);
            QCOMPARE(QString::fromStdString(main().Txt_PersonNumber.text()), QStringLiteral("00003"));
            QCOMPARE(QString::fromStdString(main().Txt_Axis_Left.text()), QStringLiteral("170"));
            QVERIFY(browser.visible());
            QCOMPARE(QApplication::focusWidget(), byTime);

            // Tab to the sort box, Space: the rows by person (a person's readings
            // by sphere next), and a click loads one.
            key(Qt::Key_Tab);
            QVERIFY(qobject_cast<QCheckBox*>(QApplication::focusWidget()));
            key(Qt::Key_Space);
            QCOMPARE(browser.Chk_SortPerson.value(), 1);
            QVERIFY(byPerson->isVisible() && !byTime->isVisible());
            QVERIFY(byPerson->model()->index(0, 0).data().toString().startsWith(QStringLiteral("00003")));
            QTest::mouseClick(byPerson->viewport(), Qt::LeftButton, {}, byPerson->visualRect(byPerson->model()->index(1, 0)).center());
            QCOMPARE(QString::fromStdString(main().Txt_Sphere_Right.text()), QStringLiteral("-2.00 "));
            QVERIFY(browser.visible());

            // Alt+E leaves (a button pressed by its key shows itself down a moment).
            key(Qt::Key_E, Qt::AltModifier);
            QTRY_VERIFY(!browser.visible());
            worked = true;
        };
        main().LoadPreviousAutorefractorMeasurements.click();
        QVERIFY(worked);
        QVERIFY(!browser.visible());
    }

    // ---- practice play ----
    void practicePlayStepsByKeysAndClicks()
    {
        QWidget* canvas = mainWindow().canvas();
        main().EnableDisablePracticePlay.click();
        QVERIFY(main().PracticePlayEnabled);
        QWidget* back = mainWindow().widgetFor(main().Img_Backwards);
        QWidget* forward = mainWindow().widgetFor(main().Img_Forward);
        QWidget* number = mainWindow().widgetFor(main().Txt_Play_Person_Nr);
        // The controls at the foot of the screen get room in the window.
        QTRY_VERIFY(canvas->height() >= number->geometry().bottom());
        QVERIFY(mainWindow().window()->rect().contains(number->mapTo(mainWindow().window(), number->rect().bottomRight())));

        // The number box takes a person; Tab reaches ">", and Space steps on.
        number->setFocus();
        QTest::keyClicks(number, QStringLiteral("1"));
        QCOMPARE(QString::fromStdString(main().Txt_PersonNumber.text()), QStringLiteral("1"));
        QVERIFY(tabTo(forward));
        key(Qt::Key_Space);
        QCOMPARE(QString::fromStdString(main().Txt_Play_Person_Nr.text()), QStringLiteral("2"));
        key(Qt::Key_Return);
        QCOMPARE(QString::fromStdString(main().Txt_Play_Person_Nr.text()), QStringLiteral("3"));
        // The practice copy holds person 3's reading.
        QCOMPARE(QString::fromStdString(main().Txt_Age.text()).trimmed(), QStringLiteral("60"));
        QCOMPARE(QString::fromStdString(main().Txt_Axis_Right.text()).trimmed(), QStringLiteral("10"));

        // "<" by Shift+Tab and by the mouse.
        QVERIFY(tabTo(back, Qt::Key_Backtab));
        key(Qt::Key_Space);
        QCOMPARE(QString::fromStdString(main().Txt_Play_Person_Nr.text()), QStringLiteral("2"));
        QTest::mouseClick(back, Qt::LeftButton);
        QCOMPARE(QString::fromStdString(main().Txt_Play_Person_Nr.text()), QStringLiteral("1"));
        QTest::mouseClick(back, Qt::LeftButton);
        QCOMPARE(QString::fromStdString(main().Txt_Play_Person_Nr.text()), QStringLiteral("1"));

        main().EnableDisablePracticePlay.click();
        QVERIFY(!forward->isVisible());
        QCOMPARE(person_.messages, 0);
    }
};

QTEST_MAIN(CaptureScreensTest)
#include "CaptureScreensTest.moc"
