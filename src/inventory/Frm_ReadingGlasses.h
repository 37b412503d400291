#pragma once

#include "core/screen/Screen.h"

#include <cstdint>

namespace vistrel {

// Ready-made reading glasses, counted by power from 0.00 to 4.75.
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
    Label Lbl_Power{*this, "Lbl_Power"};
    Label Lbl_Total{*this, "Lbl_Total"};
    Label Lbl_Instructions{*this, "Lbl_Instructions"};

    bool Showing = false;

    void ComputeTotalReading(std::int16_t& result);
    void Cmd_HideReading_Click();

private:
    void design();
};

}  // namespace vistrel
