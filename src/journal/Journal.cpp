// The journal of every change of stock, replayed over the tables at each
// start. Replay comes with the journal's own work; until then a station
// starts from the inventory file alone.

#include "core/Frm_Vistrel.h"

namespace vistrel {

void Frm_Vistrel::LoadJournalFile(const std::string& /*word*/) {}

}  // namespace vistrel
