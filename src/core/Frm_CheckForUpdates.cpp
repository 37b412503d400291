#include "Frm_CheckForUpdates.h"

#include "Frm_Vistrel.h"
#include "HelpDocuments.h"
#include "screen/Layout.h"

namespace vistrel {

Frm_CheckForUpdates::Frm_CheckForUpdates(Station& station) : InfoScreen(station, "Frm_CheckForUpdates")
{
    design();
}

// The folders as the station uses them now; before the start they aren't
// known yet.
void Frm_CheckForUpdates::Refresh()
{
    Frm_Vistrel& v = vistrel();
    const auto shown = [](const std::string& folder) {
        return folder.empty() ? std::string("(not known yet)") : folder;
    };
    Lbl_Folders.setCaption("Stock file and journals:   " + shown(v.InventoryLocation) + "\r\n"
        + "Options:   " + shown(v.OptionsFolder()) + "\r\n"
        + "Program and help:   " + shown(v.ProgramFilesLocation));
}

void Frm_CheckForUpdates::design()
{
    constexpr int left = 240;
    constexpr int width = 7800;

    setCaption("Check for Updates");
    place(Lbl_Installed, nullptr, left, 150, width, 300, "Installed: Vistrel version " + StationVersion());
    Lbl_Installed.setFont(Font{"MS Sans Serif", 10, true});
    place(Lbl_Source, nullptr, left, 570, width, 660,
        "The station never goes on the internet and does not look for updates by itself. New versions come "
        "from your mission's coordinator, who takes them from the project's releases and brings them on a "
        "USB stick or by another way.");
    place(Lbl_HowTo, nullptr, left, 1320, width, 600,
        "To update, close the station, install the new version in place of the old one and start it again. "
        "An update does not touch the stock file, the journals or the options: they stay in these folders.");
    place(Lbl_Folders, nullptr, left, 2010, width, 720);
    place(Cmd_Exit, nullptr, left + width - 1200, 2850, 1200, 405, {}, "Close this window.");
    // The window's outer size: the title bar and borders come on top.
    setGeometry(0, 0, left + width + 360, 2850 + 405 + 660);
}

}  // namespace vistrel
