#include "ListBinding.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace vistrel::qt {

void ListBoxView::focusInEvent(QFocusEvent* event)
{
    const bool noRow = !currentIndex().isValid();
    {
        const QSignalBlocker quiet(selectionModel());
        QListView::focusInEvent(event);
    }
    // The first arrow key then goes to the first row.
    if (noRow && currentIndex().isValid()) {
        const QSignalBlocker quiet(selectionModel());
        selectionModel()->clearCurrentIndex();
        viewport()->update();
    }
}

ListBinding::ListBinding(ListBox& list, QWidget* parent, const Metrics& metrics)
    : ControlBinding(list, new ListBoxView(parent), metrics),
      list_(list),
      view_(static_cast<QListView*>(widget())),
      model_(new ListModel(list, this))
{
    view_->setModel(model_);
    view_->setUniformItemSizes(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    view_->setTextElideMode(Qt::ElideNone);
    viewport_ = view_->viewport();
    viewport_->installEventFilter(this);
    view_->installEventFilter(this);

    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& current) {
            // A mouse press is handled as a whole by pressed() below.
            if (mirroring() || mousePress_ || !current.isValid())
                return;
            chosen(current.row());
        });
    connect(view_, &QListView::pressed, this, [this](const QModelIndex& index) {
        mousePress_ = false;
        if (!mirroring() && index.isValid())
            chosen(index.row());
    });
    connect(view_, &QListView::doubleClicked, this, [this](const QModelIndex&) { control().dblClick(); });
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { scrolled(); });
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == viewport_) {
        if (event->type() == QEvent::MouseButtonPress)
            mousePress_ = true;
        else if (event->type() == QEvent::MouseButtonRelease)
            mousePress_ = false;
    } else if (watched == view_ && event->type() == QEvent::KeyPress) {
        // Enter or Space on the chosen row clicks it again, as a second
        // mouse click on it does: a question cancelled can be asked anew.
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool press = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Space;
        const QModelIndex current = view_->currentIndex();
        if (press && (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && current.isValid() && !key->isAutoRepeat()) {
            chosen(current.row());
            return true;
        }
    }
    return ControlBinding::eventFilter(watched, event);
}

void ListBinding::chosen(int row)
{
    list_.setListIndex(row);
    if (list_.onClick)
        list_.onClick();
    // The handler may have chosen another row, or none.
    showListIndex();
}

void ListBinding::scrolled()
{
    if (mirroring())
        return;
    const QModelIndex top = view_->indexAt(QPoint(1, 1));
    if (top.isValid() && top.row() != list_.topIndex())
        list_.setTopIndex(top.row());
}

void ListBinding::listRowInserted(ListBox& /*list*/, int row)
{
    Mirror mirror(*this);
    model_->rowInserted(row);
}

void ListBinding::listCleared(ListBox& /*list*/)
{
    Mirror mirror(*this);
    model_->cleared();
}

void ListBinding::applyAllOwn()
{
    // A list whose scrolling the screen follows moves with another: both
    // keep their sideways bar, so that their rows stand at the same
    // heights whether their texts are wide or not.
    if (list_.onScroll)
        view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    {
        Mirror mirror(*this);
        model_->reload();
    }
    showListIndex();
    showTopIndex();
}

void ListBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::ListIndex:
        showListIndex();
        break;
    case Prop::TopIndex:
        showTopIndex();
        break;
    case Prop::List:
        applyAllOwn();
        break;
    default:
        ControlBinding::apply(prop);
    }
}

void ListBinding::showListIndex()
{
    Mirror mirror(*this);
    const int row = list_.listIndex();
    QItemSelectionModel* selection = view_->selectionModel();
    if (row < 0 || row >= model_->rowCount()) {
        selection->clear();
        return;
    }
    const QModelIndex index = model_->index(row);
    if (selection->currentIndex() != index || !selection->isSelected(index))
        selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    view_->scrollTo(index);
}

void ListBinding::showTopIndex()
{
    Mirror mirror(*this);
    const int row = list_.topIndex();
    if (row >= 0 && row < model_->rowCount())
        view_->scrollTo(model_->index(row), QAbstractItemView::PositionAtTop);
}

}  // namespace vistrel::qt
