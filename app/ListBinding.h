#pragma once

#include "ControlBinding.h"
#include "ListModel.h"

#include <QListView>

namespace vistrel::qt {

// The list view of a list box. Taking the keyboard chooses no row: a
// list view would put its cursor on the first row, which a list box
// reports as that row clicked (the readings browser would load a reading
// and search merely by opening).
class ListBoxView : public QListView {
public:
    using QListView::QListView;

protected:
    void focusInEvent(QFocusEvent* event) override;
};

// A list box shown by a list view over a ListModel. Choosing a row, by
// mouse or keys, sets the core's ListIndex and raises its Click; scrolling
// sets TopIndex. The core's ListIndex and TopIndex are mirrored back.
class ListBinding : public ControlBinding {
    Q_OBJECT
public:
    ListBinding(ListBox& list, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

    QListView* view() const { return view_; }
    ListModel* model() const { return model_; }

    void listRowInserted(ListBox& list, int row) override;
    void listCleared(ListBox& list) override;

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }
    bool fixedPitch() const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void chosen(int row);
    void showListIndex();
    void showTopIndex();
    void scrolled();

    ListBox& list_;
    QListView* view_;
    // Held apart from the view: the viewport's last events come while the
    // view is being destroyed, when it can no longer be asked for it.
    QWidget* viewport_ = nullptr;
    ListModel* model_;
    bool mousePress_ = false;
};

}  // namespace vistrel::qt
