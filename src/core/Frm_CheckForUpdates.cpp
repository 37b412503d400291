#include "Frm_CheckForUpdates.h"

namespace vistrel {

Frm_CheckForUpdates::Frm_CheckForUpdates(Station& station) : Screen(station, "Frm_CheckForUpdates")
{
    setCaption("Check for Updates");
    setGeometry(0, 0, 6000, 3000);
    Lbl_Text.setGeometry(240, 240, 5400, 1800);
    Cmd_Exit.setCaption("&Close");
    Cmd_Exit.setGeometry(4440, 2160, 1200, 375);
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
}

void Frm_CheckForUpdates::Cmd_Exit_Click()
{
    Showing = false;
    hide();
}

}  // namespace vistrel
