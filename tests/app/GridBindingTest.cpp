// A grid is a table view whose headers are the core's heading row and
// column; moves, clicks and scrolls reach the core in its own way, and the
// text box the lens screen lays over a cell covers that cell and edits it.

#include "TestForm.h"

#include "GridBinding.h"

#include "inventory/CellLook.h"
#include "inventory/Frm_LensFrames.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace vistrel;
using namespace vistrel::test;

namespace {

// Counts under headings, drawn as the stock screens draw theirs.
class GridForm : public Form {
public:
    explicit GridForm(Station& station) : Form(station, "Frm_Grid")
    {
        setGeometry(0, 0, 9000, 6000);
        Grd_Counts.setGeometry(90, 300, 4800, 2400);
        Grd_Counts.setColWidth(0, 600);
        for (int c = 1; c < Grd_Counts.cols(); ++c) {
            Grd_Counts.setColWidth(c, 490);
            Grd_Counts.setTextMatrix(0, c, "C" + std::to_string(c));
        }
        for (int r = 1; r < Grd_Counts.rows(); ++r) {
            Grd_Counts.setTextMatrix(r, 0, "R" + std::to_string(r));
            for (int c = 1; c < Grd_Counts.cols(); ++c)
                Grd_Counts.setTextMatrix(r, c, std::to_string(r * 100 + c));
        }
        Cmd_Other.setGeometry(5400, 300, 1200, 375);
    }

    Grid Grd_Counts{*this, "Grd_Counts", 40, 6};
    CommandButton Cmd_Other{*this, "Cmd_Other"};
};

template <typename F>
struct Shown {
    Shown(F& form, double scale = 1.0) : form(form), window(form, qt::FormWindow::Kind::Dialog, qt::Metrics(scale, 96.0))
    {
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(window.window()));
    }
    ~Shown() { form.hide(); }
    QTableView* view(const Grid& grid) const { return qobject_cast<QTableView*>(window.widgetFor(grid)); }
    qt::GridBinding* binding(const Grid& grid) const
    {
        return dynamic_cast<qt::GridBinding*>(window.binder().bindingFor(grid));
    }
    F& form;
    qt::FormWindow window;
};

void clickCell(QTableView* view, int gridRow, int gridCol)
{
    const QRect r = view->visualRect(view->model()->index(gridRow - 1, gridCol - 1));
    QVERIFY(!r.isEmpty());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, r.center());
}

QColor background(const QModelIndex& index)
{
    return index.data(Qt::BackgroundRole).value<QBrush>().color();
}

}  // namespace

class GridBindingTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestStation> station_;
    Station& station() { return station_->station; }

private slots:
    void init() { station_ = std::make_unique<TestStation>(); }
    void cleanup() { station_.reset(); }

    void headingsAreHeadersCountsAreCellsColoursAreState()
    {
        GridForm form(station());
        Shown shown(form);
        const QAbstractItemModel* model = shown.view(form.Grd_Counts)->model();
        QCOMPARE(model->rowCount(), 39);
        QCOMPARE(model->columnCount(), 5);
        QCOMPARE(model->headerData(4, Qt::Horizontal).toString(), QStringLiteral("C5"));
        QCOMPARE(model->headerData(38, Qt::Vertical).toString(), QStringLiteral("R39"));
        QCOMPARE(model->index(2, 3).data().toString(), QStringLiteral("304"));
        form.Grd_Counts.setTextMatrix(0, 2, "-0.25");
        QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("-0.25"));

        form.Grd_Counts.setCellBackColor(1, 1, cell_look::Locked);
        form.Grd_Counts.setCellBackColor(1, 2, cell_look::Changed);
        form.Grd_Counts.setCellBackColor(1, 3, cell_look::Open);
        QCOMPARE(background(model->index(0, 0)), QColor(0xe0, 0xe0, 0xe0));
        QCOMPARE(background(model->index(0, 1)), QColor(0xff, 0xff, 0x80));
        QCOMPARE(background(model->index(0, 2)), QColor(Qt::white));
        QVERIFY(!model->index(0, 3).data(Qt::BackgroundRole).isValid());
    }

    void columnWidthsAndRowHeightAreTheCoresTwips()
    {
        GridForm form(station());
        Shown shown(form);
        QTableView* view = shown.view(form.Grd_Counts);
        // 600 twips from a grid at 90 twips: edges at 6 and 46 pixels.
        QCOMPARE(view->verticalHeader()->width(), 40);
        QCOMPARE(view->horizontalHeader()->height(), 16);
        QCOMPARE(view->rowHeight(0), 16);
        // 490 twips are 32.67 pixels: the edges are rounded, not the widths.
        QCOMPARE(view->columnViewportPosition(4) + view->columnWidth(4), 163);
        form.Grd_Counts.setColWidth(2, 900);
        QCOMPARE(view->columnWidth(1), 60);
    }

    void aPersonsMoveIsTheCoresMoveToAndTheProgramsIsOnlyShown()
    {
        GridForm form(station());
        Shown shown(form);
        QTableView* view = shown.view(form.Grd_Counts);
        Grid& grid = form.Grd_Counts;
        std::vector<std::string> events;
        auto at = [&] { return std::to_string(grid.row()) + "," + std::to_string(grid.col()); };
        grid.onLeaveCell = [&] { events.push_back("leave " + at()); };
        grid.onEnterCell = [&] { events.push_back("enter " + at()); };
        grid.onClick = [&] { events.push_back("click " + at()); };

        // Taking the focus chooses no cell.
        view->setFocus(Qt::TabFocusReason);
        QVERIFY(events.empty());
        clickCell(view, 3, 2);
        clickCell(view, 3, 2);
        QTest::keyClick(view, Qt::Key_Right);
        QCOMPARE(events, std::vector<std::string>({"leave 0,0", "enter 3,2", "click 3,2", "click 3,2", "leave 3,2",
                             "enter 3,3"}));

        events.clear();
        grid.setRow(5);
        QCOMPARE(view->currentIndex(), view->model()->index(4, 2));
        grid.setCol(0);  // a heading: no cell is current
        QVERIFY(!view->currentIndex().isValid());
        QVERIFY(events.empty());
    }

    void theFirstScrolledRowIsTheCoresTopRowBothWays()
    {
        GridForm form(station());
        Shown shown(form);
        QTableView* view = shown.view(form.Grd_Counts);
        int scrolls = 0;
        form.Grd_Counts.onScroll = [&] { ++scrolls; };
        view->verticalScrollBar()->setValue(10);
        QCOMPARE(form.Grd_Counts.topRow(), 11);
        form.Grd_Counts.setTopRow(4);
        QCOMPARE(view->rowAt(1), 3);
        QCOMPARE(scrolls, 2);  // not one more from the view following the core
    }
};

