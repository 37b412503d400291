#include "Frm_Advisor.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"

namespace vistrel {

namespace {
struct MultiplierRow {
    double multiplier;
    Color color;
};
constexpr MultiplierRow kMultipliers[] = {
    {1.0, 16776960}, {1.5, 12640511}, {2.0, 8454143}, {2.5, 16744703}, {3.0, 65280}, {4.0, 33023}};
}  // namespace

Frm_Advisor::Frm_Advisor(Station& station) : Screen(station, "Frm_Advisor")
{
    design();
    OptionButton* left[] = {&Opt_Left1, &Opt_Left15, &Opt_Left2, &Opt_Left25, &Opt_Left3, &Opt_Left4};
    OptionButton* right[] = {&Opt_Right1, &Opt_Right15, &Opt_Right2, &Opt_Right25, &Opt_Right3, &Opt_Right4};
    for (int k = 0; k < 6; ++k) {
        const MultiplierRow row = kMultipliers[k];
        left[k]->onClick = [this, row] { MultiplierChosen(true, row.multiplier, row.color); };
        right[k]->onClick = [this, row] { MultiplierChosen(false, row.multiplier, row.color); };
        op(left[k]->name() + "_Click", left[k]->onClick);
        op(right[k]->name() + "_Click", right[k]->onClick);
    }
    Chk_VarnOverCylinder50.onClick = [this] { Chk_VarnOverCylinder50_Click(); };
    Cmd_Search.onClick = [this] { Cmd_Search_Click(); };
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    wireMirrors();

    var("Foundstart", Foundstart);
    var("Case1SkipLeft", Case1SkipLeft);
    var("Case1SkipRight", Case1SkipRight);
    var("Case2SkipLeft", Case2SkipLeft);
    var("Case2SkipRight", Case2SkipRight);
    var("Case3SkipLeft", Case3SkipLeft);
    var("Case3SkipRight", Case3SkipRight);
    var("Case4SkipLeft", Case4SkipLeft);
    var("Case4SkipRight", Case4SkipRight);
    var("HelpWanted", HelpWanted);
    var("WizardLeftDone", WizardLeftDone);
    var("WizardRightDone", WizardRightDone);
    var("ChangeALSO", ChangeALSO);
    var("VarnCheckRunning", VarnCheckRunning);
    var("Showing", Showing);
    var("SaveLeftSphere", SaveLeftSphere);
    var("SaveLeftCylinder", SaveLeftCylinder);
    var("SaveLeftAxis", SaveLeftAxis);
    var("SaveRightSphere", SaveRightSphere);
    var("SaveRightCylinder", SaveRightCylinder);
    var("SaveRightAxis", SaveRightAxis);
    op("RefreshLeftFields", [this] { RefreshLeftFields(); });
    op("RefreshRightFields", [this] { RefreshRightFields(); });
    op("RefreshFoundCount", [this] { RefreshFoundCount(); });
    op("Cmd_Search_Click", [this] { Cmd_Search_Click(); });
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
    op("Chk_VarnOverCylinder50_Click", [this] { Chk_VarnOverCylinder50_Click(); });
}

// Each mirror, when it changes, writes the main screen's field and searches;
// most of them also mark the eye as adjusted by the wizard.
void Frm_Advisor::wireMirrors()
{
    auto mirror = [this](TextBox& mine, TextBox& (*theirs)(Frm_Vistrel&), int doneEye) {
        mine.onChange = [this, &mine, theirs, doneEye] {
            Frm_Vistrel& v = vistrel();
            theirs(v).setText(mine.text());
            v.Cmd_Search_Click();
            if (doneEye == 0)
                WizardLeftDone = true;
            else if (doneEye == 1)
                WizardRightDone = true;
        };
    };
    mirror(Txt_Sphere_Left, [](Frm_Vistrel& v) -> TextBox& { return v.Txt_Sphere_Left; }, -1);
    mirror(Txt_Sphere_Right, [](Frm_Vistrel& v) -> TextBox& { return v.Txt_Sphere_Right; }, -1);
    mirror(Txt_Cylinder_Left, [](Frm_Vistrel& v) -> TextBox& { return v.Txt_Cylinder_Left; }, 0);
    mirror(Txt_Axis_Left, [](Frm_Vistrel& v) -> TextBox& { return v.Txt_Axis_Left; }, 0);
    mirror(Txt_Axis_Right, [](Frm_Vistrel& v) -> TextBox& { return v.Txt_Axis_Right; }, 1);
    // The right cylinder also takes back the main screen's cylinder and axis.
    Txt_Cylinder_Right.onChange = [this] {
        Frm_Vistrel& v = vistrel();
        v.Txt_Cylinder_Right.setText(Txt_Cylinder_Right.text());
        Txt_Cylinder_Right.setText(v.Txt_Cylinder_Right.text());
        Txt_Axis_Right.setText(v.Txt_Axis_Right.text());
        v.Cmd_Search_Click();
        WizardRightDone = true;
    };
}

void Frm_Advisor::RefreshLeftFields()
{
    Frm_Vistrel& v = vistrel();
    Txt_Sphere_Left.setText(v.Txt_Sphere_Left.text());
    Txt_Cylinder_Left.setText(v.Txt_Cylinder_Left.text());
    Txt_Axis_Left.setText(v.Txt_Axis_Left.text());
    Txt_LeftAdd.setText(v.Txt_LeftAdd.text());
    Txt_Sphere_Equ_Left.setText(v.Txt_Sphere_Equ_Left.text());
}

void Frm_Advisor::RefreshRightFields()
{
    Frm_Vistrel& v = vistrel();
    Txt_Sphere_Right.setText(v.Txt_Sphere_Right.text());
    Txt_Cylinder_Right.setText(v.Txt_Cylinder_Right.text());
    Txt_Axis_Right.setText(v.Txt_Axis_Right.text());
    Txt_RightAdd.setText(v.Txt_RightAdd.text());
    Txt_Sphere_Equ_Right.setText(v.Txt_Sphere_Equ_Right.text());
}

void Frm_Advisor::RefreshFoundCount()
{
    const std::string& status = vistrel().Txt_Status.text();
    if (status.find("Listed") != std::string::npos || status.find("Loaded") != std::string::npos)
        Txt_Found.setText("Found: 0000");
    else
        Txt_Found.setText(status);
}

void Frm_Advisor::Cmd_Search_Click()
{
    vistrel().Cmd_Search_Click();
    RefreshFoundCount();
}

void Frm_Advisor::Cmd_Exit_Click()
{
    hide();
    Showing = false;
    Frm_Left.setBackColor(16776960);
    Frm_Right.setBackColor(16776960);
    vistrel().WizardFlash = false;
}

void Frm_Advisor::Chk_VarnOverCylinder50_Click()
{
    if (VarnCheckRunning)
        return;
    VarnCheckRunning = true;
    options().Chk_UpTo50.setValue(Chk_VarnOverCylinder50.value() == 1 ? 1 : 0);
    VarnCheckRunning = false;
}

void Frm_Advisor::MultiplierChosen(bool left, double multiplier, Color color)
{
    Frm_Vistrel& v = vistrel();
    if (left) {
        v.LeftToleranceMultiplier = multiplier;
        Lbl_LeftTolerance.setBackColor(color);
        for (OptionButton* o : LeftGroup.members())
            o->setBackColor(color);
    } else {
        v.RightToleranceMultiplier = multiplier;
        Lbl_RightTolerance.setBackColor(color);
        for (OptionButton* o : RightGroup.members())
            o->setBackColor(color);
    }
    v.Cmd_Search_Click();
    if (left)
        RefreshLeftFields();
    else
        RefreshRightFields();
}

void Frm_Advisor::design()
{
    setCaption("Prescription Modification Wizard");
    setGeometry(0, 0, 10120, 8400);
    Frm_Left.setCaption("Left Eye");
    Frm_Left.setGeometry(120, 120, 4800, 3000);
    Frm_Right.setCaption("Right Eye");
    Frm_Right.setGeometry(5010, 120, 4800, 3000);
    const std::pair<TextBox*, Frame*> boxes[] = {{&Txt_Sphere_Left, &Frm_Left}, {&Txt_Cylinder_Left, &Frm_Left},
        {&Txt_Axis_Left, &Frm_Left}, {&Txt_LeftAdd, &Frm_Left}, {&Txt_Sphere_Equ_Left, &Frm_Left},
        {&Txt_Left_AMP, &Frm_Left}, {&Txt_Sphere_Right, &Frm_Right}, {&Txt_Cylinder_Right, &Frm_Right},
        {&Txt_Axis_Right, &Frm_Right}, {&Txt_RightAdd, &Frm_Right}, {&Txt_Sphere_Equ_Right, &Frm_Right},
        {&Txt_Right_AMP, &Frm_Right}};
    int k = 0;
    for (auto [box, frame] : boxes) {
        box->setContainer(frame);
        box->setGeometry(240 + (k % 6) * 740, 360, 700, 375);
        ++k;
    }
    Lbl_LeftTolerance.setCaption("Left eye deviation multiplier");
    Lbl_LeftTolerance.setGeometry(120, 3240, 4800, 255);
    Lbl_LeftTolerance.setBackColor(16776960);
    Lbl_RightTolerance.setCaption("Right eye deviation multiplier");
    Lbl_RightTolerance.setGeometry(5010, 3240, 4800, 255);
    Lbl_RightTolerance.setBackColor(16776960);
    const char* captions[] = {"*1", "*1.5", "*2", "*2.5", "*3", "*4"};
    const char* times[] = {"1", "1.5", "2", "2.5", "3", "4"};
    OptionButton* left[] = {&Opt_Left1, &Opt_Left15, &Opt_Left2, &Opt_Left25, &Opt_Left3, &Opt_Left4};
    OptionButton* right[] = {&Opt_Right1, &Opt_Right15, &Opt_Right2, &Opt_Right25, &Opt_Right3, &Opt_Right4};
    for (int i = 0; i < 6; ++i) {
        left[i]->setCaption(captions[i]);
        left[i]->setGeometry(120 + i * 780, 3540, 740, 300);
        left[i]->setBackColor(16776960);
        left[i]->setToolTipText(std::string("Multiply left eye deviation (to make the list) by ") + times[i] + ".");
        right[i]->setCaption(captions[i]);
        right[i]->setGeometry(5010 + i * 780, 3540, 740, 300);
        right[i]->setBackColor(16776960);
        right[i]->setToolTipText(std::string("Multiply right eye deviation (to make the list) by ") + times[i] + ".");
    }
    Opt_Left1.setValue(true);
    Opt_Right1.setValue(true);
    Chk_VarnOverCylinder50.setCaption("Rule Change: Allow -.50 Over Cylinder with Varns Rules.");
    Chk_VarnOverCylinder50.setGeometry(120, 4080, 5400, 300);
    Chk_BiFocal_Remove.setToolTipText(
        "Check here to remove BiFocal/Trifocal/Progressive Add from search.  Give Readers instead.");
    Chk_BiFocal_Remove.setGeometry(120, 4440, 300, 300);
    Chk_BlindLeft.setCaption("Blind");
    Chk_BlindLeft.setGeometry(120, 4800, 1200, 300);
    Chk_BlindRight.setCaption("Blind");
    Chk_BlindRight.setGeometry(5010, 4800, 1200, 300);
    Txt_Found.setGeometry(120, 5280, 2400, 375);
    Txt_GuideMe.setGeometry(120, 5760, 9600, 1500);
    Txt_GuideMe.setMultiLine(true);
    Txt_GuideMe.setLocked(true);
    Cmd_Search.setCaption("&SEARCH");
    Cmd_Search.setGeometry(5400, 7440, 1500, 420);
    Cmd_Exit.setCaption("E&xit Wizard");
    Cmd_Exit.setGeometry(7200, 7440, 1500, 420);
    Txt_Play_Person_Nr.setGeometry(2640, 5280, 900, 375);
    Txt_Play_Person_Nr.setVisible(false);
    Img_Backwards.setVisible(false);
    Img_Forward.setVisible(false);
}

}  // namespace vistrel
