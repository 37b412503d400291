// The wizard's flow: opened modally from the main screen, made ready each
// time it comes up (the guide text, the eye-condition panel, the cases on
// offer), and left with the adjusted marks put right.

#include "Frm_Advisor.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

namespace vistrel {

void Frm_Vistrel::Cmd_RunAdvisor_Click()
{
    WizardFlash = false;
    Cmd_RunAdvisor.setBackColor(colors::Green);
    Frm_Advisor& wizard = advisor();
    wizard.Showing = true;
    wizard.show(true);
    // The window waits here until the wizard is left; a script may keep it
    // up and work it, and then leaving it clears the flag.
    if (!wizard.visible())
        wizard.Showing = false;
}

void Frm_Advisor::guide(const std::string& text)
{
    Txt_GuideMe.setText(Txt_GuideMe.text() + text);
}

namespace {

// The age where the Add chart's second row begins, against the person's
// age: the wizard speaks of BiFocals only past it.
bool pastFirstChartRow(Frm_ProgramOptions& options, Frm_Vistrel& v)
{
    return Val(options.Txt_From[1].text()) < Val(v.Txt_Age.text());
}

// The age the main screen leaves in an emptied age field.
bool ageMissing(Frm_Vistrel& v) { return v.Txt_Age.text() == " "; }

}  // namespace

void Frm_Advisor::Form_Activate()
{
    Frm_Vistrel& v = vistrel();
    Frm_ProgramOptions& opt = options();

    v.WizardFlash = false;
    Chk_BlindRight.setValue(0);
    Chk_BlindLeft.setValue(0);
    Txt_Age.setText(v.Txt_Age.text());
    Txt_GuideMe.setText("");

    // What the advice made of the person.
    if (!v.GlassesNeeded) {
        if (!pastFirstChartRow(opt, v))
            guide("Dessa Says: No Glasses needed. Otherwise:  ");
        else
            guide("Dessa Says: No Glasses needed except BiFocals or readers. Otherwise: ");
    }
    if (v.GlassesOptional) {
        if (!pastFirstChartRow(opt, v))
            guide("Dessa Says: Glasses optional. Otherwise:  ");
        else
            guide("Dessa Says: Glasses optional except BiFocals or readers. Otherwise: ");
    }

    // A typed prescription is what restoring an eye comes back to.
    if (v.Chk_AutoBypass.value() == 1) {
        SaveLeftSphere = v.Txt_Sphere_Left.text();
        SaveLeftCylinder = v.Txt_Cylinder_Left.text();
        SaveLeftAxis = v.Txt_Axis_Left.text();
        SaveRightSphere = v.Txt_Sphere_Right.text();
        SaveRightCylinder = v.Txt_Cylinder_Right.text();
        SaveRightAxis = v.Txt_Axis_Right.text();
    }

    setWidth(NarrowWidth);
    HelpWanted = true;
    v.WizardFlash = false;
    guide("Print when you have ample matches. ");
    v.Cmd_RunAdvisor.setBackColor(colors::Green);

    if (ageMissing(v)) {
        guide("Enter the patient's age. ");
    } else if (!pastFirstChartRow(opt, v)) {
        Chk_BiFocal_Remove.setVisible(false);
        Lbl_Asterisk.setVisible(false);
    } else {
        Chk_BiFocal_Remove.setVisible(true);
        Lbl_Asterisk.setVisible(true);
        guide("Click to right of *** to remove BiFocal requirement. ");
    }

    if (v.Chk_BlindLeft.value() == 1)
        Chk_BlindLeft.setValue(1);
    if (v.Chk_BlindRight.value() == 1)
        Chk_BlindRight.setValue(1);

    v.Calculate_AMP();
    ShowEyeCondition();

    if (pastFirstChartRow(opt, v))
        guide("Clear checkmark to right of *** for BiFocal matches. ");

    // The cases start unchecked. The skip flags keep most of their handlers
    // quiet; case 1 clears case 3's flag of its eye as it goes, so case 3's
    // unchecking runs in full after a checked case 1.
    Case1SkipLeft = Case1SkipRight = Case2SkipLeft = Case2SkipRight = true;
    Case3SkipLeft = Case3SkipRight = Case4SkipLeft = Case4SkipRight = true;
    for (CheckBox* box : {&Chk_Case1_Left, &Chk_Case1_Right, &Chk_Case2_Left, &Chk_Case2_Right, &Chk_Case3_Left,
             &Chk_Case3_Right, &Chk_Case4_Left, &Chk_Case4_Right, &Chk_Case5_Still_no_match, &Chk_Case6_Desperate})
        box->setValue(0);
    ChangeALSO = false;
    Chk_BiFocal_Remove.setValue(0);
    ChangeALSO = true;
    Case1SkipLeft = Case1SkipRight = Case2SkipLeft = Case2SkipRight = false;
    Case3SkipLeft = Case3SkipRight = Case4SkipLeft = Case4SkipRight = false;

    Form_Load();
}

void Frm_Advisor::Form_Load()
{
    Frm_Vistrel& v = vistrel();
    Frm_ProgramOptions& opt = options();

    v.WizardFlash = false;
    RefreshLeftFields();
    RefreshRightFields();

    // The eyes stand in the order of the main screen.
    Frm_Left.setLeft(v.FlipLeftFirst ? 120 : 5010);
    Frm_Right.setLeft(v.FlipLeftFirst ? 5010 : 120);

    Case3SkipLeft = false;
    Case3SkipRight = false;
    OfferCases(true);
    Chk_Case5_Still_no_match.setVisible(true);
    Lbl_Change_Default_times_2.setVisible(true);
    if (!ageMissing(v)) {
        if (!pastFirstChartRow(opt, v)) {
            Chk_BiFocal_Remove.setVisible(false);
        } else {
            Chk_BiFocal_Remove.setVisible(true);
            Lbl_Asterisk.setVisible(true);
        }
    } else {
        Chk_BiFocal_Remove.setVisible(false);
        Lbl_Asterisk.setVisible(false);
    }
    OfferCases(false);

    if (Chk_VarnOverCylinder50.value() == 1)
        opt.Chk_UpTo50.setValue(1);
    guide("If all else fails, click Rule Change, case 5, Case 6, and ");
    guide(" lastly click any cases 1-4 showing for good eye.");
}

// An eye whose copy reads as the autorefractor's reading counts as not
// adjusted, whatever the wizard did to it on the way.
void Frm_Advisor::Cmd_Exit_Click()
{
    hide();
    Showing = false;
    Frm_Autorefractor& a = autorefractor();
    auto asMeasured = [&a](const TextBox& sphere, const TextBox& cylinder, const TextBox& axis, int index) {
        return Val(sphere.text()) == Val(a.Txt_AutoSphere[index].text())
            && Val(cylinder.text()) == Val(a.Txt_AutoCylinder[index].text())
            && Val(axis.text()) == Val(a.Txt_AutoAxis[index].text());
    };
    if (asMeasured(Txt_Sphere_Left, Txt_Cylinder_Left, Txt_Axis_Left, 0))
        WizardLeftDone = false;
    if (asMeasured(Txt_Sphere_Right, Txt_Cylinder_Right, Txt_Axis_Right, 1))
        WizardRightDone = false;
    Frm_Left.setBackColor(colors::Cyan);
    Frm_Right.setBackColor(colors::Cyan);
    vistrel().WizardFlash = false;
}

// The wider form uncovers the help text beside the wizard.
void Frm_Advisor::Cmd_Help_Click()
{
    if (HelpWanted) {
        setWidth(WideWidth);
        Cmd_Help.setCaption("&No Help.");
        HelpWanted = false;
    } else {
        setWidth(NarrowWidth);
        Cmd_Help.setCaption("&Help?");
        HelpWanted = true;
    }
}

// The main screen's slip: the list and the prescription.
void Frm_Advisor::Cmd_Print_Click()
{
    vistrel().Cmd_PrintList_Click();
}

// Practice play steps the person on the main screen, then the wizard
// comes up afresh on the new person.
void Frm_Advisor::Img_Backwards_Click()
{
    vistrel().Img_Backwards_Click();
    Form_Activate();
}

void Frm_Advisor::Img_Forward_Click()
{
    vistrel().Img_Forward_Click();
    Form_Activate();
}

}  // namespace vistrel
