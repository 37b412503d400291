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
#include <QTemporaryDir>
#include <QtTest>

using namespace vistrel;
using test::key;
using test::writeFile;

class MainWindowResizeTest : public QObject {
    Q_OBJECT

    QTemporaryDir folders_;
    std::unique_ptr<qt::QtPlatform> platform_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<qt::StationWindows> windows_;
    test::Person watcher_;

    Frm_Vistrel& main() { return station_->vistrel(); }
    QWidget* window() { return windows_->main().window(); }
    // Where a control's widget stands in the window.
    QRect area(const Control& c)
    {
        QWidget* w = windows_->main().widgetFor(c);
        return QRect(w->mapTo(window(), QPoint()), w->size());
    }

private slots:
    void initTestCase()
    {
        const QString documents = folders_.filePath(QStringLiteral("documents"));
        const QString shared = folders_.filePath(QStringLiteral("shared"));
        qputenv("VISTREL_DOCUMENTS", documents.toUtf8());
        qputenv("VISTREL_SHARED", shared.toUtf8());
        qputenv("VISTREL_COM1", "/nonexistent/vistrel-line");
        writeFile(shared + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
            "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,"
            "32000\r\n");
        writeFile(documents + QStringLiteral("/Vistrel/Total_Inventory.txt"),
            "1,-2.00,0.00,0,0.00,-2.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n");
        platform_ = std::make_unique<qt::QtPlatform>();
        station_ = std::make_unique<Station>(*platform_);
        windows_ = std::make_unique<qt::StationWindows>(station_->forms(), main(), qt::Metrics(1.0, 96.0));
        platform_->setWindows(windows_.get());
        platform_->setDialogWatcher(&watcher_);
        window()->show();
        station_->start();
        QVERIFY(QTest::qWaitForWindowExposed(window()));
    }

    void cleanupTestCase()
    {
        windows_.reset();
        station_.reset();
        platform_.reset();
        qunsetenv("VISTREL_COM1");
    }

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
