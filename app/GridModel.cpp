#include "GridModel.h"

#include "ColorMapping.h"
#include "TextConversion.h"

#include <QBrush>

namespace vistrel::qt {

GridModel::GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : grid_.rows();
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : grid_.cols();
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return fromCore(grid_.textMatrix(index.row(), index.column()));
    case Qt::BackgroundRole: {
        Color back = grid_.cellBackColor(index.row(), index.column());
        // The first row and column are the grid's headings, drawn as the
        // grid control always drew them unless the screen colours them.
        if (back == colors::WindowBackground && (index.row() == 0 || index.column() == 0))
            back = colors::ButtonFace;
        if (back == colors::WindowBackground)
            return {};
        return QBrush(mapColor(back, palette_));
    }
    default:
        return {};
    }
}

void GridModel::cellsChanged()
{
    if (grid_.rows() > 0 && grid_.cols() > 0)
        emit dataChanged(index(0, 0), index(grid_.rows() - 1, grid_.cols() - 1));
}

}  // namespace vistrel::qt
