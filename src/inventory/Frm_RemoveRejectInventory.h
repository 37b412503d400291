#pragma once

#include "core/screen/Screen.h"

#include <cstdint>

namespace vistrel {

// The question asked when a pair is clicked: remove, reject or return it.
class Frm_RemoveRejectInventory : public Screen {
public:
    explicit Frm_RemoveRejectInventory(Station& station);

    Label Lbl_RemoveRejectMessage{*this, "Lbl_RemoveRejectMessage"};
    CommandButton Cmd_RemoveInventory{*this, "Cmd_RemoveInventory"};
    CommandButton Cmd_RejectInventory{*this, "Cmd_RejectInventory"};
    CommandButton Cmd_ReturnInventory{*this, "Cmd_ReturnInventory"};
    CommandButton Cmd_Cancel{*this, "Cmd_Cancel"};
    TextBox Txt_Notice{*this, "Txt_Notice"};
    TextBox Removal_Note{*this, "Removal_Note"};

    bool Showing = false;

    // Load and every activation: the title and buttons of the question
    // asked, and no answer yet.
    void Form_Load();
    void Form_Activate();
    void Cmd_RemoveInventory_Click() { answer(6); }
    void Cmd_RejectInventory_Click() { answer(5); }
    void Cmd_ReturnInventory_Click() { answer(6); }
    void Cmd_Cancel_Click() { answer(0); }

private:
    void answer(std::int16_t response);
    void design();
};

}  // namespace vistrel
