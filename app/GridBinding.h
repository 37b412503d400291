#pragma once

#include "ControlBinding.h"
#include "GridModel.h"

#include <QPointer>
#include <QTableView>

class QLineEdit;

namespace vistrel::qt {

// A grid shown by a table view: the core's heading row and column are the
// view's headers, the count cells its cells. Column widths and the row
// height are the core's, in the window's scale, so that whatever the core
// lays over a cell by its twips lands on that cell. A person's move to a
// cell is the core's Grid::moveTo (LeaveCell, the move, EnterCell), a
// click then raises Click; the first scrolled row and Grid::topRow follow
// each other.
//
// A text box the core lays over the current cell and gives the focus is
// the grid's cell editor: in it Enter and Down move to the cell below, Up
// to the one above, Tab and Shift+Tab to the right and left.
class GridBinding : public ControlBinding {
    Q_OBJECT
public:
    GridBinding(Grid& grid, QWidget* parent, const Metrics& metrics);
    ~GridBinding() override;
    bool takesFocus() const override { return true; }

    QTableView* view() const { return view_; }
    GridModel* model() const { return model_; }

    // Where a cell of the grid lies, in the coordinates of the grid's
    // container; an empty rectangle for a cell scrolled out of view.
    QRect cellRect(int gridRow, int gridCol) const;

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }

private:
    void applySizes();
    void showCurrentCell();
    void showTopRow();
    void scrolled(int value);
    void bringRowIntoView(int viewRow);
    void focusChanged(QWidget* now);
    bool editorKey(int key, Qt::KeyboardModifiers modifiers);
    bool liesOnCurrentCell(const QWidget* widget) const;

    Grid& grid_;
    QTableView* view_;
    // Held apart from the view: the viewport's last events come while the
    // view is being destroyed, when it can no longer be asked for it.
    QWidget* viewport_ = nullptr;
    GridModel* model_;
    // Set while the core's first scrolled row is being shown, so that the
    // view's scroll is not handed back.
    bool showingTopRow_ = false;
    bool pressedOnCell_ = false;
    QPointer<QLineEdit> editor_;
};

}  // namespace vistrel::qt
