#include "InfoScreen.h"

namespace vistrel {

InfoScreen::InfoScreen(Station& station, const std::string& name, const std::string& caption)
    : Screen(station, name)
{
    setCaption(caption);
    setGeometry(0, 0, 6000, 3000);
    Lbl_Text.setGeometry(240, 240, 5400, 1800);
    Cmd_Exit.setCaption("&Close");
    Cmd_Exit.setGeometry(4440, 2160, 1200, 375);
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
}

void InfoScreen::Cmd_Exit_Click()
{
    Showing = false;
    hide();
}

}  // namespace vistrel
