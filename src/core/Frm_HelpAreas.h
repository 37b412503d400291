#pragma once

#include "HelpDocuments.h"
#include "InfoScreen.h"

namespace vistrel {

// The help screen: a button for every help document, with a line on what
// it tells. A document opens in the desktop's PDF viewer and the screen
// stays up, so that another can be opened.
class Frm_HelpAreas : public InfoScreen {
public:
    explicit Frm_HelpAreas(Station& station);

    Label Lbl_Intro{*this, "Lbl_Intro"};
    ControlArray<CommandButton> Cmd_OpenHelp{*this, "Cmd_OpenHelp", 0, LastDocument()};
    ControlArray<Label> Lbl_HelpSummary{*this, "Lbl_HelpSummary", 0, LastDocument()};
    Label Lbl_Folder{*this, "Lbl_Folder"};

    void Cmd_OpenHelp_Click(int index);

protected:
    void Refresh() override;

private:
    static int LastDocument() { return static_cast<int>(HelpDocuments().size()) - 1; }
    void design();
};

}  // namespace vistrel
