#pragma once

#include "InfoScreen.h"

namespace vistrel {

// Where updates of the station come from. The station looks for none by
// itself and never goes on the network for them: it says which version is
// installed, how an update is done and where the station's data stay.
class Frm_CheckForUpdates : public InfoScreen {
public:
    explicit Frm_CheckForUpdates(Station& station);

    Label Lbl_Installed{*this, "Lbl_Installed"};
    Label Lbl_Source{*this, "Lbl_Source"};
    Label Lbl_HowTo{*this, "Lbl_HowTo"};
    Label Lbl_Folders{*this, "Lbl_Folders"};

protected:
    void Refresh() override;

private:
    void design();
};

}  // namespace vistrel
