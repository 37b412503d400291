#pragma once

#include "InfoScreen.h"

namespace vistrel {

// About the station: its name and version.
class Frm_About : public InfoScreen {
public:
    explicit Frm_About(Station& station) : InfoScreen(station, "Frm_About", "About Vistrel") {}
};

}  // namespace vistrel
