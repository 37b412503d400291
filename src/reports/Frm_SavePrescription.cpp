#include "Frm_SavePrescription.h"

#include "core/Frm_Vistrel.h"

namespace vistrel {

Frm_SavePrescription::Frm_SavePrescription(Station& station) : Screen(station, "Frm_SavePrescription")
{
    design();
    var("Showing", Showing);
    onActivate = [this] { Form_Activate(); };
    // Closed without an answer: nothing is saved.
    onCloseBox = [this] { answer(false); };
    wireClick(Cmd_Yes, "Cmd_Yes_Click", [this] { Cmd_Yes_Click(); });
    wireClick(Cmd_NOSave, "Cmd_NOSave_Click", [this] { Cmd_NOSave_Click(); });
    wireClick(Chk_DoNotAsk, "Chk_DoNotAsk_Click", [this] { Chk_DoNotAsk_Click(); });
}

void Frm_SavePrescription::Chk_DoNotAsk_Click()
{
    vistrel().SavePrescriptionASK = false;
}

void Frm_SavePrescription::answer(bool save)
{
    vistrel().SavePrescriptionYesNo = save;
    Showing = false;
    hide();
}

void Frm_SavePrescription::design()
{
    setCaption("Save Prescription?");
    setGeometry(0, 0, 6600, 3600);
    Lbl_SavePrescription.setCaption(
        "Do You Want to Save this prescription as one you could not find in your inventory?");
    Lbl_SavePrescription.setGeometry(240, 240, 6000, 600);
    Cmd_Yes.setCaption("&Yes");
    Cmd_Yes.setGeometry(1200, 960, 1500, 420);
    Cmd_NOSave.setCaption("&No");
    Cmd_NOSave.setGeometry(3600, 960, 1500, 420);
    Chk_DoNotAsk.setCaption("Don't ask this question again.");
    Chk_DoNotAsk.setGeometry(240, 1620, 6000, 300);
    Lbl_Explanation.setCaption("(This question will not be asked again until you later restart the program.  "
                               "Therefore, YES will always be assumed.)");
    Lbl_Explanation.setGeometry(240, 2040, 6000, 900);
}

}  // namespace vistrel
