#include "Frm_About.h"

#include "HelpDocuments.h"
#include "screen/Layout.h"

namespace vistrel {

Frm_About::Frm_About(Station& station) : InfoScreen(station, "Frm_About")
{
    design();
}

void Frm_About::design()
{
    constexpr int left = 240;
    constexpr int width = 6600;

    setCaption("About Vistrel");
    place(Lbl_Name, nullptr, left, 150, width, 540, "Vistrel");
    Lbl_Name.setFont(Font{"MS Sans Serif", 18, true});
    place(Lbl_Subtitle, nullptr, left, 720, width, 300, "Eyeglass Matching Station");
    Lbl_Subtitle.setFont(Font{"MS Sans Serif", 10, true});
    place(Lbl_Version, nullptr, left, 1050, width, 255, "Version " + StationVersion());
    place(Lbl_Purpose, nullptr, left, 1440, width, 840,
        "For eye-care missions that hand out donated, used prescription glasses. The station takes a person's "
        "measurement, typed or from an autorefractor, finds the numbered bags whose glasses come closest, "
        "prints a slip for the person and keeps a journal of every pair given out.");
    place(Lbl_Credits, nullptr, left, 2340, width, 600,
        "The fitting rules of thumb (Varn's Rules) and the advice on the slip are by Dr Dessa Varn, OD.");
    place(Cmd_Exit, nullptr, left + width - 1200, 3060, 1200, 405, {}, "Close this window.");
    // The window's outer size: the title bar and borders come on top.
    setGeometry(0, 0, left + width + 360, 3060 + 405 + 660);
}

}  // namespace vistrel
