#include "GridBinding.h"

#include "TextConversion.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace vistrel::qt {

GridBinding::GridBinding(Grid& grid, QWidget* parent, const Metrics& metrics)
    : ControlBinding(grid, new QTableView(parent), metrics),
      grid_(grid),
      view_(static_cast<QTableView*>(widget())),
      model_(new GridModel(grid, this))
{
    view_->setModel(model_);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->horizontalHeader()->hide();
    view_->verticalHeader()->hide();
    view_->setWordWrap(false);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& current) {
            if (!mirroring() && current.isValid())
                moveTo(current.row(), current.column());
        });
    connect(view_, &QTableView::clicked, this, [this](const QModelIndex&) { control().click(); });
    connect(view_, &QTableView::doubleClicked, this, [this](const QModelIndex&) { control().dblClick(); });
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!mirroring() && grid_.onScroll)
            grid_.onScroll();
    });
}

void GridBinding::moveTo(int row, int col)
{
    if (row == grid_.row() && col == grid_.col())
        return;
    if (grid_.onLeaveCell)
        grid_.onLeaveCell();
    grid_.setRow(row);
    grid_.setCol(col);
    if (grid_.onEnterCell)
        grid_.onEnterCell();
}

void GridBinding::scheduleFit()
{
    // Screens fill grids cell by cell: fit once they are done.
    if (fitPending_)
        return;
    fitPending_ = true;
    QTimer::singleShot(0, this, [this] {
        fitPending_ = false;
        fitColumns();
    });
}

void GridBinding::fitColumns()
{
    const int cols = grid_.cols();
    if (cols <= 0)
        return;
    // The columns share the width, and each is at least as wide as its
    // widest text.
    const int width = std::max(1, view_->width() - 2 * view_->frameWidth());
    const QFontMetrics metrics(view_->font());
    const int padding = 2 * view_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view_) + 4;
    for (int c = 0; c < cols; ++c) {
        int widest = 0;
        for (int r = 0; r < grid_.rows(); ++r)
            widest = std::max(widest, metrics.horizontalAdvance(fromCore(grid_.textMatrix(r, c))));
        view_->setColumnWidth(c, std::max(width / cols, widest + padding));
    }
    const int rowHeight = view_->fontMetrics().height() + 4;
    view_->verticalHeader()->setDefaultSectionSize(rowHeight);
    view_->verticalHeader()->setMinimumSectionSize(rowHeight);
}

void GridBinding::applyAllOwn()
{
    model_->setPalette(view_->palette());
    model_->cellsChanged();
    fitColumns();
}

void GridBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::Cells:
        model_->cellsChanged();
        scheduleFit();
        break;
    case Prop::Geometry:
    case Prop::Font:
        ControlBinding::apply(prop);
        fitColumns();
        break;
    default:
        ControlBinding::apply(prop);
    }
}

}  // namespace vistrel::qt
