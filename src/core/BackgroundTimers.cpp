// The main screen's timers and the operations of later subsystems that the
// station already calls; each does its work once its subsystem is in.

#include "Frm_Vistrel.h"

namespace vistrel {

void Frm_Vistrel::Tmr_InventoryMovement_Timer() {}
void Frm_Vistrel::Tmr_SaveInventory_Timer() {}
void Frm_Vistrel::Tmr_RefreshPersonList_Timer() {}
void Frm_Vistrel::WriteAutorefractorPrescription() {}
void Frm_Vistrel::Announce_Selection() {}
void Frm_Vistrel::Make_Recommendation() {}

}  // namespace vistrel
