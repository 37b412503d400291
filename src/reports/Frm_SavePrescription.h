#pragma once

#include "core/screen/Screen.h"

namespace vistrel {

// Asks whether a measurement that found nothing is to be kept.
class Frm_SavePrescription : public Screen {
public:
    explicit Frm_SavePrescription(Station& station);

    Label Lbl_SavePrescription{*this, "Lbl_SavePrescription"};
    CommandButton Cmd_Yes{*this, "Cmd_Yes"};
    CommandButton Cmd_NOSave{*this, "Cmd_NOSave"};
    CheckBox Chk_DoNotAsk{*this, "Chk_DoNotAsk"};
    Label Lbl_Explanation{*this, "Lbl_Explanation"};

    bool Showing = false;

private:
    void design();
};

}  // namespace vistrel
