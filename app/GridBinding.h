#pragma once

#include "ControlBinding.h"
#include "GridModel.h"

#include <QTableView>

namespace vistrel::qt {

// A grid shown by a table view. Moving to a cell, by mouse or keys, leaves
// the old cell and enters the new one in the core (LeaveCell, Row/Col,
// EnterCell); a mouse click then raises Click.
class GridBinding : public ControlBinding {
    Q_OBJECT
public:
    GridBinding(Grid& grid, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

    QTableView* view() const { return view_; }

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }

private:
    void moveTo(int row, int col);
    void fitColumns();
    void scheduleFit();

    Grid& grid_;
    QTableView* view_;
    GridModel* model_;
    bool fitPending_ = false;
};

}  // namespace vistrel::qt
