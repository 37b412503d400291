#include "GridBinding.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace vistrel::qt {

namespace {

void fixHeader(QHeaderView* header)
{
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(1);
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setTextElideMode(Qt::ElideNone);
}

}  // namespace

GridBinding::GridBinding(Grid& grid, QWidget* parent, const Metrics& metrics)
    : ControlBinding(grid, new QTableView(parent), metrics),
      grid_(grid),
      view_(static_cast<QTableView*>(widget())),
      model_(new GridModel(grid, this))
{
    view_->setModel(model_);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The cell's colour is its state: no selection paints over it; the
    // current cell shows by the focus frame.
    view_->setSelectionMode(QAbstractItemView::NoSelection);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->setWordWrap(false);
    view_->setTextElideMode(Qt::ElideNone);
    view_->setCornerButtonEnabled(false);
    // Tab leaves the grid, as it leaves any other control.
    view_->setTabKeyNavigation(false);
    // Cells lie where the core counts them from: the grid's own top left.
    view_->setFrameShape(QFrame::NoFrame);
    fixHeader(view_->horizontalHeader());
    fixHeader(view_->verticalHeader());
    // The view would pick its first cell when it first takes the focus: a
    // move the person never made. Only the core or the person moves.
    view_->setCurrentIndex(QModelIndex());

    // The view scrolls only where this binding tells the core first: a
    // scroll the view would do later by itself (after a click on a cell cut
    // by the edge) would move the cell away from under the core's editor.
    view_->setAutoScroll(false);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& current) {
            if (mirroring() || !current.isValid())
                return;
            bringRowIntoView(current.row());
            grid_.moveTo(GridModel::gridRow(current), GridModel::gridCol(current));
        });
    viewport_ = view_->viewport();
    viewport_->installEventFilter(this);
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, &GridBinding::scrolled);
    connect(view_->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
        // The first scrolled row set before the view had its size.
        if (view_->verticalScrollBar()->value() != grid_.topRow() - 1)
            showTopRow();
    });
    connect(view_->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        // The core counts no sideways scroll: whatever lies over a cell
        // is off its place now, as after any scroll.
        if (grid_.onScroll)
            grid_.onScroll();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusChanged(now); });
}

GridBinding::~GridBinding()
{
    if (editor_)
        editor_->removeEventFilter(this);
}

void GridBinding::applyAllOwn()
{
    model_->setPalette(view_->palette());
    model_->cellsChanged();
    applySizes();
    showCurrentCell();
    showTopRow();
}

void GridBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::Cells:
        model_->cellsChanged();
        break;
    case Prop::CurrentCell:
        showCurrentCell();
        break;
    case Prop::Scroll:
        showTopRow();
        break;
    case Prop::Geometry:
        ControlBinding::apply(prop);
        applySizes();
        break;
    case Prop::BackColor:
    case Prop::ForeColor:
        ControlBinding::apply(prop);
        model_->setPalette(view_->palette());
        model_->cellsChanged();
        break;
    default:
        ControlBinding::apply(prop);
    }
}

void GridBinding::applySizes()
{
    // Edges are rounded from the grid's place on, as Metrics rounds the
    // place of a control: a text box the core lays over a cell by its
    // twips then covers exactly that cell.
    const int left = grid_.left();
    auto edge = [&](int twipsFromGrid) { return metrics().px(left + twipsFromGrid) - metrics().px(left); };
    int twips = grid_.colWidth(0);
    view_->verticalHeader()->setFixedWidth(edge(twips));
    for (int c = 1; c < grid_.cols(); ++c) {
        const int from = edge(twips);
        twips += grid_.colWidth(c);
        view_->horizontalHeader()->resizeSection(c - 1, std::max(1, edge(twips) - from));
    }
    const int rowHeight = std::max(1, metrics().px(grid_.rowHeight()));
    view_->horizontalHeader()->setFixedHeight(rowHeight);
    view_->verticalHeader()->setDefaultSectionSize(rowHeight);
}

void GridBinding::showCurrentCell()
{
    Mirror mirror(*this);
    QItemSelectionModel* selection = view_->selectionModel();
    const QModelIndex cell = model_->indexOfCell(grid_.row(), grid_.col());
    if (!cell.isValid()) {
        selection->clearCurrentIndex();
        return;
    }
    if (selection->currentIndex() == cell)
        return;
    // A move by the program shows where the current cell is, without
    // scrolling to it, as the grid always did.
    selection->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
}

