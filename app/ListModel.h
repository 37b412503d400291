#pragma once

#include "core/screen/Controls.h"

#include <QAbstractListModel>

namespace vistrel::qt {

// The rows of a core list box as a Qt model. The list box tells its
// observer of each insert and clear; the binding passes those on here, so
// the model never rescans the rows and long lists fill quickly.
class ListModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ListModel(const ListBox& list, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // The list box has inserted a row at this place.
    void rowInserted(int row);
    // The list box has been emptied.
    void cleared();
    // The rows were changed without notice: show them afresh.
    void reload();

private:
    // The list box's row behind a row of the model: while an insert is
    // being announced the model still shows the rows as they were.
    int listRow(int row) const { return inserting_ >= 0 && row >= inserting_ ? row + 1 : row; }

    const ListBox& list_;
    int count_;
    int inserting_ = -1;
};

}  // namespace vistrel::qt
