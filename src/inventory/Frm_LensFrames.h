#pragma once

#include "core/screen/Screen.h"

#include <array>
#include <cstdint>

namespace vistrel {

// Loose lenses by sphere and cylinder, and frames by size, for adults
// (index 0) and children (index 1); grid 2 holds the high spheres. The cells
// follow the reading-glasses rules: a click takes one away and marks the cell
// yellow, a save writes the yellow cells to the grid journal; here a value
// typed over an open cell is marked and saved as well.
class Frm_LensFrames : public Screen {
public:
    explicit Frm_LensFrames(Station& station);

    ControlArray<Frame> Frm_LensInventory{*this, "Frm_LensInventory", 0, 1};
    Grid MSF_LensInventory0{*this, "MSF_LensInventory", 50, 14, 0};
    Grid MSF_LensInventory1{*this, "MSF_LensInventory", 50, 14, 1};
    Grid MSF_LensInventory2{*this, "MSF_LensInventory", 81, 14, 2};
    ControlArray<TextBox> Txt_LensOverlay{*this, "Txt_LensOverlay", 0, 1};
    ControlArray<TextBox> Txt_LensTotal{*this, "Txt_LensTotal", 0, 1};
    ControlArray<CommandButton> Cmd_LensLock{*this, "Cmd_LensLock", 0, 1};
    ControlArray<CommandButton> Cmd_LensUnlock{*this, "Cmd_LensUnlock", 0, 1};
    ControlArray<CommandButton> Cmd_SaveLensChanges{*this, "Cmd_SaveLensChanges", 0, 1};
    TextBox Txt_FrameAdult65{*this, "Txt_FrameAdult65"};
    TextBox Txt_FrameAdult67{*this, "Txt_FrameAdult67"};
    TextBox Txt_FrameAdult70{*this, "Txt_FrameAdult70"};
    TextBox Txt_FrameChild57{*this, "Txt_FrameChild57"};
    TextBox Txt_FrameChild61{*this, "Txt_FrameChild61"};
    TextBox Txt_FrameChild65{*this, "Txt_FrameChild65"};
    TextBox Txt_FrameAdultTotal{*this, "Txt_FrameAdultTotal"};
    TextBox Txt_FrameChildTotal{*this, "Txt_FrameChildTotal"};
    Label Lbl_SpherePower{*this, "Lbl_SpherePower"};
    Label Lbl_Astigmatic{*this, "Lbl_Astigmatic"};
    Label Lbl_Lens{*this, "Lbl_Lens"};
    Label Lbl_Frames{*this, "Lbl_Frames"};
    Label Lbl_65Adult{*this, "Lbl_65Adult"};
    Label Lbl_67Adult{*this, "Lbl_67Adult"};
    Label Lbl_70Adult{*this, "Lbl_70Adult"};
    Label Lbl_65Child{*this, "Lbl_65Child"};
    Label Lbl_61Child{*this, "Lbl_61Child"};
    Label Lbl_57Child{*this, "Lbl_57Child"};
    Label Lbl_TotalA{*this, "Lbl_TotalA"};
    Label Lbl_TotalC{*this, "Lbl_TotalC"};
    CommandButton Cmd_LensFrameHide{*this, "Cmd_LensFrameHide"};

    bool Showing = false;
    Variant MSF_GridLocked = Variant::boolean(true);
    bool MSF_Gridlocked_Saved = false;

    Grid& MSF_LensInventory(int index);

    void MSF_LensInventory_Click(int index);
    void MSF_LensInventory_EnterCell(int index);
    void MSF_LensInventory_LeaveCell(int index);
    void MSF_LensInventory_Scroll(int index);
    void Cmd_LensLock_Click(int index);
    void Cmd_LensUnlock_Click(int index);
    void Cmd_SaveLensChanges_Click(int index);
    void Cmd_LockF_Click(int index);
    void Cmd_UnlockF_Click(int index);
    void Cmd_SaveF_Click(int index);
    void ComputeTotalLensFrames(int index, std::int16_t& result);
    void Txt_FrameAdult65_Click() { frameBoxClicked(Txt_FrameAdult65, 0); }
    void Txt_FrameAdult67_Click() { frameBoxClicked(Txt_FrameAdult67, 0); }
    void Txt_FrameAdult70_Click() { frameBoxClicked(Txt_FrameAdult70, 0); }
    void Txt_FrameChild57_Click() { frameBoxClicked(Txt_FrameChild57, 1); }
    void Txt_FrameChild61_Click() { frameBoxClicked(Txt_FrameChild61, 1); }
    void Txt_FrameChild65_Click() { frameBoxClicked(Txt_FrameChild65, 1); }
    void Cmd_LensFrameHide_Click();

private:
    bool gridLocked() const;
    TextBox* overlay(int index);
    TextBox* lensTotal(int index);
    // The three frame boxes of a half: adult for index 0, child otherwise.
    std::array<TextBox*, 3> frameBoxes(int index);
    void frameBoxClicked(TextBox& box, int half);
    void commitOverlay(int index);
    void wireHandlers();
    void design();
};

}  // namespace vistrel
