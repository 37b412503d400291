// The cells of the lens and frames screen: a click on a locked cell takes
// one away, an unlocked grid is typed into through an overlay laid over the
// current cell, and locking and unlocking set the looks.

#include "CellLook.h"
#include "Frm_LensFrames.h"
#include "core/Numbers.h"

namespace vistrel {

using cell_look::Changed;
using cell_look::Locked;
using cell_look::Open;

void Frm_LensFrames::MSF_LensInventory_Click(int index)
{
    if (!gridLocked())
        return;
    Grid& grid = MSF_LensInventory(index);
    // The headings name powers; they hold no count.
    if (grid.row() < 1 || grid.col() < 1)
        return;
    const auto count = ToInteger(Val(grid.text()) - 1);
    if (!count)
        return;
    grid.setCellBackColor(grid.row(), grid.col(), Changed);
    grid.setText(Format(*count, "000"));
    if (TextBox* total = lensTotal(index))
        total->setBackColor(Changed);
    std::int16_t result = 0;
    ComputeTotalLensFrames(index, result);
}

void Frm_LensFrames::frameBoxClicked(TextBox& box, int half)
{
    if (!box.locked())
        return;
    const auto count = ToInteger(Val(box.text()) - 1);
    if (!count)
        return;
    box.setText(Format(*count, "000"));
    box.setBackColor(Changed);
    (half == 0 ? Txt_FrameAdultTotal : Txt_FrameChildTotal).setBackColor(Changed);
    std::int16_t result = 0;
    ComputeTotalLensFrames(half, result);
}

void Frm_LensFrames::MSF_LensInventory_EnterCell(int index)
{
    TextBox* editor = overlay(index);
    if (gridLocked() || !editor)
        return;
    Grid& grid = MSF_LensInventory(index);
    editor->setText(grid.text());
    editor->setGeometry(grid.left() + grid.cellLeft(), grid.top() + grid.cellTop(), grid.cellWidth(),
        grid.cellHeight());
    editor->setVisible(true);
    editor->setFocus();
    editor->setBackColor(Changed);
}

void Frm_LensFrames::MSF_LensInventory_LeaveCell(int index)
{
    if (gridLocked())
        return;
    commitOverlay(index);
}

// What was typed over the current cell goes into it, with the yellow mark.
// Unlocking leaves no cell current (row and column 0): the headings there
// are never written over.
void Frm_LensFrames::commitOverlay(int index)
{
    TextBox* editor = overlay(index);
    Grid& grid = MSF_LensInventory(index);
    if (!editor || grid.row() == 0 || grid.col() == 0)
        return;
    grid.setText(FormatText(editor->text(), "000"));
    grid.setCellBackColor(grid.row(), grid.col(), Changed);
}

void Frm_LensFrames::MSF_LensInventory_Scroll(int index)
{
    if (TextBox* editor = overlay(index))
        editor->setVisible(false);
}

void Frm_LensFrames::Cmd_LensLock_Click(int index)
{
    if (TextBox* editor = overlay(index))
        editor->setVisible(false);
    MSF_GridLocked = Variant::boolean(true);
    Grid& grid = MSF_LensInventory(index);
    for (int r = 1; r <= 49; ++r)
        for (int c = 1; c <= 13; ++c)
            if (grid.cellBackColor(r, c) != Changed)
                grid.setCellBackColor(r, c, Locked);
    Cmd_LockF_Click(index);
}

void Frm_LensFrames::Cmd_LensUnlock_Click(int index)
{
    MSF_Gridlocked_Saved = gridLocked();
    MSF_GridLocked = Variant::boolean(true);
    Grid& grid = MSF_LensInventory(index);
    for (int r = 1; r <= 49; ++r)
        for (int c = 1; c <= 13; ++c)
            if (grid.cellBackColor(r, c) != Changed)
                grid.setCellBackColor(r, c, Open);
    // No cell is current: the first one a person picks gets the overlay.
    grid.setRow(0);
    grid.setCol(0);
    Cmd_UnlockF_Click(index);
    MSF_GridLocked = Variant::boolean(false);
}

void Frm_LensFrames::Cmd_LockF_Click(int index)
{
    for (TextBox* box : frameBoxes(index)) {
        box->setBackColor(Locked);
        box->setLocked(true);
    }
}

void Frm_LensFrames::Cmd_UnlockF_Click(int index)
{
    for (TextBox* box : frameBoxes(index)) {
        if (box->backColor() == Changed)
            continue;
        box->setBackColor(Open);
        box->setLocked(false);
    }
}

}  // namespace vistrel
