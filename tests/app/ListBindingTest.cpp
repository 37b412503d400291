// A list box's view stays in step with the core's rows, and choosing and
// scrolling in it reach the core as the screens expect.

#include "TestForm.h"

#include "ListModel.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QListView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QtTest>

using namespace vistrel;
using namespace vistrel::test;

class ListBindingTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestStation> station_;
    Station& station() { return station_->station; }

    static void compareRows(const QAbstractItemModel& model, const ListBox& list)
    {
        QCOMPARE(model.rowCount(), list.listCount());
        for (int r = 0; r < list.listCount(); ++r)
            QCOMPARE(model.index(r, 0).data().toString(), QString::fromStdString(list.row(r).text));
    }

    static QPoint rowCentre(QListView* view, int row)
    {
        return view->visualRect(view->model()->index(row, 0)).center();
    }

private slots:
    void initTestCase() { station_ = std::make_unique<TestStation>(); }
    void cleanupTestCase() { station_.reset(); }

    void modelFollowsSortedInsertsAndClears()
    {
        BoundForm b(station());
        auto* view = b.widget<QListView>(b.form.Lst_Rows);
        QVERIFY(view);
        QAbstractItemModelTester tester(view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        auto* random = QRandomGenerator::global();
        for (int i = 0; i < 60; ++i) {
            b.form.Lst_Rows.addItem("row " + std::to_string(random->bounded(1000)), i);
            compareRows(*view->model(), b.form.Lst_Rows);
        }
        b.form.Lst_Rows.clear();
        QCOMPARE(view->model()->rowCount(), 0);
        b.form.Lst_Rows.addItem("b");
        b.form.Lst_Rows.addItem("A");
        compareRows(*view->model(), b.form.Lst_Rows);
        QCOMPARE(view->model()->index(0, 0).data().toString(), QStringLiteral("A"));
    }

    void rowsPresentBeforeBindingAreShown()
    {
        TestForm form(station());
        form.Lst_Rows.addItem("early");
        qt::FormWindow window(form, qt::FormWindow::Kind::Dialog, qt::Metrics(1.0, 96.0));
        auto* view = qobject_cast<QListView*>(window.widgetFor(form.Lst_Rows));
        QCOMPARE(view->model()->rowCount(), 1);
        form.Lst_Rows.addItem("later");
        compareRows(*view->model(), form.Lst_Rows);
    }

    void aClickedRowIsChosenThenClickIsRaised()
    {
        BoundForm b(station());
        b.window.window()->show();
        for (const char* t : {"a", "b", "c", "d", "e"})
            b.form.Lst_Rows.addItem(t);
        auto* view = b.widget<QListView>(b.form.Lst_Rows);
        std::vector<int> seen;
        b.form.Lst_Rows.onClick = [&] { seen.push_back(b.form.Lst_Rows.listIndex()); };

        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowCentre(view, 2));
        QCOMPARE(seen, std::vector<int>({2}));
        // The chosen row again: Click again, as a person clicked.
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowCentre(view, 2));
        QCOMPARE(seen, std::vector<int>({2, 2}));
        // Keys choose too.
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Down);
        QCOMPARE(seen, std::vector<int>({2, 2, 3}));
        QCOMPARE(b.form.Lst_Rows.listIndex(), 3);
    }

    void theCoresChoiceIsShownWithoutRaisingClick()
    {
        BoundForm b(station());
        for (const char* t : {"a", "b", "c", "d", "e"})
            b.form.Lst_Rows.addItem(t);
        int clicks = 0;
        b.form.Lst_Rows.onClick = [&] { ++clicks; };
        auto* view = b.widget<QListView>(b.form.Lst_Rows);
        b.form.Lst_Rows.setListIndex(4);
        QCOMPARE(view->currentIndex().row(), 4);
        QVERIFY(view->selectionModel()->isRowSelected(4, {}));
        // A sorted insert before the chosen row moves the choice along.
        b.form.Lst_Rows.addItem("0");
        QCOMPARE(b.form.Lst_Rows.listIndex(), 5);
        QCOMPARE(view->currentIndex().row(), 5);
        b.form.Lst_Rows.setListIndex(-1);
        QVERIFY(!view->selectionModel()->hasSelection());
        QCOMPARE(clicks, 0);
    }

    void aHandlerThatChoosesAnotherRowWins()
    {
        BoundForm b(station());
        b.window.window()->show();
        for (const char* t : {"a", "b", "c"})
            b.form.Lst_Rows.addItem(t);
        b.form.Lst_Rows.onClick = [&] { b.form.Lst_Rows.setListIndex(0); };
        auto* view = b.widget<QListView>(b.form.Lst_Rows);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowCentre(view, 2));
        QCOMPARE(b.form.Lst_Rows.listIndex(), 0);
        QCOMPARE(view->currentIndex().row(), 0);
    }

    void scrollingSetsTopIndexAndTopIndexScrolls()
    {
        BoundForm b(station());
        b.window.window()->show();
        for (int i = 0; i < 200; ++i)
            b.form.Lst_Rows.addItem(QStringLiteral("%1").arg(i, 3, 10, QLatin1Char('0')).toStdString());
        auto* view = b.widget<QListView>(b.form.Lst_Rows);
        QCoreApplication::processEvents();
        int scrolls = 0;
        b.form.Lst_Rows.onScroll = [&] { ++scrolls; };
        view->verticalScrollBar()->setValue(50);
        QCOMPARE(b.form.Lst_Rows.topIndex(), 50);
        QCOMPARE(scrolls, 1);
        b.form.Lst_Rows.setTopIndex(120);
        QCOMPARE(view->indexAt(QPoint(1, 1)).row(), 120);
    }

    void thirtyTwoThousandRowsFillQuickly()
    {
        BoundForm b(station());
        b.window.window()->show();
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 32000; ++i)
            b.form.Lst_Stock.addItem("bag " + std::to_string(i % 977) + " " + std::to_string(i), i);
        QCoreApplication::processEvents();
        const qint64 ms = clock.elapsed();
        auto* view = b.widget<QListView>(b.form.Lst_Stock);
        QCOMPARE(view->model()->rowCount(), 32000);
        QVERIFY2(ms < 5000, qPrintable(QStringLiteral("%1 ms").arg(ms)));
        b.form.Lst_Stock.clear();
        QCOMPARE(view->model()->rowCount(), 0);
    }
};

QTEST_MAIN(ListBindingTest)
#include "ListBindingTest.moc"
