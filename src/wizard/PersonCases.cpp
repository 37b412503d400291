// The tools that stand for the person rather than an eye: cases 5 and 6
// (wider tolerance presets), the Varn rule change and the removal of the
// BiFocal requirement. None of them changes the prescription, so none marks
// an eye as adjusted.

#include "Frm_Advisor.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"

namespace vistrel {

// Case 5: the doubled preset; unchecked, the default unless case 6 holds.
void Frm_Advisor::Chk_Case5_Still_no_match_Click()
{
    Frm_Vistrel& v = vistrel();
    if (Chk_Case5_Still_no_match.value() == 1)
        v.Cmd_2DefTimes2_Click();
    else if (Chk_Case6_Desperate.value() != 1)
        v.Cmd_Default_Click();
    RefreshFoundCount();
}

// Case 6: the maximum preset; unchecked, back to case 5's or the default.
void Frm_Advisor::Chk_Case6_Desperate_Click()
{
    Frm_Vistrel& v = vistrel();
    if (Chk_Case6_Desperate.value() == 1) {
        v.Cmd_MAX_Click();
    } else if (Chk_Case5_Still_no_match.value() != 1) {
        v.Cmd_Default_Click();
    } else {
        Chk_Case5_Still_no_match_Click();
    }
    RefreshFoundCount();
}

// The options dialog's box and this one mirror each other; the flag keeps
// them from chasing each other.
void Frm_Advisor::Chk_VarnOverCylinder50_Click()
{
    if (VarnCheckRunning)
        return;
    VarnCheckRunning = true;
    options().Chk_UpTo50.setValue(Chk_VarnOverCylinder50.value() == 1 ? 1 : 0);
    VarnCheckRunning = false;
}

// Checked: no BiFocal match is asked for, readers are given instead.
// Unchecked: the Add from the chart comes back. While the flow resets the
// box, ChangeALSO is False and only the count is refreshed.
void Frm_Advisor::Chk_BiFocal_Remove_Click()
{
    if (ChangeALSO) {
        Frm_Vistrel& v = vistrel();
        const bool checked = Chk_BiFocal_Remove.value() == 1;
        if (checked && !v.Txt_Age.text().empty()) {
            v.Chk_PlusBifocals.setValue(0);
            Txt_LeftAdd.setText("");
            Txt_RightAdd.setText("");
        }
        if (!checked) {
            if (!v.Txt_Age.text().empty())
                v.Cmd_SetAdd_Click();
            Cmd_Search_Click();
        }
    }
    RefreshFoundCount();
    ChangeALSO = true;
}

}  // namespace vistrel
