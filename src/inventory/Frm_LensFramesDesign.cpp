// How the lens and frames screen is drawn: the adult half and the child
// half side by side, each a grid of lens counts headed by sphere (down) and
// cylinder (across), its lens total and buttons, and its frame sizes.

#include "CellLook.h"
#include "Frm_LensFrames.h"
#include "StockCells.h"

namespace vistrel {

namespace {
constexpr int kHalfWidth = 7440;
constexpr int kGridLeft = 90;
constexpr int kGridTop = 300;
constexpr int kHeadingWidth = 600;
constexpr int kColumnWidth = 490;
constexpr int kRowHeight = 240;
// The headings and 21 whole rows: no row is cut at the bottom.
constexpr int kGridHeight = 22 * kRowHeight;
}  // namespace

void Frm_LensFrames::design()
{
    setCaption("Lens and Frame Inventory");
    setGeometry(0, 0, 15300, 8520);
    Lbl_SpherePower.setCaption("Sphere Power (down)");
    Lbl_SpherePower.setGeometry(240, 60, 2400, 255);
    Lbl_Astigmatic.setCaption("Cylinder Power");
    Lbl_Astigmatic.setGeometry(2760, 60, 2400, 255);

    // The grids: headings first, every count cell locked and empty.
    for (int g = 0; g <= 2; ++g) {
        Grid& grid = MSF_LensInventory(g);
        grid.setColWidth(0, kHeadingWidth);
        for (int c = 1; c < grid.cols(); ++c) {
            grid.setColWidth(c, kColumnWidth);
            grid.setTextMatrix(0, c, LensCylinderText(c));
        }
        grid.setRowHeight(kRowHeight);
        for (int r = 1; r < grid.rows(); ++r) {
            grid.setTextMatrix(r, 0, LensSphereText(g, r));
            for (int c = 1; c < grid.cols(); ++c)
                grid.setCellBackColor(r, c, cell_look::Locked);
        }
        grid.setToolTipText("Click a cell to decrement inventory for that particular lens.");
    }
    MSF_LensInventory2.setVisible(false);
    MSF_LensInventory2.setContainer(&Frm_LensInventory[0]);
    MSF_LensInventory2.setGeometry(kGridLeft, kGridTop, kHalfWidth - 180, kGridHeight);

    for (int i = 0; i <= 1; ++i) {
        Frame& half = Frm_LensInventory[i];
        half.setCaption(i == 0 ? "Adult (46mm)" : "Child (42mm)");
        half.setToolTipText("Displays round frames and lens inventory.");
        half.setGeometry(120 + i * (kHalfWidth + 120), 360, kHalfWidth, 7080);
        Grid& grid = MSF_LensInventory(i);
        grid.setContainer(&half);
        grid.setGeometry(kGridLeft, kGridTop, kHalfWidth - 180, kGridHeight);
        Txt_LensOverlay[i].setContainer(&half);
        Txt_LensOverlay[i].setVisible(false);
        Txt_LensOverlay[i].setToolTipText("Type the count of this lens; it is saved with Save Cells.");

        Txt_LensTotal[i].setContainer(&half);
        Txt_LensTotal[i].setGeometry(1200, 5820, 840, 360);
        Txt_LensTotal[i].setToolTipText("Total number of lens in inventory.");
        Txt_LensTotal[i].setLocked(true);
        Txt_LensTotal[i].setBackColor(cell_look::Locked);
        Txt_LensTotal[i].setText("000");
        Cmd_LensLock[i].setContainer(&half);
        Cmd_LensLock[i].setCaption("Lock Cells");
        Cmd_LensLock[i].setToolTipText("Click to lock cells after unlocking and making changes.");
        Cmd_LensLock[i].setGeometry(2280, 5790, 1560, 420);
        Cmd_LensUnlock[i].setContainer(&half);
        Cmd_LensUnlock[i].setCaption("Unlock Cells");
        Cmd_LensUnlock[i].setToolTipText("Click to unlock cells to allow changes.");
        Cmd_LensUnlock[i].setGeometry(3960, 5790, 1560, 420);
        Cmd_SaveLensChanges[i].setContainer(&half);
        Cmd_SaveLensChanges[i].setCaption("Save Cells");
        Cmd_SaveLensChanges[i].setToolTipText("Click to save cells and turn off yellow indicators.");
        Cmd_SaveLensChanges[i].setGeometry(5640, 5790, 1560, 420);
    }
    Lbl_Lens.setContainer(&Frm_LensInventory[0]);
    Lbl_Lens.setCaption("Lens total");
    Lbl_Lens.setGeometry(120, 5880, 1020, 255);

    // The frame sizes of each half, a box under each size.
    Lbl_Frames.setContainer(&Frm_LensInventory[0]);
    Lbl_Frames.setCaption("Frames");
    Lbl_Frames.setGeometry(120, 6600, 1020, 255);
    TextBox* boxes[] = {&Txt_FrameAdult65, &Txt_FrameAdult67, &Txt_FrameAdult70, &Txt_FrameChild57,
        &Txt_FrameChild61, &Txt_FrameChild65};
    Label* sizes[] = {&Lbl_65Adult, &Lbl_67Adult, &Lbl_70Adult, &Lbl_57Child, &Lbl_61Child, &Lbl_65Child};
    const char* sizeTexts[] = {"65", "67", "70", "57", "61", "65"};
    for (int k = 0; k < 6; ++k) {
        Frame& half = Frm_LensInventory[k / 3];
        sizes[k]->setContainer(&half);
        sizes[k]->setCaption(sizeTexts[k]);
        sizes[k]->setGeometry(1200 + (k % 3) * 1080, 6300, 840, 255);
        boxes[k]->setContainer(&half);
        boxes[k]->setGeometry(1200 + (k % 3) * 1080, 6540, 840, 360);
        boxes[k]->setText("000");
        boxes[k]->setLocked(true);
        boxes[k]->setBackColor(cell_look::Locked);
        boxes[k]->setToolTipText("Click to decrement frames of size " + std::string(sizeTexts[k]) + ".");
    }
    Lbl_TotalA.setContainer(&Frm_LensInventory[0]);
    Lbl_TotalC.setContainer(&Frm_LensInventory[1]);
    TextBox* totals[] = {&Txt_FrameAdultTotal, &Txt_FrameChildTotal};
    Label* totalLabels[] = {&Lbl_TotalA, &Lbl_TotalC};
    for (int i = 0; i <= 1; ++i) {
        totalLabels[i]->setCaption("Total");
        totalLabels[i]->setGeometry(4680, 6300, 840, 255);
        totals[i]->setContainer(&Frm_LensInventory[i]);
        totals[i]->setGeometry(4680, 6540, 840, 360);
        totals[i]->setText("000");
        totals[i]->setLocked(true);
        totals[i]->setBackColor(cell_look::Locked);
    }

    Cmd_LensFrameHide.setCaption("Hide");
    Cmd_LensFrameHide.setToolTipText("Click to hide this form to enable use of main form.");
    Cmd_LensFrameHide.setGeometry(13500, 7560, 1560, 420);
}

}  // namespace vistrel
