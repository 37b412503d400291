// How the measurement area behaves: every write of an entry field, typed,
// stepped or written by another screen, runs its change handler, and the
// handlers keep the derived values and the prescription captions current.

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "wizard/Frm_Advisor.h"

namespace vistrel {

namespace {

std::string netReadingPower(double add, double equivalent)
{
    const std::string text = Format(add + equivalent, "##.00");
    return Val(text) == 0 ? std::string() : text;
}

}  // namespace

// ---- Sphere, cylinder, axis, Add, reading power ----

Frm_Vistrel::EyeEntry Frm_Vistrel::eyeEntry(bool left)
{
    if (left)
        return {Txt_Sphere_Left, Txt_Cylinder_Left, Txt_Axis_Left, Txt_LeftAdd, Txt_LeftReadingPower,
            Txt_Sphere_Equ_Left, Txt_LeftCutBackCount, LeftSphereRead, LeftCylinderRead, LeftReadingPower,
            LeftSphereEqu, LeftAxisRead, LeftIsCutback, Txt_Sphere_LeftSave, Txt_Cylinder_LeftSave};
    return {Txt_Sphere_Right, Txt_Cylinder_Right, Txt_Axis_Right, Txt_RightAdd, Txt_RightReadingPower,
        Txt_Sphere_Equ_Right, Txt_RightCutBackCount, RightSphereRead, RightCylinderRead, RightReadingPower,
        RightSphereEqu, RightAxisRead, RightIsCutback, Txt_Sphere_RightSave, Txt_Cylinder_RightSave};
}

// During a cut-back trial the stored values, the equivalent and the captions
// stay at the prescription as entered; only the levels follow the fields.
void Frm_Vistrel::sphereOrCylinderChanged(const EyeEntry& eye, bool sphere)
{
    if (JumpBack)
        return;
    Calculate_AMP();
    if (eye.isCutback)
        return;
    if (sphere)
        eye.sphereRead = Variant(Val(eye.sphere.text()));
    else
        eye.cylinderRead = Variant(Val(eye.cylinder.text()));
    eye.equivalent = eye.cylinderRead.number() * 0.5 + eye.sphereRead.number();
    eye.sphereEqu.setText(Format(eye.equivalent, "0.00"));
    eye.readingPower.setText(netReadingPower(Val(eye.add.text()), eye.equivalent));
    DisplayPrescription();
}

// The Add's handler reads the shown equivalent, not the stored one.
void Frm_Vistrel::addChanged(const EyeEntry& eye)
{
    if (JumpBack)
        return;
    Calculate_AMP();
    eye.readingPower.setText(netReadingPower(Val(eye.add.text()), Val(eye.sphereEqu.text())));
    DisplayPrescription();
}

void Frm_Vistrel::axisChanged(const EyeEntry& eye)
{
    if (JumpBack)
        return;
    if (auto axis = ToInteger(Val(eye.axis.text())))
        eye.axisRead = *axis;
    DisplayPrescription();
}

void Frm_Vistrel::readingPowerChanged(const EyeEntry& eye)
{
    if (JumpBack)
        return;
    eye.readingPowerRead = Variant(Val(eye.readingPower.text()));
    DisplayPrescription();
}

void Frm_Vistrel::Txt_Sphere_Left_Change() { sphereOrCylinderChanged(eyeEntry(true), true); }
void Frm_Vistrel::Txt_Cylinder_Left_Change() { sphereOrCylinderChanged(eyeEntry(true), false); }
void Frm_Vistrel::Txt_Sphere_Right_Change() { sphereOrCylinderChanged(eyeEntry(false), true); }
void Frm_Vistrel::Txt_Cylinder_Right_Change() { sphereOrCylinderChanged(eyeEntry(false), false); }
void Frm_Vistrel::Txt_LeftAdd_Change() { addChanged(eyeEntry(true)); }
void Frm_Vistrel::Txt_RightAdd_Change() { addChanged(eyeEntry(false)); }
void Frm_Vistrel::Txt_axis_left_Change() { axisChanged(eyeEntry(true)); }
void Frm_Vistrel::Txt_Axis_Right_Change() { axisChanged(eyeEntry(false)); }
void Frm_Vistrel::Txt_LeftReadingPower_Change() { readingPowerChanged(eyeEntry(true)); }
void Frm_Vistrel::Txt_RightReadingPower_Change() { readingPowerChanged(eyeEntry(false)); }

// "OS:-1.25  -.50x90 Add:2.00": the captions from the fields as they stand.
void Frm_Vistrel::DisplayPrescription()
{
    auto caption = [](const char* eye, const TextBox& sphere, const TextBox& cylinder, const TextBox& axis,
                       const TextBox& add) {
        std::string a = Format(Val(add.text()), "##.00");
        if (Val(a) == 0)
            a.clear();
        return std::string(eye) + Format(Val(sphere.text()), "##.00") + "  " + Format(Val(cylinder.text()), "##.00")
            + "x" + Format(Val(axis.text()), "##0") + " Add:" + a;
    };
    Lbl_Left_Prescription.setCaption(caption("OS:", Txt_Sphere_Left, Txt_Cylinder_Left, Txt_Axis_Left, Txt_LeftAdd));
    Lbl_Right_Prescription.setCaption(
        caption("OD:", Txt_Sphere_Right, Txt_Cylinder_Right, Txt_Axis_Right, Txt_RightAdd));
}

// ---- Age and person ----

void Frm_Vistrel::Txt_Age_Change()
{
    Calculate_AMP();
    if (Val(Txt_Age.text()) < 1) {
        Txt_Age.setText(" ");
        return;
    }
    Txt_Age.setBackColor(colors::WindowBackground);
    Lbl_Age.setBackColor(colors::Cyan);
    if (Val(Txt_Age.text()) > 99)
        Txt_Age.setText("99");
}

void Frm_Vistrel::Txt_Age_Click()
{
    Txt_Age.setText("");
}

void Frm_Vistrel::Txt_Age_DblClick()
{
    Txt_Age.setText("");
    Chk_PlusBifocals.setValue(0);
}

void Frm_Vistrel::Txt_PersonNumber_Change()
{
    if (Val(Txt_PersonNumber.text()) < 1)
        Txt_PersonNumber.setText("");
}

void Frm_Vistrel::Txt_PersonNumber_DblClick()
{
    Txt_PersonNumber.setText("1");
}

// ---- Double clicks write blanks of settled widths ----

void Frm_Vistrel::Txt_Sphere_Left_DblClick()
{
    Txt_Sphere_Left.setText("    ");
}

void Frm_Vistrel::Txt_Sphere_Right_DblClick()
{
    Txt_Sphere_Right.setText("    ");
}

void Frm_Vistrel::Txt_LeftAdd_DblClick()
{
    Txt_LeftAdd.setText("    ");
}

void Frm_Vistrel::Txt_RightAdd_DblClick()
{
    Txt_RightAdd.setText("    ");
}

void Frm_Vistrel::Txt_Cylinder_Left_DblClick()
{
    Txt_Axis_Left.setText("   ");
    Txt_Cylinder_Left.setText("     ");
}

void Frm_Vistrel::Txt_Cylinder_Right_DblClick()
{
    Txt_Axis_Right.setText("   ");
    Txt_Cylinder_Right.setText("     ");
}

// ---- Spin buttons ----

namespace {

void stepDecimal(TextBox& box, double step)
{
    box.setText(Format(Val(box.text()) + step, "##.00"));
}

void stepWhole(TextBox& box, double step)
{
    box.setText(Str(Val(box.text()) + step));
}

}  // namespace

void Frm_Vistrel::Cmd_SphereLeftUp_Click()
{
    stepDecimal(Txt_Sphere_Left, 0.25);
}

void Frm_Vistrel::Cmd_SphereLeftDown_Click()
{
    stepDecimal(Txt_Sphere_Left, -0.25);
}

void Frm_Vistrel::Cmd_SphereRightUp_Click()
{
    stepDecimal(Txt_Sphere_Right, 0.25);
}

void Frm_Vistrel::Cmd_SphereRightDown_Click()
{
    stepDecimal(Txt_Sphere_Right, -0.25);
}

// A cylinder stepped up past zero goes, together with its axis.
void Frm_Vistrel::Cmd_CylinderLeftUp_Click()
{
    stepDecimal(Txt_Cylinder_Left, 0.25);
    if (-0.2 < Val(Txt_Cylinder_Left.text())) {
        Txt_Cylinder_Left.setText("");
        Txt_Axis_Left.setText("");
    }
}

void Frm_Vistrel::Cmd_CylinderLeftDown_Click()
{
    stepDecimal(Txt_Cylinder_Left, -0.25);
}

void Frm_Vistrel::Cmd_CylinderRightUp_Click()
{
    stepDecimal(Txt_Cylinder_Right, 0.25);
    if (-0.2 < Val(Txt_Cylinder_Right.text())) {
        Txt_Cylinder_Right.setText("");
        Txt_Axis_Right.setText("");
    }
}

void Frm_Vistrel::Cmd_CylinderRightDown_Click()
{
    stepDecimal(Txt_Cylinder_Right, -0.25);
}

void Frm_Vistrel::Cmd_AddLeftUp_Click()
{
    stepDecimal(Txt_LeftAdd, 0.25);
}

void Frm_Vistrel::Cmd_AddLeftDown_Click()
{
    stepDecimal(Txt_LeftAdd, -0.25);
    if (Val(Txt_LeftAdd.text()) < 0.2)
        Txt_LeftAdd.setText("");
}

void Frm_Vistrel::Cmd_AddRightUp_Click()
{
    stepDecimal(Txt_RightAdd, 0.25);
}

void Frm_Vistrel::Cmd_AddRightDown_Click()
{
    stepDecimal(Txt_RightAdd, -0.25);
    if (Val(Txt_RightAdd.text()) < 0.2)
        Txt_RightAdd.setText("");
}

void Frm_Vistrel::Cmd_Age1Up_Click()
{
    stepWhole(Txt_Age, 1);
}

void Frm_Vistrel::Cmd_Age1Down_Click()
{
    stepWhole(Txt_Age, -1);
}

void Frm_Vistrel::Cmd_Age10Up_Click()
{
    stepWhole(Txt_Age, 10);
}

void Frm_Vistrel::Cmd_Age10Down_Click()
{
    stepWhole(Txt_Age, -10);
}

void Frm_Vistrel::StepPersonNumber(double step)
{
    stepWhole(Txt_PersonNumber, step);
}

// ---- Confidence values, held between 1 and 10 by the buttons ----

namespace {

// The buttons step through the number text without its blank and hold the
// value between 1 and 10; the capture screen's twin field follows.
void stepConfidence(TextBox& field, TextBox& captureField, int step)
{
    field.setText(StrTrimmed(Val(field.text()) + step));
    if (step > 0 && Val(field.text()) > 10)
        field.setText("10");
    if (step < 0 && Val(field.text()) <= 0)
        field.setText("1");
    captureField.setText(field.text());
}

}  // namespace

void Frm_Vistrel::Cmd_LeftConfidenceUP_Click()
{
    stepConfidence(Txt_LeftConfidenceValue, autorefractor().Txt_LeftConfidenceValue, 1);
}

void Frm_Vistrel::Cmd_LeftConfidenceDOWN_Click()
{
    stepConfidence(Txt_LeftConfidenceValue, autorefractor().Txt_LeftConfidenceValue, -1);
}

void Frm_Vistrel::Cmd_RightConfidenceUP_Click()
{
    stepConfidence(Txt_RightConfidenceValue, autorefractor().Txt_RightConfidenceValue, 1);
}

void Frm_Vistrel::Cmd_RightConfidenceDOWN_Click()
{
    stepConfidence(Txt_RightConfidenceValue, autorefractor().Txt_RightConfidenceValue, -1);
}

void Frm_Vistrel::Txt_LeftConfidenceValue_Change()
{
    autorefractor().Txt_LeftConfidenceValue.setText(Txt_LeftConfidenceValue.text());
}

void Frm_Vistrel::Txt_RightConfidenceValue_Change()
{
    autorefractor().Txt_RightConfidenceValue.setText(Txt_RightConfidenceValue.text());
}

void Frm_Vistrel::ConfidenceVisibility(bool visible)
{
    if (JumpBack)
        return;
    Frm_Autorefractor& a = autorefractor();
    for (Control* c : std::initializer_list<Control*>{&Lbl_LeftConfidenceValue, &Txt_LeftConfidenceValue,
             &Cmd_LeftConfidenceUP, &Cmd_LeftConfidenceDOWN, &Lbl_RightConfidenceValue, &Txt_RightConfidenceValue,
             &Cmd_RightConfidenceUP, &Cmd_RightConfidenceDOWN, &a.Frm_Notice, &a.Lbl_LeftConfidenceValue,
             &a.Txt_LeftConfidenceValue, &a.Cmd_LeftConfidenceUP, &a.Cmd_LeftConfidenceDOWN,
             &a.Lbl_RightConfidenceValue, &a.Txt_RightConfidenceValue, &a.Cmd_RightConfidenceUP,
             &a.Cmd_RightConfidenceDOWN})
        c->setVisible(visible);
}

// ---- Blind and dominant eyes ----

// Marking one eye blind searches by the other eye alone. The options
// screen's option is marked without its handler: MatchBothValue stays as it
// was when a box is checked.
void Frm_Vistrel::Chk_BlindRight_Click()
{
    if (BlindRight)
        return;
    BlindRight = true;
    if (Chk_BlindRight.value() == 1) {
        Chk_BlindLeft.setValue(0);
        LeftOnlyValue = true;
        RightOnlyValue = false;
        options().Opt_LeftOnly.selectQuietly();
    } else {
        LeftOnlyValue = false;
        RightOnlyValue = false;
        MatchBothValue = true;
        options().Opt_MatchBoth.select();
    }
    Cmd_Search_Click();
    BlindRight = false;
}

void Frm_Vistrel::Chk_BlindLeft_Click()
{
    if (BlindLeft)
        return;
    BlindLeft = true;
    if (Chk_BlindLeft.value() == 1) {
        Chk_BlindRight.setValue(0);
        RightOnlyValue = true;
        LeftOnlyValue = false;
        options().Opt_RightOnly.selectQuietly();
    } else {
        LeftOnlyValue = false;
        RightOnlyValue = false;
        MatchBothValue = true;
        options().Opt_MatchBoth.select();
    }
    Cmd_Search_Click();
    BlindLeft = false;
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
