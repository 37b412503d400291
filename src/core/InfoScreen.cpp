#include "InfoScreen.h"

namespace vistrel {

InfoScreen::InfoScreen(Station& station, const std::string& name) : Screen(station, name)
{
    Cmd_Exit.setCaption("&Close");
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
}

void InfoScreen::ShowScreen()
{
    Refresh();
    Showing = true;
    show(true);
    // Closed by any means, it is no longer showing; kept up (the script
    // driver's "stay"), it still is.
    if (!visible())
        Showing = false;
}

void InfoScreen::Cmd_Exit_Click()
{
    Showing = false;
    hide();
}

}  // namespace vistrel
