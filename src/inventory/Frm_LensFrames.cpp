#include "Frm_LensFrames.h"

#include "core/Numbers.h"

namespace vistrel {

Frm_LensFrames::Frm_LensFrames(Station& station) : Screen(station, "Frm_LensFrames")
{
    design();
    wireHandlers();
    var("Showing", Showing);
    var("MSF_GridLocked", MSF_GridLocked);
    var("MSF_Gridlocked_Saved", MSF_Gridlocked_Saved);
}

void Frm_LensFrames::wireHandlers()
{
    for (int g = 0; g <= 2; ++g) {
        Grid& grid = MSF_LensInventory(g);
        grid.onClick = [this, g] { MSF_LensInventory_Click(g); };
        grid.onEnterCell = [this, g] { MSF_LensInventory_EnterCell(g); };
        grid.onLeaveCell = [this, g] { MSF_LensInventory_LeaveCell(g); };
        grid.onScroll = [this, g] { MSF_LensInventory_Scroll(g); };
    }
    // The buttons of each half; the periodic save reaches the saves by name.
    for (int i = 0; i <= 1; ++i) {
        const std::string n = "(" + std::to_string(i) + ")";
        wireClick(Cmd_LensLock[i], "Cmd_LensLock_Click" + n, [this, i] { Cmd_LensLock_Click(i); });
        wireClick(Cmd_LensUnlock[i], "Cmd_LensUnlock_Click" + n, [this, i] { Cmd_LensUnlock_Click(i); });
        wireClick(Cmd_SaveLensChanges[i], "Cmd_SaveLensChanges_Click" + n, [this, i] { Cmd_SaveLensChanges_Click(i); });
        op("Cmd_LockF_Click" + n, [this, i] { Cmd_LockF_Click(i); });
        op("Cmd_UnlockF_Click" + n, [this, i] { Cmd_UnlockF_Click(i); });
        op("Cmd_SaveF_Click" + n, [this, i] { Cmd_SaveF_Click(i); });
        op("ComputeTotalLensFrames" + n, [this, i] {
            std::int16_t result = 0;
            ComputeTotalLensFrames(i, result);
        });
    }
    wireClick(Txt_FrameAdult65, "Txt_FrameAdult65_Click", [this] { Txt_FrameAdult65_Click(); });
    wireClick(Txt_FrameAdult67, "Txt_FrameAdult67_Click", [this] { Txt_FrameAdult67_Click(); });
    wireClick(Txt_FrameAdult70, "Txt_FrameAdult70_Click", [this] { Txt_FrameAdult70_Click(); });
    wireClick(Txt_FrameChild57, "Txt_FrameChild57_Click", [this] { Txt_FrameChild57_Click(); });
    wireClick(Txt_FrameChild61, "Txt_FrameChild61_Click", [this] { Txt_FrameChild61_Click(); });
    wireClick(Txt_FrameChild65, "Txt_FrameChild65_Click", [this] { Txt_FrameChild65_Click(); });
    wireClick(Cmd_LensFrameHide, "Cmd_LensFrameHide_Click", [this] { Cmd_LensFrameHide_Click(); });
    onCloseBox = [this] { Cmd_LensFrameHide_Click(); };
}

Grid& Frm_LensFrames::MSF_LensInventory(int index)
{
    if (index == 1)
        return MSF_LensInventory1;
    if (index == 2)
        return MSF_LensInventory2;
    return MSF_LensInventory0;
}

// The high-power grid has neither an overlay nor a total of its own.
TextBox* Frm_LensFrames::overlay(int index)
{
    return index == 0 || index == 1 ? &Txt_LensOverlay[index] : nullptr;
}

TextBox* Frm_LensFrames::lensTotal(int index)
{
    return index == 0 || index == 1 ? &Txt_LensTotal[index] : nullptr;
}

std::array<TextBox*, 3> Frm_LensFrames::frameBoxes(int index)
{
    if (index == 0)
        return {&Txt_FrameAdult65, &Txt_FrameAdult67, &Txt_FrameAdult70};
    return {&Txt_FrameChild57, &Txt_FrameChild61, &Txt_FrameChild65};
}

bool Frm_LensFrames::gridLocked() const
{
    return MSF_GridLocked.number() != 0;
}

void Frm_LensFrames::ComputeTotalLensFrames(int index, std::int16_t& result)
{
    const Variant kept = MSF_GridLocked;
    MSF_GridLocked = Variant::boolean(true);
    Grid& grid = MSF_LensInventory(index);
    double sum = 0;
    // Most cells hold "000"; reading each as a number was most of a load.
    static const std::string none = "000";
    for (int r = 1; r < grid.rows(); ++r)
        for (int c = 1; c < grid.cols(); ++c)
            if (const std::string& cell = grid.textMatrix(r, c); cell != none)
                sum += Val(cell);
    MSF_GridLocked = kept;
    if (TextBox* total = lensTotal(index))
        total->setText(Format(sum, "000"));
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

}  // namespace vistrel
