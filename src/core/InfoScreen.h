#pragma once

#include "screen/Screen.h"

namespace vistrel {

// A screen that shows texts and closes again: the help, about and update
// screens. It comes up modally; Showing is true while it is up.
class InfoScreen : public Screen {
public:
    InfoScreen(Station& station, const std::string& name);

    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    // Brings the texts up to date, shows the screen and waits until it is
    // closed, by its button, its close box or Escape.
    void ShowScreen();
    void Cmd_Exit_Click();

protected:
    // The texts that depend on the station's state of the moment.
    virtual void Refresh() {}
};

}  // namespace vistrel
