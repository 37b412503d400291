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

    void Form_Activate() { Showing = true; }
    void Cmd_Yes_Click() { answer(true); }
    void Cmd_NOSave_Click() { answer(false); }
    // Any click, also one that clears the box again: yes from now on.
    void Chk_DoNotAsk_Click();

private:
    void answer(bool save);
    void design();
};

}  // namespace vistrel
