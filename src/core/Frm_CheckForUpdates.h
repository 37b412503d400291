#pragma once

#include "screen/Screen.h"

namespace vistrel {

// Tells where updates of the station come from.
class Frm_CheckForUpdates : public Screen {
public:
    explicit Frm_CheckForUpdates(Station& station);

    Label Lbl_Text{*this, "Lbl_Text"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    void Cmd_Exit_Click();
};

}  // namespace vistrel
