#include "ListModel.h"

#include "TextConversion.h"

namespace vistrel::qt {

ListModel::ListModel(const ListBox& list, QObject* parent)
    : QAbstractListModel(parent), list_(list), count_(list.listCount())
{
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= count_)
        return {};
    const int row = listRow(index.row());
    if (row >= list_.listCount())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return fromCore(list_.row(row).text);
    return {};
}

void ListModel::rowInserted(int row)
{
    if (row < 0 || row > count_ || list_.listCount() != count_ + 1) {
        reload();
        return;
    }
    inserting_ = row;
    beginInsertRows(QModelIndex(), row, row);
    inserting_ = -1;
    ++count_;
    endInsertRows();
}

void ListModel::cleared()
{
    reload();
}

void ListModel::reload()
{
    beginResetModel();
    count_ = list_.listCount();
    endResetModel();
}

}  // namespace vistrel::qt
