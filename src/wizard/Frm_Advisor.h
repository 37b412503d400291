#pragma once

#include "core/screen/Screen.h"

#include <cstdint>
#include <string>

namespace vistrel {

// The prescription modification wizard. It mirrors the main screen's
// measurement and writes every change back through the main screen's
// fields, so that the main screen's own handlers derive and search. Its
// tools are a tolerance multiplier per eye and six numbered cases.
//
// The class is spread over one file per job: the design, the flow (open,
// activate, load, leave, guide text), the eye-condition panel, the mirrors,
// the multipliers and the cases.
class Frm_Advisor : public Screen {
public:
    // The form's two widths: without and with the help text beside it.
    static constexpr int NarrowWidth = 10120;
    static constexpr int WideWidth = 14845;

    explicit Frm_Advisor(Station& station);

    // ---- The eyes: mirrors of the main screen and the wizard's own tools ----
    Frame Frm_Left{*this, "Frm_Left"};
    Label Lbl_Sphere_Left{*this, "Lbl_Sphere_Left"};
    TextBox Txt_Sphere_Left{*this, "Txt_Sphere_Left"};
    CommandButton Cmd_SphereLeftUp{*this, "Cmd_SphereLeftUp"};
    CommandButton Cmd_SphereLeftDown{*this, "Cmd_SphereLeftDown"};
    Label Lbl_Cylinder_Left{*this, "Lbl_Cylinder_Left"};
    TextBox Txt_Cylinder_Left{*this, "Txt_Cylinder_Left"};
    CommandButton Cmd_CylinderLeftUp{*this, "Cmd_CylinderLeftUp"};
    CommandButton Cmd_CylinderLeftDown{*this, "Cmd_CylinderLeftDown"};
    Label Lbl_Axis_Left{*this, "Lbl_Axis_Left"};
    TextBox Txt_Axis_Left{*this, "Txt_Axis_Left"};
    Label Lbl_Add_Left{*this, "Lbl_Add_Left"};
    TextBox Txt_LeftAdd{*this, "Txt_LeftAdd"};
    CommandButton Cmd_AddLeftUp{*this, "Cmd_AddLeftUp"};
    CommandButton Cmd_AddLeftDown{*this, "Cmd_AddLeftDown"};
    Label Lbl_Sphere_Equ_Left{*this, "Lbl_Sphere_Equ_Left"};
    TextBox Txt_Sphere_Equ_Left{*this, "Txt_Sphere_Equ_Left"};
    Label Lbl_Left_Amp{*this, "Lbl_Left_Amp"};
    TextBox Txt_Left_AMP{*this, "Txt_Left_AMP"};
    Label Lbl_LeftWellness{*this, "Lbl_LeftWellness"};
    TextBox Txt_LeftWellness{*this, "Txt_LeftWellness"};
    CheckBox Chk_BlindLeft{*this, "Chk_BlindLeft"};
    CommandButton Cmd_RestoreLeft{*this, "Cmd_RestoreLeft"};
    Label Lbl_LeftTolerance{*this, "Lbl_LeftTolerance"};
    OptionGroup LeftGroup;
    OptionButton Opt_Left1{*this, "Opt_Left1", LeftGroup};
    OptionButton Opt_Left15{*this, "Opt_Left15", LeftGroup};
    OptionButton Opt_Left2{*this, "Opt_Left2", LeftGroup};
    OptionButton Opt_Left25{*this, "Opt_Left25", LeftGroup};
    OptionButton Opt_Left3{*this, "Opt_Left3", LeftGroup};
    OptionButton Opt_Left4{*this, "Opt_Left4", LeftGroup};
    CheckBox Chk_Case1_Left{*this, "Chk_Case1_Left"};
    Label Lbl_Switch_SE_Left{*this, "Lbl_Switch_SE_Left"};
    CheckBox Chk_Case2_Left{*this, "Chk_Case2_Left"};
    Label Lbl_Clr_Cyl_Left{*this, "Lbl_Clr_Cyl_Left"};
    CheckBox Chk_Case3_Left{*this, "Chk_Case3_Left"};
    CheckBox Chk_Case4_Left{*this, "Chk_Case4_Left"};
    Label Lbl_Half_Cylinder_Left{*this, "Lbl_Half_Cylinder_Left"};
    Label Lbl_Multiple_Left{*this, "Lbl_Multiple_Left"};

