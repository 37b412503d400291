#pragma once

#include "InfoScreen.h"

namespace vistrel {

// Tells where updates of the station come from.
class Frm_CheckForUpdates : public InfoScreen {
public:
    explicit Frm_CheckForUpdates(Station& station) : InfoScreen(station, "Frm_CheckForUpdates", "Check for Updates") {}
};

}  // namespace vistrel