// The lens screen's grids, with the station's cell rules behind them.
class LensGridTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestStation> station_;
    Frm_LensFrames& lens() { return station_->station.lensFrames(); }

    QLineEdit* unlock(const Shown<Frm_LensFrames>& shown, int half)
    {
        qobject_cast<QPushButton*>(shown.window.widgetFor(lens().Cmd_LensUnlock[half]))->click();
        return qobject_cast<QLineEdit*>(shown.window.widgetFor(lens().Txt_LensOverlay[half]));
    }

private slots:
    void init() { station_ = std::make_unique<TestStation>(); }
    void cleanup() { station_.reset(); }

    void theOverlayLandsOnTheCellAndATypedCountIsKeptOnLeaving_data()
    {
        QTest::addColumn<double>("scale");
        QTest::newRow("designed size") << 1.0;
        QTest::newRow("twice") << 2.0;
    }

    void theOverlayLandsOnTheCellAndATypedCountIsKeptOnLeaving()
    {
        QFETCH(double, scale);
        Shown shown(lens(), scale);
        Grid& grid = lens().MSF_LensInventory0;
        QTableView* view = shown.view(grid);
        QLineEdit* editor = unlock(shown, 0);
        grid.setTextMatrix(12, 5, "003");
        clickCell(view, 12, 5);
        const QRect cell = shown.binding(grid)->cellRect(12, 5);
        QVERIFY(editor->isVisible());
        QCOMPARE(editor->geometry(), cell);
        QCOMPARE(view->parentWidget()->childAt(cell.center()), editor);  // above the grid
        QVERIFY(editor->hasFocus());

        QTest::keyClicks(editor, "12");  // replaces the count shown
        clickCell(view, 20, 2);
        QCOMPARE(grid.textMatrix(12, 5), std::string("012"));
        QCOMPARE(background(view->model()->index(11, 4)), QColor(0xff, 0xff, 0x80));
        QCOMPARE(editor->geometry(), shown.binding(grid)->cellRect(20, 2));
    }

    void keysInTheOverlayMoveFromCellToCellAndAScrollHidesIt()
    {
        Shown shown(lens());
        Grid& grid = lens().MSF_LensInventory1;
        QTableView* view = shown.view(grid);
        QLineEdit* editor = unlock(shown, 1);
        const int lastShown = view->rowAt(view->viewport()->height() - 1) + 1;
        clickCell(view, lastShown, 12);
        auto at = [&] { return std::make_pair(grid.row(), grid.col()); };

        QTest::keyClicks(editor, "4");
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(grid.textMatrix(lastShown, 12), std::string("004"));
        QCOMPARE(at(), std::make_pair(lastShown + 1, 12));
        QTest::keyClick(editor, Qt::Key_Up);
        QTest::keyClick(editor, Qt::Key_Down);
        QTest::keyClick(editor, Qt::Key_Tab);
        QTest::keyClick(editor, Qt::Key_Tab);  // past the last column: the next row
        QCOMPARE(at(), std::make_pair(lastShown + 2, 1));
        QTest::keyClick(editor, Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(at(), std::make_pair(lastShown + 1, 13));
        // Rows below the last one shown came into view, the overlay with them.
        QCOMPARE(view->verticalScrollBar()->value(), grid.topRow() - 1);
        QCOMPARE(editor->geometry(), shown.binding(grid)->cellRect(lastShown + 1, 13));
        QVERIFY(editor->hasFocus());

        view->verticalScrollBar()->setValue(0);
        QCOMPARE(grid.topRow(), 1);
        QVERIFY(!editor->isVisible());
    }
};

int main(int argc, char** argv)
{
    // The lens screen's saves append to the grid journal in the shared folder.
    QTemporaryDir folders;
    qputenv("VISTREL_SHARED", folders.filePath(QStringLiteral("shared")).toUtf8());
    qputenv("VISTREL_DOCUMENTS", folders.filePath(QStringLiteral("documents")).toUtf8());
    QApplication app(argc, argv);
    GridBindingTest grids;
    LensGridTest lens;
    return QTest::qExec(&grids, argc, argv) | QTest::qExec(&lens, argc, argv);
}

#include "GridBindingTest.moc"
