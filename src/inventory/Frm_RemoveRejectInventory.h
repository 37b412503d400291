#pragma once

#include "core/screen/Screen.h"

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

private:
    void design();
};

}  // namespace vistrel
