#include "GridModel.h"

#include "ColorMapping.h"
#include "TextConversion.h"

#include <QBrush>

#include <algorithm>

namespace vistrel::qt {

GridModel::GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : std::max(0, grid_.rows() - 1);
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : std::max(0, grid_.cols() - 1);
}

QModelIndex GridModel::indexOfCell(int gridRow, int gridCol) const
{
    if (gridRow < 1 || gridCol < 1 || gridRow >= grid_.rows() || gridCol >= grid_.cols())
        return {};
    return index(gridRow - 1, gridCol - 1);
}

QVariant GridModel::background(int gridRow, int gridCol) const
{
    // A cell the screen never coloured has the view's own background.
    const Color back = grid_.cellBackColor(gridRow, gridCol);
    if (back == colors::WindowBackground)
        return {};
    return QBrush(mapColor(back, palette_));
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return fromCore(grid_.textMatrix(gridRow(index), gridCol(index)));
    case Qt::BackgroundRole:
        return background(gridRow(index), gridCol(index));
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool across = orientation == Qt::Horizontal;
    const int row = across ? 0 : section + 1;
    const int col = across ? section + 1 : 0;
    switch (role) {
    case Qt::DisplayRole:
        return fromCore(grid_.textMatrix(row, col));
    case Qt::BackgroundRole:
        return background(row, col);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default:
        return {};
    }
}

void GridModel::cellsChanged()
{
    // One notice for the whole grid: a screen colours hundreds of cells
    // in one go, and the view repaints once anyway.
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (columnCount() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

}  // namespace vistrel::qt
