#include "Screen.h"

#include "../Station.h"

namespace vistrel {

Platform& Screen::platform() const { return station().platform(); }
Frm_Vistrel& Screen::vistrel() const { return station().vistrel(); }
Frm_ProgramOptions& Screen::options() const { return station().options(); }
Frm_Autorefractor& Screen::autorefractor() const { return station().autorefractor(); }
Frm_AutoReadings& Screen::autoReadings() const { return station().autoReadings(); }
Frm_Advisor& Screen::advisor() const { return station().advisor(); }
Frm_RemoveRejectInventory& Screen::removeReject() const { return station().removeReject(); }
Frm_SavePrescription& Screen::savePrescription() const { return station().savePrescription(); }
Frm_LensFrames& Screen::lensFrames() const { return station().lensFrames(); }
Frm_ReadingGlasses& Screen::readingGlasses() const { return station().readingGlasses(); }
Frm_HelpVarnRule& Screen::helpVarnRule() const { return station().helpVarnRule(); }
Frm_HelpAreas& Screen::helpAreas() const { return station().helpAreas(); }
Frm_About& Screen::about() const { return station().about(); }
Frm_CheckForUpdates& Screen::checkForUpdates() const { return station().checkForUpdates(); }

}  // namespace vistrel
