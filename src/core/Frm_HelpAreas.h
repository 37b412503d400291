#pragma once

#include "InfoScreen.h"

namespace vistrel {

// Help on the areas of the main screen.
class Frm_HelpAreas : public InfoScreen {
public:
    explicit Frm_HelpAreas(Station& station) : InfoScreen(station, "Frm_HelpAreas", "Help") {}
};

}  // namespace vistrel
