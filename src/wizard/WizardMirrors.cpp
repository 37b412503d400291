// The wizard's copies of the main screen's measurement. A change of a copy
// is written back to the main screen, whose own handlers derive the values,
// and a search follows; most changes also mark the eye as adjusted by the
// wizard. Refreshing a copy from the main screen is a change like any other,
// so it writes back and searches too: mirroring is not free of effects, and
// the step on leaving the wizard puts the marks right.

#include "Frm_Advisor.h"

#include "core/Frm_Vistrel.h"

namespace vistrel {

// ---- From the main screen ----

void Frm_Advisor::refreshFields(bool left)
{
    Frm_Vistrel::EyeEntry main = vistrel().eyeEntry(left);
    Eye mine = eye(left);
    mine.sphere.setText(main.sphere.text());
    mine.cylinder.setText(main.cylinder.text());
    mine.axis.setText(main.axis.text());
    mine.add.setText(main.add.text());
    mine.sphereEqu.setText(main.sphereEqu.text());
}

void Frm_Advisor::RefreshLeftFields() { refreshFields(true); }

void Frm_Advisor::RefreshRightFields() { refreshFields(false); }

// "Found: 0000" while the main screen tells of a load or a listing instead
// of a search.
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

// ---- To the main screen ----

void Frm_Advisor::Txt_Sphere_Left_Change()
{
    vistrel().Txt_Sphere_Left.setText(Txt_Sphere_Left.text());
    Cmd_Search_Click();
}

void Frm_Advisor::Txt_Sphere_Right_Change()
{
    vistrel().Txt_Sphere_Right.setText(Txt_Sphere_Right.text());
    Cmd_Search_Click();
}

void Frm_Advisor::Txt_Cylinder_Left_Change()
{
    vistrel().Txt_Cylinder_Left.setText(Txt_Cylinder_Left.text());
    Cmd_Search_Click();
    WizardLeftDone = true;
}

// The right cylinder also takes back what the main screen made of it, and
// the axis with it.
void Frm_Advisor::Txt_Cylinder_Right_Change()
{
    Frm_Vistrel& v = vistrel();
    v.Txt_Cylinder_Right.setText(Txt_Cylinder_Right.text());
    Txt_Cylinder_Right.setText(v.Txt_Cylinder_Right.text());
    Txt_Axis_Right.setText(v.Txt_Axis_Right.text());
    Cmd_Search_Click();
    WizardRightDone = true;
}

void Frm_Advisor::Txt_Axis_Left_Change()
{
    vistrel().Txt_Axis_Left.setText(Txt_Axis_Left.text());
    Cmd_Search_Click();
    WizardLeftDone = true;
}

void Frm_Advisor::Txt_Axis_Right_Change()
{
    vistrel().Txt_Axis_Right.setText(Txt_Axis_Right.text());
    Cmd_Search_Click();
    WizardRightDone = true;
}

// ---- Spin buttons: the main screen steps, the copy follows ----

namespace {

// The main screen's button, then the wizard's field takes the main text,
// a search, and the eye counts as adjusted.
template <typename Step>
void stepped(Frm_Advisor& wizard, Step step, TextBox& mine, const TextBox& theirs, bool& done)
{
    step();
    mine.setText(theirs.text());
    wizard.Cmd_Search_Click();
    done = true;
}

}  // namespace

void Frm_Advisor::Cmd_SphereLeftUp_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_SphereLeftUp_Click(); }, Txt_Sphere_Left, v.Txt_Sphere_Left, WizardLeftDone);
}

void Frm_Advisor::Cmd_SphereLeftDown_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_SphereLeftDown_Click(); }, Txt_Sphere_Left, v.Txt_Sphere_Left, WizardLeftDone);
}

void Frm_Advisor::Cmd_CylinderLeftUp_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_CylinderLeftUp_Click(); }, Txt_Cylinder_Left, v.Txt_Cylinder_Left, WizardLeftDone);
}

void Frm_Advisor::Cmd_CylinderLeftDown_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_CylinderLeftDown_Click(); }, Txt_Cylinder_Left, v.Txt_Cylinder_Left,
        WizardLeftDone);
}

void Frm_Advisor::Cmd_AddLeftUp_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_AddLeftUp_Click(); }, Txt_LeftAdd, v.Txt_LeftAdd, WizardLeftDone);
}

void Frm_Advisor::Cmd_AddLeftDown_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_AddLeftDown_Click(); }, Txt_LeftAdd, v.Txt_LeftAdd, WizardLeftDone);
}

void Frm_Advisor::Cmd_SphereRightUp_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_SphereRightUp_Click(); }, Txt_Sphere_Right, v.Txt_Sphere_Right, WizardRightDone);
}

void Frm_Advisor::Cmd_SphereRightDown_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_SphereRightDown_Click(); }, Txt_Sphere_Right, v.Txt_Sphere_Right,
        WizardRightDone);
}

void Frm_Advisor::Cmd_CylinderRightUp_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_CylinderRightUp_Click(); }, Txt_Cylinder_Right, v.Txt_Cylinder_Right,
        WizardRightDone);
}

void Frm_Advisor::Cmd_CylinderRightDown_Click()
{
    Frm_Vistrel& v = vistrel();
    stepped(*this, [&v] { v.Cmd_CylinderRightDown_Click(); }, Txt_Cylinder_Right, v.Txt_Cylinder_Right,
        WizardRightDone);
}

// The right Add buttons and double click leave the wizard's Add field as it
// was, unlike the left ones.
void Frm_Advisor::Cmd_AddRightUp_Click()
{
    vistrel().Cmd_AddRightUp_Click();
    Cmd_Search_Click();
    WizardRightDone = true;
}

void Frm_Advisor::Cmd_AddRightDown_Click()
{
    vistrel().Cmd_AddRightDown_Click();
    Cmd_Search_Click();
    WizardRightDone = true;
}

void Frm_Advisor::Txt_RightAdd_DblClick()
{
    vistrel().Txt_RightAdd_DblClick();
    Cmd_Search_Click();
    WizardRightDone = true;
}

void Frm_Advisor::Txt_LeftAdd_DblClick()
{
    Frm_Vistrel& v = vistrel();
    v.Txt_LeftAdd_DblClick();
    Txt_LeftAdd.setText(v.Txt_LeftAdd.text());
    Cmd_Search_Click();
    WizardLeftDone = true;
}

// No search of their own: the copies' change handlers search.
void Frm_Advisor::Txt_Cylinder_Left_DblClick()
{
    Frm_Vistrel& v = vistrel();
    v.Txt_Cylinder_Left_DblClick();
    Txt_Cylinder_Left.setText(v.Txt_Cylinder_Left.text());
    Txt_Axis_Left.setText(v.Txt_Axis_Left.text());
    WizardLeftDone = true;
}

void Frm_Advisor::Txt_Cylinder_Right_DblClick()
{
    Frm_Vistrel& v = vistrel();
    v.Txt_Cylinder_Right_DblClick();
    Txt_Cylinder_Right.setText(v.Txt_Cylinder_Right.text());
    WizardRightDone = true;
}

// ---- Blind boxes ----

void Frm_Advisor::Chk_BlindLeft_Click()
{
    vistrel().Chk_BlindLeft.setValue(Chk_BlindLeft.value() == 1 ? 1 : 0);
    RefreshFoundCount();
}

void Frm_Advisor::Chk_BlindRight_Click()
{
    vistrel().Chk_BlindRight.setValue(Chk_BlindRight.value() == 1 ? 1 : 0);
    RefreshFoundCount();
}

}  // namespace vistrel
