#pragma once

#include "core/screen/Controls.h"

#include <QAbstractTableModel>
#include <QPalette>

namespace vistrel::qt {

// The cells of a core grid, with their texts and back colours; the first
// row and column are headings.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    GridModel(const Grid& grid, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // Some cell's text or colour changed.
    void cellsChanged();
    void setPalette(const QPalette& palette) { palette_ = palette; }

private:
    const Grid& grid_;
    QPalette palette_;
};

}  // namespace vistrel::qt
