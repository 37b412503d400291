// The main window made larger than designed: the result list and the stock
// lists take the room, the controls beside and below them follow, nothing
// overlaps, also after a turn of the screen; "Home" brings the designed
// size back.

#include "FormWindow.h"
#include "QtPlatform.h"
#include "WindowTestSupport.h"
#include "StationWindows.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <QMessageBox>
#include <QtTest>

using namespace vistrel;
using test::key;

class MainWindowResizeTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    test::Person watcher_;

    Frm_Vistrel& main() { return station_.station().vistrel(); }
    QWidget* window() { return station_.windows().main().window(); }
    // Where a control's widget stands in the window.
    QRect area(const Control& c)
    {
        QWidget* w = station_.windows().main().widgetFor(c);
        return QRect(w->mapTo(window(), QPoint()), w->size());
    }

private slots:
    void initTestCase()
    {
        station_.writePlainOptions();
        station_.writeInventory("1,-2.00,0.00,0,0.00,-2.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n");
        station_.start(watcher_);
    }

    void cleanupTestCase() { station_.stop(); }

    void theListsTakeTheRoomAWindowGains()
    {
        const QSize designed = window()->size();
        // The designed size is the smallest.
        QCOMPARE(window()->minimumSize().width(), designed.width());
        QVERIFY(window()->minimumSize().height() <= designed.height());
        const QRect results = area(main().Lst_LeftSelection);
        const QRect leftStock = area(main().Lst_LeftInventory);
        const QRect rightStock = area(main().Lst_RightInventory);
        const QRect persons = area(main().Frm_Persons);
        const QRect advice = area(main().Lbl_Recommendation);
        const QRect exitButton = area(main().Cmd_CloseProgram);
        const QRect search = area(main().Cmd_Search);

        window()->resize(designed + QSize(400, 300));
        QTRY_COMPARE(area(main().Lst_LeftSelection).height(), results.height() + 150);
        QCOMPARE(area(main().Lst_LeftSelection).width(), results.width() + 400);
        QCOMPARE(area(main().Lst_LeftInventory).height(), leftStock.height() + 150);
        QCOMPARE(area(main().Lst_LeftInventory).width(), leftStock.width() + 200);
        QCOMPARE(area(main().Lst_RightInventory).left(), rightStock.left() + 200);
        QCOMPARE(area(main().Frm_Persons).topLeft(), persons.topLeft() + QPoint(400, 150));
        QCOMPARE(area(main().Lbl_Recommendation).top(), advice.top() + 150);
        QCOMPARE(area(main().Cmd_CloseProgram).topLeft(), exitButton.topLeft() + QPoint(400, 150));
        // The entry area stays where it was designed.
        QCOMPARE(area(main().Cmd_Search), search);

        // Nothing of the lower half overlaps another part.
        const QRect stockLeft = area(main().Frm_LeftInventory), stockRight = area(main().Frm_RightInventory);
        QVERIFY(!area(main().Frm_Selection).intersects(area(main().Lbl_Recommendation)));
        QVERIFY(area(main().Lbl_Recommendation).bottom() < stockLeft.top());
        QVERIFY(!stockLeft.intersects(stockRight));
        QVERIFY(!stockRight.intersects(area(main().Frm_Persons)));
        QVERIFY(area(main().Frm_Persons).right() < area(main().Cmd_ClearReload).left());
        QVERIFY(area(main().Cmd_ListPersons).bottom() <= area(main().Frm_Persons).bottom());
        // A picture to look at, when asked for one.
        if (const QString folder = qEnvironmentVariable("VISTREL_SHOT_DIR"); !folder.isEmpty())
            window()->grab().save(folder + QStringLiteral("/main-larger.png"));
    }

    void aTurnOfTheScreenKeepsTheLargerLayoutWhole()
    {
        main().Cmd_Flip.click();
        const QRect stockLeft = area(main().Frm_LeftInventory), stockRight = area(main().Frm_RightInventory);
        QVERIFY(stockRight.right() < stockLeft.left());
        QVERIFY(!stockLeft.intersects(area(main().Frm_Persons)));
        QCOMPARE(stockLeft.width(), stockRight.width());
        main().Cmd_Flip.click();
        QVERIFY(area(main().Frm_LeftInventory).right() < area(main().Frm_RightInventory).left());
    }

    void homeBringsTheDesignedSizeBack()
    {
        const QSize larger = window()->size();
        main().Cmd_Sizer.click();
        QTRY_VERIFY(window()->size().width() < larger.width());
        QCOMPARE(window()->size().width(), window()->minimumSize().width());
    }
};

QTEST_MAIN(MainWindowResizeTest)
#include "MainWindowResizeTest.moc"
