#include "Frm_LensFrames.h"

#include "core/Numbers.h"

namespace vistrel {

Frm_LensFrames::Frm_LensFrames(Station& station) : Screen(station, "Frm_LensFrames")
{
    design();
    Cmd_LensFrameHide.onClick = [this] { Cmd_LensFrameHide_Click(); };
    onCloseBox = [this] { Cmd_LensFrameHide_Click(); };
    var("Showing", Showing);
    var("MSF_GridLocked", MSF_GridLocked);
    var("MSF_Gridlocked_Saved", MSF_Gridlocked_Saved);
    op("Cmd_LensFrameHide_Click", [this] { Cmd_LensFrameHide_Click(); });
}

Grid& Frm_LensFrames::MSF_LensInventory(int index)
{
    if (index == 1)
        return MSF_LensInventory1;
    if (index == 2)
        return MSF_LensInventory2;
    return MSF_LensInventory0;
}

void Frm_LensFrames::ComputeTotalLensFrames(int index, std::int16_t& result)
{
    const Variant kept = MSF_GridLocked;
    MSF_GridLocked = Variant::boolean(true);
    Grid& grid = MSF_LensInventory(index);
    double sum = 0;
    for (int r = 1; r < grid.rows(); ++r)
        for (int c = 1; c < grid.cols(); ++c)
            sum += Val(grid.textMatrix(r, c));
    MSF_GridLocked = kept;
    if (index >= 0 && index <= 1)
        Txt_LensTotal[index].setText(Format(sum, "000"));
    Txt_FrameAdultTotal.setText(Format(
        Val(Txt_FrameAdult65.text()) + Val(Txt_FrameAdult67.text()) + Val(Txt_FrameAdult70.text()), "000"));
    Txt_FrameChildTotal.setText(Format(
        Val(Txt_FrameChild57.text()) + Val(Txt_FrameChild61.text()) + Val(Txt_FrameChild65.text()), "000"));
    result = 0;
}

void Frm_LensFrames::Cmd_LensFrameHide_Click()
{
    Showing = false;
    hide();
}

void Frm_LensFrames::design()
{
    setCaption("Lens and Frame Inventory");
    setGeometry(0, 0, 14400, 9600);
    for (int i = 0; i <= 1; ++i) {
        Frm_LensInventory[i].setCaption(i == 0 ? "Adult (46mm)" : "Child (42mm)");
        Frm_LensInventory[i].setToolTipText("Displays round frames and lens inventory.");
        Frm_LensInventory[i].setGeometry(120 + i * 7140, 120, 7020, 8400);
        Grid& grid = MSF_LensInventory(i);
        grid.setContainer(&Frm_LensInventory[i]);
        grid.setGeometry(120, 600, 6780, 5400);
        grid.setToolTipText("Click a cell to decrement inventory for that particular lens.");
        Txt_LensOverlay[i].setContainer(&Frm_LensInventory[i]);
        Txt_LensOverlay[i].setVisible(false);
        Txt_LensTotal[i].setContainer(&Frm_LensInventory[i]);
        Txt_LensTotal[i].setGeometry(120, 6120, 900, 375);
        Txt_LensTotal[i].setToolTipText("Total number of lens in inventory.");
        Cmd_LensLock[i].setContainer(&Frm_LensInventory[i]);
        Cmd_LensLock[i].setCaption("Lock Cells");
        Cmd_LensLock[i].setToolTipText("Click to lock cells after unlocking and making changes.");
        Cmd_LensLock[i].setGeometry(1200, 6120, 1440, 420);
        Cmd_LensUnlock[i].setContainer(&Frm_LensInventory[i]);
        Cmd_LensUnlock[i].setCaption("Unlock Cells");
        Cmd_LensUnlock[i].setToolTipText("Click to unlock cells to allow changes.");
        Cmd_LensUnlock[i].setGeometry(2760, 6120, 1440, 420);
        Cmd_SaveLensChanges[i].setContainer(&Frm_LensInventory[i]);
        Cmd_SaveLensChanges[i].setCaption("Save Cells");
        Cmd_SaveLensChanges[i].setToolTipText("Click to save cells and turn off yellow indicators.");
        Cmd_SaveLensChanges[i].setGeometry(4320, 6120, 1440, 420);
    }
    // Headings: sphere powers down the rows, cylinder powers across.
    for (int g = 0; g <= 2; ++g) {
        Grid& grid = MSF_LensInventory(g);
        for (int c = 1; c < grid.cols(); ++c)
            grid.setTextMatrix(0, c, Format(0.25 * (1 - c), "0.00"));
        for (int r = 1; r < grid.rows(); ++r) {
            double sphere = 6.25 - 0.25 * r;
            if (g == 2)
                sphere = r <= 40 ? 16.25 - 0.25 * r : -6.25 - 0.25 * (r - 41);
            grid.setTextMatrix(r, 0, Format(sphere, "0.00"));
        }
    }
    MSF_LensInventory2.setVisible(false);
    TextBox* frames[] = {&Txt_FrameAdult65, &Txt_FrameAdult67, &Txt_FrameAdult70, &Txt_FrameChild57,
        &Txt_FrameChild61, &Txt_FrameChild65};
    for (int i = 0; i < 6; ++i) {
        frames[i]->setContainer(&Frm_LensInventory[i / 3]);
        frames[i]->setGeometry(1200 + (i % 3) * 1200, 7200, 900, 375);
        frames[i]->setText("000");
        frames[i]->setLocked(true);
        frames[i]->setBackColor(14737632);
    }
    Txt_FrameAdultTotal.setContainer(&Frm_LensInventory[0]);
    Txt_FrameAdultTotal.setGeometry(4800, 7200, 900, 375);
    Txt_FrameChildTotal.setContainer(&Frm_LensInventory[1]);
    Txt_FrameChildTotal.setGeometry(4800, 7200, 900, 375);
    Lbl_SpherePower.setCaption("Sphere Power");
    Lbl_SpherePower.setGeometry(120, 8640, 1800, 255);
    Lbl_Astigmatic.setCaption("Cylinder Power");
    Lbl_Astigmatic.setGeometry(2040, 8640, 1800, 255);
    Lbl_Lens.setCaption("Lens");
    Lbl_Lens.setGeometry(3960, 8640, 900, 255);
    Lbl_Frames.setCaption("Frames");
    Lbl_Frames.setGeometry(4920, 8640, 900, 255);
    Lbl_65Child.setCaption("65");
    Lbl_61Child.setCaption("61");
    Lbl_57Child.setCaption("57");
    Lbl_TotalA.setCaption("Total");
    Cmd_LensFrameHide.setToolTipText("Click to hide this form to enable use of main form.");
    Cmd_LensFrameHide.setCaption("Hide");
    Cmd_LensFrameHide.setGeometry(12600, 8760, 1440, 420);
}

}  // namespace vistrel
