#pragma once

namespace vistrel {

class Station;
class Form;
class Frm_Vistrel;
class Frm_ProgramOptions;
class Frm_Autorefractor;
class Frm_AutoReadings;
class Frm_Advisor;
class Frm_RemoveRejectInventory;
class Frm_SavePrescription;
class Frm_LensFrames;
class Frm_ReadingGlasses;
class Frm_HelpVarnRule;
class Frm_HelpAreas;
class Frm_About;
class Frm_CheckForUpdates;

}  // namespace vistrel