    Frame Frm_Right{*this, "Frm_Right"};
    Label Lbl_Sphere_Right{*this, "Lbl_Sphere_Right"};
    TextBox Txt_Sphere_Right{*this, "Txt_Sphere_Right"};
    CommandButton Cmd_SphereRightUp{*this, "Cmd_SphereRightUp"};
    CommandButton Cmd_SphereRightDown{*this, "Cmd_SphereRightDown"};
    Label Lbl_Cylinder_Right{*this, "Lbl_Cylinder_Right"};
    TextBox Txt_Cylinder_Right{*this, "Txt_Cylinder_Right"};
    CommandButton Cmd_CylinderRightUp{*this, "Cmd_CylinderRightUp"};
    CommandButton Cmd_CylinderRightDown{*this, "Cmd_CylinderRightDown"};
    Label Lbl_Axis_Right{*this, "Lbl_Axis_Right"};
    TextBox Txt_Axis_Right{*this, "Txt_Axis_Right"};
    Label Lbl_Add_Right{*this, "Lbl_Add_Right"};
    TextBox Txt_RightAdd{*this, "Txt_RightAdd"};
    CommandButton Cmd_AddRightUp{*this, "Cmd_AddRightUp"};
    CommandButton Cmd_AddRightDown{*this, "Cmd_AddRightDown"};
    Label Lbl_Sphere_Equ_Right{*this, "Lbl_Sphere_Equ_Right"};
    TextBox Txt_Sphere_Equ_Right{*this, "Txt_Sphere_Equ_Right"};
    Label Lbl_Right_Amp{*this, "Lbl_Right_Amp"};
    TextBox Txt_Right_AMP{*this, "Txt_Right_AMP"};
    Label Lbl_RightWellness{*this, "Lbl_RightWellness"};
    TextBox Txt_RightWellness{*this, "Txt_RightWellness"};
    CheckBox Chk_BlindRight{*this, "Chk_BlindRight"};
    CommandButton Cmd_RestoreRight{*this, "Cmd_RestoreRight"};
    Label Lbl_RightTolerance{*this, "Lbl_RightTolerance"};
    OptionGroup RightGroup;
    OptionButton Opt_Right1{*this, "Opt_Right1", RightGroup};
    OptionButton Opt_Right15{*this, "Opt_Right15", RightGroup};
    OptionButton Opt_Right2{*this, "Opt_Right2", RightGroup};
    OptionButton Opt_Right25{*this, "Opt_Right25", RightGroup};
    OptionButton Opt_Right3{*this, "Opt_Right3", RightGroup};
    OptionButton Opt_Right4{*this, "Opt_Right4", RightGroup};
    CheckBox Chk_Case1_Right{*this, "Chk_Case1_Right"};
    Label Lbl_Switch_SE_Right{*this, "Lbl_Switch_SE_Right"};
    CheckBox Chk_Case2_Right{*this, "Chk_Case2_Right"};
    Label Lbl_Clr_Cyl_Right{*this, "Lbl_Clr_Cyl_Right"};
    CheckBox Chk_Case3_Right{*this, "Chk_Case3_Right"};
    CheckBox Chk_Case4_Right{*this, "Chk_Case4_Right"};
    Label Lbl_Half_Cylinder_Right{*this, "Lbl_Half_Cylinder_Right"};
    Label Lbl_Multiple_Right{*this, "Lbl_Multiple_Right"};

    // ---- For the person ----
    Label Lbl_Age{*this, "Lbl_Age"};
    TextBox Txt_Age{*this, "Txt_Age"};
    CheckBox Chk_Case5_Still_no_match{*this, "Chk_Case5_Still_no_match"};
    Label Lbl_Change_Default_times_2{*this, "Lbl_Change_Default_times_2"};
    CheckBox Chk_Case6_Desperate{*this, "Chk_Case6_Desperate"};
    CheckBox Chk_VarnOverCylinder50{*this, "Chk_VarnOverCylinder50"};
    Label Lbl_Asterisk{*this, "Lbl_Asterisk"};
    CheckBox Chk_BiFocal_Remove{*this, "Chk_BiFocal_Remove"};

    // ---- The eye-condition legend ----
    Label Lbl_Legend{*this, "Lbl_Legend"};
    TextBox Txt_Best{*this, "Txt_Best"};
    TextBox Txt_Minus2{*this, "Txt_Minus2"};
    TextBox Txt_Minus4{*this, "Txt_Minus4"};
    TextBox Txt_Minus6{*this, "Txt_Minus6"};
    TextBox Txt_Worst{*this, "Txt_Worst"};

    // ---- Count, practice play, guide, help and buttons ----
    TextBox Txt_Found{*this, "Txt_Found"};
    Image Img_Backwards{*this, "Img_Backwards"};
    TextBox Txt_Play_Person_Nr{*this, "Txt_Play_Person_Nr"};
    Image Img_Forward{*this, "Img_Forward"};
    TextBox Txt_GuideMe{*this, "Txt_GuideMe"};
    CommandButton Cmd_Search{*this, "Cmd_Search"};
    CommandButton Cmd_Print{*this, "Cmd_Print"};
    CommandButton Cmd_Help{*this, "Cmd_Help"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};
    TextBox Txt_Help{*this, "Txt_Help"};

