// The main screen's two background timers: the person list of a networked
// station is refreshed from the shared journal every five minutes, and the
// stock grids' changes are saved every two minutes, pressed or not.

#include "core/Frm_About.h"
#include "core/Frm_HelpAreas.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/Frm_RemoveRejectInventory.h"
#include "matching/Frm_HelpVarnRule.h"
#include "reports/Frm_SavePrescription.h"

namespace vistrel {

void Frm_Vistrel::Tmr_RefreshPersonList_Timer()
{
    NetworkJournalOfflineCounter = 1;
    if (--NetworkJournalRefreshCounter > 0)
        return;
    // A refresh is passed over while any of these screens is open; it waits
    // for the next five minutes.
    const bool screenOpen = autorefractor().Showing || removeReject().Showing || options().Showing
        || savePrescription().Showing || helpAreas().Showing || about().Showing || helpVarnRule().Showing
        || lensFrames().Showing || readingGlasses().Showing;
    if (!screenOpen && options().Chk_EnableNetJournal.value() == 1)
        Cmd_ListPersons_Click();
    NetworkJournalRefreshCounter = 5;
}

void Frm_Vistrel::Tmr_SaveInventory_Timer()
{
    // 600 units at 5 a second: two minutes.
    const double left = SaveInventoryCountdown.number() - 5;
    SaveInventoryCountdown = Variant(left);
    if (left > 0)
        return;
    readingGlasses().Cmd_SaveCells_Click();
    for (int half = 0; half <= 1; ++half) {
        lensFrames().Cmd_SaveLensChanges_Click(half);
        lensFrames().Cmd_SaveF_Click(half);
    }
    SaveInventoryCountdown = Variant(600);
}

}  // namespace vistrel
