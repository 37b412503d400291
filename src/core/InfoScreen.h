#pragma once

#include "screen/Screen.h"

namespace vistrel {

// A screen that shows a text and closes: the help, about and update screens.
class InfoScreen : public Screen {
public:
    InfoScreen(Station& station, const std::string& name, const std::string& caption);

    Label Lbl_Text{*this, "Lbl_Text"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    void Cmd_Exit_Click();
};

}  // namespace vistrel
