#pragma once

#include "screen/Screen.h"

namespace vistrel {

// Help on the areas of the main screen: opens the help documents.
class Frm_HelpAreas : public Screen {
public:
    explicit Frm_HelpAreas(Station& station);

    Label Lbl_Text{*this, "Lbl_Text"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    void Cmd_Exit_Click();
};

}  // namespace vistrel
