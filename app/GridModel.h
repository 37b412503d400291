#pragma once

#include "core/screen/Controls.h"

#include <QAbstractTableModel>
#include <QPalette>

namespace vistrel::qt {

// The cells of a core grid below and right of its fixed headings: model
// row r is grid row r + 1 and model column c grid column c + 1. The
// heading row and column are the model's horizontal and vertical header.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    GridModel(const Grid& grid, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // The grid's row and column of a model index, and back; an invalid
    // index for a heading.
    static int gridRow(const QModelIndex& index) { return index.row() + 1; }
    static int gridCol(const QModelIndex& index) { return index.column() + 1; }
    QModelIndex indexOfCell(int gridRow, int gridCol) const;

    // Some cell's text or colour changed.
    void cellsChanged();
    void setPalette(const QPalette& palette) { palette_ = palette; }

private:
    QVariant background(int gridRow, int gridCol) const;

    const Grid& grid_;
    QPalette palette_;
};

}  // namespace vistrel::qt
