#pragma once

#include "core/screen/Screen.h"

#include <cstdint>

namespace vistrel {

// Ready-made reading glasses, counted by power from 0.00 to 4.75. A click
// on a locked cell takes one pair away and marks the cell yellow until it
// is saved to the grid journal.
class Frm_ReadingGlasses : public Screen {
public:
    explicit Frm_ReadingGlasses(Station& station);

    Frame Frm_ReadingInventory{*this, "Frm_ReadingInventory"};
    ControlArray<TextBox> Txt_NNN{*this, "Txt_NNN", 0, 19};
    TextBox Txt_Total{*this, "Txt_Total"};
    CommandButton Cmd_Unlock{*this, "Cmd_Unlock"};
    CommandButton Cmd_SaveCells{*this, "Cmd_SaveCells"};
    CommandButton Cmd_LockCells{*this, "Cmd_LockCells"};
    CommandButton Cmd_HideReading{*this, "Cmd_HideReading"};
    Label Lbl_000{*this, "Lbl_000"};
    Label Lbl_100{*this, "Lbl_100"};
    Label Lbl_200{*this, "Lbl_200"};
    Label Lbl_300{*this, "Lbl_300"};
    Label Lbl_400{*this, "Lbl_400"};
    Label Lbl_000T{*this, "Lbl_000T"};
    Label Lbl_025T{*this, "Lbl_025T"};
    Label Lbl_050T{*this, "Lbl_050T"};
    Label Lbl_075T{*this, "Lbl_075T"};
    Label Lbl_Power{*this, "Lbl_Power"};
    Label Lbl_Total{*this, "Lbl_Total"};
    Label Lbl_Instructions{*this, "Lbl_Instructions"};

    bool Showing = false;

    void Txt_NNN_Click(int index);
    void Cmd_LockCells_Click();
    void Cmd_Unlock_Click();
    void Cmd_SaveCells_Click();
    void Cmd_HideReading_Click();
    void ComputeTotalReading(std::int16_t& result);

private:
    void design();
};

}  // namespace vistrel
