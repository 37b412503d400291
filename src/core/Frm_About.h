#pragma once

#include "InfoScreen.h"

namespace vistrel {

// About the station: its name, its version and what it is for.
class Frm_About : public InfoScreen {
public:
    explicit Frm_About(Station& station);

    Label Lbl_Name{*this, "Lbl_Name"};
    Label Lbl_Subtitle{*this, "Lbl_Subtitle"};
    Label Lbl_Version{*this, "Lbl_Version"};
    Label Lbl_Purpose{*this, "Lbl_Purpose"};
    Label Lbl_Credits{*this, "Lbl_Credits"};

private:
    void design();
};

}  // namespace vistrel
