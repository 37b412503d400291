#include "Frm_HelpAreas.h"

#include "Frm_Vistrel.h"
#include "screen/Layout.h"

namespace vistrel {

Frm_HelpAreas::Frm_HelpAreas(Station& station) : InfoScreen(station, "Frm_HelpAreas")
{
    design();
    for (int i = 0; i <= LastDocument(); ++i) {
        const auto handler = [this, i] { Cmd_OpenHelp_Click(i); };
        Cmd_OpenHelp[i].onClick = handler;
        op("Cmd_OpenHelp_Click(" + std::to_string(i) + ")", handler);
    }
}

void Frm_HelpAreas::Cmd_OpenHelp_Click(int index)
{
    vistrel().ShowHelpDocument(HelpDocuments().at(static_cast<size_t>(index)).file);
}

void Frm_HelpAreas::Refresh()
{
    Lbl_Folder.setCaption("The guides are PDF files in the station's program folder:\r\n"
        + vistrel().ProgramFilesLocation);
}

// One row a document: its button, and beside it what it tells.
void Frm_HelpAreas::design()
{
    constexpr int left = 240;
    constexpr int rowHeight = 405;
    constexpr int rowStep = 555;  // room for a summary of two lines
    constexpr int buttonWidth = 2700;
    constexpr int summaryLeft = left + buttonWidth + 120;
    constexpr int summaryWidth = 5580;
    constexpr int right = summaryLeft + summaryWidth;

    setCaption("Help");
    place(Lbl_Intro, nullptr, left, 150, right - left, 420,
        "Choose a guide. It opens in the computer's PDF viewer, and this window stays open so that you can "
        "choose another.");
    int top = 690;
    int tab = 0;
    for (int i = 0; i <= LastDocument(); ++i) {
        const HelpDocument& d = HelpDocuments()[static_cast<size_t>(i)];
        place(Cmd_OpenHelp[i], nullptr, left, top, buttonWidth, rowHeight, d.title, "Opens " + d.file + ".");
        place(Lbl_HelpSummary[i], nullptr, summaryLeft, top + 30, summaryWidth, rowStep - 60, d.summary);
        Cmd_OpenHelp[i].setTabIndex(tab++);
        top += rowStep;
    }
    top += 90;
    place(Lbl_Folder, nullptr, left, top, right - left - 1320, 420);
    place(Cmd_Exit, nullptr, right - 1200, top, 1200, rowHeight, {}, "Close the help.");
    Cmd_Exit.setTabIndex(tab);
    // The window's outer size: the title bar and borders come on top.
    setGeometry(0, 0, right + left + 120, top + rowHeight + 660);
}

}  // namespace vistrel
