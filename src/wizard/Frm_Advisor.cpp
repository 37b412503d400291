#include "Frm_Advisor.h"

namespace vistrel {

Frm_Advisor::Frm_Advisor(Station& station) : Screen(station, "Frm_Advisor")
{
    // The design comes first: it selects the *1 options, which must not
    // search while the station is still being built.
    design();
    wireHandlers();
    bindRegistry();
}

Frm_Advisor::Eye Frm_Advisor::eye(bool left)
{
    if (left)
        return {true, Txt_Sphere_Left, Txt_Cylinder_Left, Txt_Axis_Left, Txt_LeftAdd, Txt_Sphere_Equ_Left,
            Txt_LeftWellness, Chk_Case1_Left, Chk_Case2_Left, Chk_Case3_Left, Chk_Case4_Left, Lbl_Switch_SE_Left,
            Lbl_Clr_Cyl_Left, Lbl_Half_Cylinder_Left, Lbl_Multiple_Left, WizardLeftDone, Case2SkipLeft,
            Case3SkipLeft, Case4SkipLeft, SaveLeftSphere, SaveLeftCylinder, SaveLeftAxis};
    return {false, Txt_Sphere_Right, Txt_Cylinder_Right, Txt_Axis_Right, Txt_RightAdd, Txt_Sphere_Equ_Right,
        Txt_RightWellness, Chk_Case1_Right, Chk_Case2_Right, Chk_Case3_Right, Chk_Case4_Right, Lbl_Switch_SE_Right,
        Lbl_Clr_Cyl_Right, Lbl_Half_Cylinder_Right, Lbl_Multiple_Right, WizardRightDone, Case2SkipRight,
        Case3SkipRight, Case4SkipRight, SaveRightSphere, SaveRightCylinder, SaveRightAxis};
}

// Every control's events go to the handler of the same name, which is also
// registered as an operation so that the main screen and scripts reach it.
void Frm_Advisor::wireHandlers()
{

    // The form.
    onLoad = [this] { Form_Load(); };
    onActivate = [this] { Form_Activate(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    op("Form_Load", [this] { Form_Load(); });
    op("Form_Activate", [this] { Form_Activate(); });

    // Mirrors of the main screen.
    wireChange(Txt_Sphere_Left, "Txt_Sphere_Left_Change", [this] { Txt_Sphere_Left_Change(); });
    wireChange(Txt_Cylinder_Left, "Txt_Cylinder_Left_Change", [this] { Txt_Cylinder_Left_Change(); });
    wireChange(Txt_Axis_Left, "Txt_Axis_Left_Change", [this] { Txt_Axis_Left_Change(); });
    wireChange(Txt_Sphere_Right, "Txt_Sphere_Right_Change", [this] { Txt_Sphere_Right_Change(); });
    wireChange(Txt_Cylinder_Right, "Txt_Cylinder_Right_Change", [this] { Txt_Cylinder_Right_Change(); });
    wireChange(Txt_Axis_Right, "Txt_Axis_Right_Change", [this] { Txt_Axis_Right_Change(); });
    wireDblClick(Txt_LeftAdd, "Txt_LeftAdd_DblClick", [this] { Txt_LeftAdd_DblClick(); });
    wireDblClick(Txt_RightAdd, "Txt_RightAdd_DblClick", [this] { Txt_RightAdd_DblClick(); });
    wireDblClick(Txt_Cylinder_Left, "Txt_Cylinder_Left_DblClick", [this] { Txt_Cylinder_Left_DblClick(); });
    wireDblClick(Txt_Cylinder_Right, "Txt_Cylinder_Right_DblClick", [this] { Txt_Cylinder_Right_DblClick(); });
    wireClick(Cmd_SphereLeftUp, "Cmd_SphereLeftUp_Click", [this] { Cmd_SphereLeftUp_Click(); });
    wireClick(Cmd_SphereLeftDown, "Cmd_SphereLeftDown_Click", [this] { Cmd_SphereLeftDown_Click(); });
    wireClick(Cmd_CylinderLeftUp, "Cmd_CylinderLeftUp_Click", [this] { Cmd_CylinderLeftUp_Click(); });
    wireClick(Cmd_CylinderLeftDown, "Cmd_CylinderLeftDown_Click", [this] { Cmd_CylinderLeftDown_Click(); });
    wireClick(Cmd_AddLeftUp, "Cmd_AddLeftUp_Click", [this] { Cmd_AddLeftUp_Click(); });
    wireClick(Cmd_AddLeftDown, "Cmd_AddLeftDown_Click", [this] { Cmd_AddLeftDown_Click(); });
    wireClick(Cmd_SphereRightUp, "Cmd_SphereRightUp_Click", [this] { Cmd_SphereRightUp_Click(); });
    wireClick(Cmd_SphereRightDown, "Cmd_SphereRightDown_Click", [this] { Cmd_SphereRightDown_Click(); });
    wireClick(Cmd_CylinderRightUp, "Cmd_CylinderRightUp_Click", [this] { Cmd_CylinderRightUp_Click(); });
    wireClick(Cmd_CylinderRightDown, "Cmd_CylinderRightDown_Click", [this] { Cmd_CylinderRightDown_Click(); });
    wireClick(Cmd_AddRightUp, "Cmd_AddRightUp_Click", [this] { Cmd_AddRightUp_Click(); });
    wireClick(Cmd_AddRightDown, "Cmd_AddRightDown_Click", [this] { Cmd_AddRightDown_Click(); });
    wireClick(Chk_BlindLeft, "Chk_BlindLeft_Click", [this] { Chk_BlindLeft_Click(); });
    wireClick(Chk_BlindRight, "Chk_BlindRight_Click", [this] { Chk_BlindRight_Click(); });

    // Tolerance multipliers.
    OptionButton* left[] = {&Opt_Left1, &Opt_Left15, &Opt_Left2, &Opt_Left25, &Opt_Left3, &Opt_Left4};
    OptionButton* right[] = {&Opt_Right1, &Opt_Right15, &Opt_Right2, &Opt_Right25, &Opt_Right3, &Opt_Right4};
    for (int row = 0; row < 6; ++row) {
        wireClick(*left[row], left[row]->name() + "_Click", [this, row] { MultiplierChosen(true, row); });
        wireClick(*right[row], right[row]->name() + "_Click", [this, row] { MultiplierChosen(false, row); });
    }

    // Cases and rules.
    wireClick(Chk_Case1_Left, "Chk_Case1_Left_Click", [this] { Chk_Case1_Left_Click(); });
    wireClick(Chk_Case1_Right, "Chk_Case1_Right_Click", [this] { Chk_Case1_Right_Click(); });
    wireClick(Chk_Case2_Left, "Chk_Case2_Left_Click", [this] { Chk_Case2_Left_Click(); });
    wireClick(Chk_Case2_Right, "Chk_Case2_Right_Click", [this] { Chk_Case2_Right_Click(); });
    wireClick(Chk_Case3_Left, "Chk_Case3_Left_Click", [this] { Chk_Case3_Left_Click(); });
    wireClick(Chk_Case3_Right, "Chk_Case3_Right_Click", [this] { Chk_Case3_Right_Click(); });
    wireClick(Chk_Case4_Left, "Chk_Case4_Left_Click", [this] { Chk_Case4_Left_Click(); });
    wireClick(Chk_Case4_Right, "Chk_Case4_Right_Click", [this] { Chk_Case4_Right_Click(); });
    wireClick(Chk_Case5_Still_no_match, "Chk_Case5_Still_no_match_Click", [this] { Chk_Case5_Still_no_match_Click(); });
    wireClick(Chk_Case6_Desperate, "Chk_Case6_Desperate_Click", [this] { Chk_Case6_Desperate_Click(); });
    wireClick(Chk_VarnOverCylinder50, "Chk_VarnOverCylinder50_Click", [this] { Chk_VarnOverCylinder50_Click(); });
    wireClick(Chk_BiFocal_Remove, "Chk_BiFocal_Remove_Click", [this] { Chk_BiFocal_Remove_Click(); });
    wireClick(Cmd_RestoreLeft, "Cmd_RestoreLeft_Click", [this] { Cmd_RestoreLeft_Click(); });
    wireClick(Cmd_RestoreRight, "Cmd_RestoreRight_Click", [this] { Cmd_RestoreRight_Click(); });

    // Buttons and practice play.
    wireClick(Cmd_Search, "Cmd_Search_Click", [this] { Cmd_Search_Click(); });
    wireClick(Cmd_Print, "Cmd_Print_Click", [this] { Cmd_Print_Click(); });
    wireClick(Cmd_Help, "Cmd_Help_Click", [this] { Cmd_Help_Click(); });
    wireClick(Cmd_Exit, "Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
    wireClick(Img_Backwards, "Img_Backwards_Click", [this] { Img_Backwards_Click(); });
    wireClick(Img_Forward, "Img_Forward_Click", [this] { Img_Forward_Click(); });

    // Operations that the main screen and the flow call by name.
    op("RefreshLeftFields", [this] { RefreshLeftFields(); });
    op("RefreshRightFields", [this] { RefreshRightFields(); });
    op("RefreshFoundCount", [this] { RefreshFoundCount(); });
}

void Frm_Advisor::bindRegistry()
{
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
}

}  // namespace vistrel
