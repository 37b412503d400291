// The boxes that change what is searched for (blind, dominant, Add), the
// way back to the autorefractor's reading, and the reset between persons.

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "wizard/Frm_Advisor.h"

namespace vistrel {

// ---- Blind and dominant eyes ----

// Marking one eye blind searches by the other eye alone. The options
// screen's option is marked without its handler: MatchBothValue stays as it
// was when a box is checked.
void Frm_Vistrel::blindChanged(bool rightEye)
{
    bool& busy = rightEye ? BlindRight : BlindLeft;
    if (busy)
        return;
    busy = true;
    CheckBox& box = rightEye ? Chk_BlindRight : Chk_BlindLeft;
    if (box.value() == 1) {
        (rightEye ? Chk_BlindLeft : Chk_BlindRight).setValue(0);
        LeftOnlyValue = rightEye;
        RightOnlyValue = !rightEye;
        (rightEye ? options().Opt_LeftOnly : options().Opt_RightOnly).selectQuietly();
    } else {
        LeftOnlyValue = false;
        RightOnlyValue = false;
        MatchBothValue = true;
        options().Opt_MatchBoth.select();
    }
    Cmd_Search_Click();
    busy = false;
}

void Frm_Vistrel::Chk_BlindRight_Click()
{
    blindChanged(true);
}

void Frm_Vistrel::Chk_BlindLeft_Click()
{
    blindChanged(false);
}

void Frm_Vistrel::Chk_DominantLeft_Click()
{
    if (DominantLeft)
        return;
    DominantLeft = true;
    if (Chk_DominantLeft.value() == 1)
        Chk_DominantRight.setValue(0);
    DominantLeft = false;
}

void Frm_Vistrel::Chk_DominantRight_Click()
{
    if (DominantRight)
        return;
    DominantRight = true;
    if (Chk_DominantRight.value() == 1)
        Chk_DominantLeft.setValue(0);
    DominantRight = false;
}

// ---- Reading power in the search ----

void Frm_Vistrel::Chk_PlusBifocals_Click()
{
    Frm_ProgramOptions& opt = options();
    if (Chk_PlusBifocals.value() == 1) {
        opt.Chk_MatchReadingAlso.setValue(1);
        opt.Chk_MatchReadingOnly.setValue(0);
        MatchReadingOnlyValue = 0;
        MatchReadingAlsoValue = 1;
        Chk_OnlyBifocals.setValue(0);
        Cmd_SetAdd_Click();
    } else {
        // The Add the chart gave stays available to the advice.
        ChosenAddText = Txt_LeftAdd.text();
        if (opt.Chk_MatchReadingOnly.value() == 1)
            MatchReadingOnlyValue = 1;
        MatchReadingAlsoValue = 0;
        Txt_LeftAdd_DblClick();
        Txt_RightAdd_DblClick();
    }
    AutomaticSearch();
}

// ---- Back to the autorefractor's reading ----

// The fields are written while the cut-back flag is still up, so the stored
// values stay as they were until the next change.
void Frm_Vistrel::Cmd_RestoreLeft_Click()
{
    Frm_Autorefractor& a = autorefractor();
    Txt_Sphere_Left.setText(a.Txt_AutoSphere[0].text());
    Txt_Cylinder_Left.setText(a.Txt_AutoCylinder[0].text());
    Txt_Axis_Left.setText(a.Txt_AutoAxis[0].text());
    LeftIsCutback = false;
    Txt_LeftCutBackCount.setText("000");
}

void Frm_Vistrel::Cmd_RestoreRight_Click()
{
    Frm_Autorefractor& a = autorefractor();
    Txt_Sphere_Right.setText(a.Txt_AutoSphere[1].text());
    Txt_Cylinder_Right.setText(a.Txt_AutoCylinder[1].text());
    Txt_Axis_Right.setText(a.Txt_AutoAxis[1].text());
    RightIsCutback = false;
    Txt_RightCutBackCount.setText("000");
}

// ---- The reset between persons ----

void Frm_Vistrel::Cmd_CalculateDataClear_Click()
{
    Frm_Advisor& wizard = advisor();
    // 1, 2.
    ChosenAddText.clear();
    Cmd_RightResetCutBack_Click();
    Cmd_LeftResetCutBack_Click();
    ClearEntryValues();
    Cmd_Default_Click();
    // 3, 4.
    wizard.WizardLeftDone = false;
    wizard.WizardRightDone = false;
    Txt_Cylinder_Left.setVisible(true);
    Txt_Axis_Left.setVisible(true);
    Chk_Overminus.setValue(1);
    Chk_DominantLeft.setValue(0);
    Chk_DominantRight.setValue(0);
    // 5, 6.
    Txt_Age.setBackColor(colors::WindowBackground);
    Lbl_Age.setBackColor(colors::Cyan);
    Lbl_Recommendation.setHeight(460);
    Lbl_Recommendation.setVisible(false);
    Lbl_Cylinder_Left.setVisible(true);
    Lbl_Axis_Left.setVisible(true);
    Txt_Cylinder_Right.setVisible(true);
    Txt_Axis_Right.setVisible(true);
    Lbl_Cylinder_Right.setVisible(true);
    // 7.
    wizard.Chk_VarnOverCylinder50.setValue(0);
    Lbl_Axis_Right.setVisible(true);
    Opt_DoNotCare.select();
    // 8.
    Txt_Age.setText("");
    Chk_BlindRight.setValue(0);
    Chk_BlindLeft.setValue(0);
    Chk_PlusBifocals.setValue(0);
    Chk_OnlyBifocals.setValue(0);
    Opt_LensDoNotCare.select();
    Opt_DoNotCare.select();
    Lst_LeftSelection.clear();
    FoundListCount = 0;
    // 9.
    SkipSearch = true;
    Chk_NOEquiv.setValue(1);
    Chk_OverPlus.setValue(1);
    SkipSearch = false;
    // 10.
    Frm_Autorefractor& a = autorefractor();
    for (int i = 0; i <= 1; ++i) {
        a.Txt_AutoSphere[i].setText("");
        a.Txt_AutoCylinder[i].setText("");
        a.Txt_AutoAxis[i].setText("");
    }
    // 11.
    LeftToleranceMultiplier = 1.0;
    RightToleranceMultiplier = 1.0;
    wizard.Opt_Left1.select();
    wizard.Opt_Right1.select();
}

}  // namespace vistrel
