// Saving the lens and frame cells: every yellow cell of a half becomes one
// record of the grid journal and is locked again.

#include "CellLook.h"
#include "Frm_LensFrames.h"
#include "StockCells.h"
#include "StockGridJournal.h"
#include "core/Numbers.h"

namespace vistrel {

using cell_look::Changed;
using cell_look::Locked;

namespace {

// The cylinder texts the save knows by column. Columns 6, 8, 10 and 12 have
// none: their records carry the text of the cell written before them in
// the same save, or an empty one, and a reader books them under that column.
bool savedCylinderText(int column, std::string& text)
{
    switch (column) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 7:
    case 9:
    case 11:
    case 13:
        text = LensCylinderText(column);
        return true;
    default:
        return false;
    }
}

}  // namespace

void Frm_LensFrames::Cmd_SaveLensChanges_Click(int index)
{
    // 1, 2. A value still being typed counts.
    Grid& grid = MSF_LensInventory(index);
    if (!gridLocked())
        commitOverlay(index);
    MSF_GridLocked = Variant::boolean(true);

    // 3. A journal that can't be written leaves the marks for the next save.
    StockGridJournal journal(platform());
    if (!journal.isOpen())
        return;

    // 4. Column by column; every cell walked ends up locked.
    const std::string label = index == 0 ? "Lens," : "LensChild,";
    std::string cylinder;
    for (int c = 1; c <= 13; ++c) {
        for (int r = 1; r <= 49; ++r) {
            if (grid.cellBackColor(r, c) == Changed) {
                savedCylinderText(c, cylinder);
                if (!journal.append(label + LensSphereText(0, r) + "," + cylinder + ","
                        + FormatText(grid.textMatrix(r, c), "000")))
                    return;
            }
            grid.setCellBackColor(r, c, Locked);
        }
    }

    // 5.
    journal.close();
    std::int16_t result = 0;
    ComputeTotalLensFrames(index, result);
    if (TextBox* total = lensTotal(index))
        total->setBackColor(Locked);
    if (TextBox* editor = overlay(index))
        editor->setVisible(false);
    Cmd_SaveF_Click(index);
}

void Frm_LensFrames::Cmd_SaveF_Click(int index)
{
    StockGridJournal journal(platform());
    if (!journal.isOpen())
        return;
    static const char* const adultLabels[] = {"Frames,65,", "Frames,67,", "Frames,70,"};
    static const char* const childLabels[] = {"FramesChild,57,", "FramesChild,61,", "FramesChild,65,"};
    const auto boxes = frameBoxes(index);
    for (size_t k = 0; k < boxes.size(); ++k) {
        TextBox& box = *boxes[k];
        if (box.backColor() != Changed)
            continue;
        if (!journal.append((index == 0 ? adultLabels : childLabels)[k] + FormatText(box.text(), "000")))
            return;
        box.setBackColor(Locked);
        box.setLocked(true);
    }
    (index == 0 ? Txt_FrameAdultTotal : Txt_FrameChildTotal).setBackColor(Locked);
    journal.close();
    std::int16_t result = 0;
    ComputeTotalLensFrames(index, result);
}

}  // namespace vistrel