void GridBinding::showTopRow()
{
    showingTopRow_ = true;
    view_->verticalScrollBar()->setValue(grid_.topRow() - 1);
    showingTopRow_ = false;
}

void GridBinding::scrolled(int value)
{
    if (showingTopRow_)
        return;
    grid_.setTopRow(value + 1);
}

QRect GridBinding::cellRect(int gridRow, int gridCol) const
{
    const QModelIndex cell = model_->indexOfCell(gridRow, gridCol);
    if (!cell.isValid())
        return {};
    // The whole cell, its grid lines included (visualRect leaves them out).
    const QRect r(view_->columnViewportPosition(cell.column()), view_->rowViewportPosition(cell.row()),
        view_->columnWidth(cell.column()), view_->rowHeight(cell.row()));
    if (r.isEmpty() || !view_->viewport()->rect().intersects(r))
        return {};
    QWidget* container = view_->parentWidget();
    return QRect(view_->viewport()->mapTo(container, r.topLeft()), r.size());
}

bool GridBinding::liesOnCurrentCell(const QWidget* widget) const
{
    if (!widget || widget->parentWidget() != view_->parentWidget() || !widget->isVisible())
        return false;
    const QRect cell = cellRect(grid_.row(), grid_.col());
    return !cell.isEmpty() && cell.contains(widget->geometry().center());
}

void GridBinding::focusChanged(QWidget* now)
{
    auto* edit = qobject_cast<QLineEdit*>(now);
    if (edit == editor_)
        return;
    if (edit && !liesOnCurrentCell(edit))
        edit = nullptr;
    if (editor_)
        editor_->removeEventFilter(this);
    editor_ = edit;
    if (editor_)
        editor_->installEventFilter(this);
}

bool GridBinding::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == viewport_) {
        // A click is a press on a cell and a release within the grid; the
        // press has made the cell current already.
        switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            pressedOnCell_ = mouse->button() == Qt::LeftButton && view_->indexAt(mouse->position().toPoint()).isValid();
            break;
        }
        case QEvent::MouseButtonRelease: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const bool click = pressedOnCell_ && mouse->button() == Qt::LeftButton
                && view_->viewport()->rect().contains(mouse->position().toPoint());
            pressedOnCell_ = false;
            if (click && control().enabled())
                control().click();
            break;
        }
        case QEvent::MouseButtonDblClick:
            pressedOnCell_ = false;
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && control().enabled())
                control().dblClick();
            break;
        default:
            break;
        }
    }
    if (watched == editor_ && editor_ && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (liesOnCurrentCell(editor_) && editorKey(key->key(), key->modifiers()))
            return true;
    }
    return ControlBinding::eventFilter(watched, event);
}

bool GridBinding::editorKey(int key, Qt::KeyboardModifiers modifiers)
{
    const int lastRow = grid_.rows() - 1;
    const int lastCol = grid_.cols() - 1;
    int row = grid_.row();
    int col = grid_.col();
    const bool shift = modifiers & Qt::ShiftModifier;
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        row = std::min(row + 1, lastRow);
        break;
    case Qt::Key_Up:
        row = std::max(row - 1, 1);
        break;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (key == Qt::Key_Backtab || shift) {
            // Shift+Tab at the first column goes on at the end of the row above.
            if (col > 1)
                --col;
            else if (row > 1)
                --row, col = lastCol;
        } else if (col < lastCol) {
            ++col;
        } else if (row < lastRow) {
            ++row, col = 1;
        }
        break;
    default:
        return false;
    }
    if (row == grid_.row() && col == grid_.col())
        return true;
    // The cell comes into view first, so that the core places its editor
    // by the rows as they will stand.
    bringRowIntoView(row - 1);
    grid_.moveTo(row, col);
    return true;
}

void GridBinding::bringRowIntoView(int viewRow)
{
    // Up and down only: the core counts the rows scrolled, not the columns.
    QScrollBar* bar = view_->verticalScrollBar();
    const int whole = std::max(1, view_->viewport()->height() / std::max(1, view_->verticalHeader()->defaultSectionSize()));
    if (viewRow < bar->value())
        bar->setValue(viewRow);
    else if (viewRow >= bar->value() + whole)
        bar->setValue(viewRow - whole + 1);
}

}  // namespace vistrel::qt