    // ---- Public state ----
    std::int16_t Foundstart = 0;
    bool Case1SkipLeft = false, Case1SkipRight = false, Case2SkipLeft = false, Case2SkipRight = false;
    bool Case3SkipLeft = false, Case3SkipRight = false, Case4SkipLeft = false, Case4SkipRight = false;
    bool HelpWanted = false;
    bool WizardLeftDone = false;
    bool WizardRightDone = false;
    bool ChangeALSO = true;
    bool VarnCheckRunning = false;
    bool Showing = false;
    std::string SaveLeftSphere, SaveLeftCylinder, SaveLeftAxis, SaveRightSphere, SaveRightCylinder, SaveRightAxis;

    // ---- Flow (WizardFlow.cpp) ----
    void Form_Activate();
    void Form_Load();
    void Cmd_Exit_Click();
    void Cmd_Help_Click();
    void Cmd_Print_Click();
    void Img_Backwards_Click();
    void Img_Forward_Click();

    // ---- Eye-condition panel (EyeCondition.cpp) ----
    void ShowEyeCondition();

    // ---- Mirrors of the main screen (WizardMirrors.cpp) ----
    void RefreshLeftFields();
    void RefreshRightFields();
    void RefreshFoundCount();
    void Cmd_Search_Click();
    void Txt_Sphere_Left_Change();
    void Txt_Cylinder_Left_Change();
    void Txt_Axis_Left_Change();
    void Txt_Sphere_Right_Change();
    void Txt_Cylinder_Right_Change();
    void Txt_Axis_Right_Change();
    void Cmd_SphereLeftUp_Click();
    void Cmd_SphereLeftDown_Click();
    void Cmd_CylinderLeftUp_Click();
    void Cmd_CylinderLeftDown_Click();
    void Cmd_AddLeftUp_Click();
    void Cmd_AddLeftDown_Click();
    void Cmd_SphereRightUp_Click();
    void Cmd_SphereRightDown_Click();
    void Cmd_CylinderRightUp_Click();
    void Cmd_CylinderRightDown_Click();
    void Cmd_AddRightUp_Click();
    void Cmd_AddRightDown_Click();
    void Txt_LeftAdd_DblClick();
    void Txt_RightAdd_DblClick();
    void Txt_Cylinder_Left_DblClick();
    void Txt_Cylinder_Right_DblClick();
    void Chk_BlindLeft_Click();
    void Chk_BlindRight_Click();

    // ---- Tolerance multipliers (WizardMultipliers.cpp) ----
    // A multiplier option of either eye: row 0 to 5 of the table, *1 to *4.
    void MultiplierChosen(bool left, int row);

    // ---- Cases (WizardCases.cpp, CaseOffer.cpp) ----
    void OfferCases(bool left);
    void Chk_Case1_Left_Click();
    void Chk_Case1_Right_Click();
    void Chk_Case2_Left_Click();
    void Chk_Case2_Right_Click();
    void Chk_Case3_Left_Click();
    void Chk_Case3_Right_Click();
    void Chk_Case4_Left_Click();
    void Chk_Case4_Right_Click();
    void Chk_Case5_Still_no_match_Click();
    void Chk_Case6_Desperate_Click();
    void Chk_VarnOverCylinder50_Click();
    void Chk_BiFocal_Remove_Click();
    void Cmd_RestoreLeft_Click();
    void Cmd_RestoreRight_Click();

    // The fields, flags and main-screen operations of one eye, for the
    // handlers that are twins but for the eye they work on.
    struct Eye {
        bool left;
        TextBox& sphere;
        TextBox& cylinder;
        TextBox& axis;
        TextBox& add;
        TextBox& sphereEqu;
        TextBox& wellness;
        CheckBox& case1;
        CheckBox& case2;
        CheckBox& case3;
        CheckBox& case4;
        Label& switchSE;
        Label& clearCylinder;
        Label& halfCylinder;
        Label& multiple;
        bool& done;
        bool& case2Skip;
        bool& case3Skip;
        bool& case4Skip;
        std::string& saveSphere;
        std::string& saveCylinder;
        std::string& saveAxis;
    };
    Eye eye(bool left);

private:
    void wireHandlers();
    void bindRegistry();
    void design();
    void guide(const std::string& text);
    void refreshFields(bool left);
    void caseOne(bool left);
    void caseTwo(bool left);
    int tryCylinderSteps(bool left, const std::function<void()>& step, std::int16_t& best);
    void caseThree(bool left);
    void caseFour(bool left);
    void restore(bool left);
};

}  // namespace vistrel
