#pragma once

#include "screen/Screen.h"

namespace vistrel {

// About the station: its name and version.
class Frm_About : public Screen {
public:
    explicit Frm_About(Station& station);

    Label Lbl_Text{*this, "Lbl_Text"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    void Cmd_Exit_Click();
};

}  // namespace vistrel
