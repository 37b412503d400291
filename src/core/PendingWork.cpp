// Operations of later subsystems that the station already calls; each does
// its work once its subsystem is in.

#include "Frm_Vistrel.h"

namespace vistrel {

void Frm_Vistrel::Make_Recommendation() {}

}  // namespace vistrel
