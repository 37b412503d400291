#pragma once

#include "core/screen/Screen.h"

#include <cstdint>

namespace vistrel {

// The prescription modification wizard. It mirrors the main screen's
// measurement and writes every change back through the main screen's
// fields, so that the main screen's own handlers derive and search.
class Frm_Advisor : public Screen {
public:
    explicit Frm_Advisor(Station& station);

    // Mirrors of the main screen.
    Frame Frm_Left{*this, "Frm_Left"};
    Frame Frm_Right{*this, "Frm_Right"};
    TextBox Txt_Sphere_Left{*this, "Txt_Sphere_Left"};
    TextBox Txt_Cylinder_Left{*this, "Txt_Cylinder_Left"};
    TextBox Txt_Axis_Left{*this, "Txt_Axis_Left"};
    TextBox Txt_LeftAdd{*this, "Txt_LeftAdd"};
    TextBox Txt_Sphere_Equ_Left{*this, "Txt_Sphere_Equ_Left"};
    TextBox Txt_Left_AMP{*this, "Txt_Left_AMP"};
    Label Lbl_Left_Amp{*this, "Lbl_Left_Amp"};
    TextBox Txt_Sphere_Right{*this, "Txt_Sphere_Right"};
    TextBox Txt_Cylinder_Right{*this, "Txt_Cylinder_Right"};
    TextBox Txt_Axis_Right{*this, "Txt_Axis_Right"};
    TextBox Txt_RightAdd{*this, "Txt_RightAdd"};
    TextBox Txt_Sphere_Equ_Right{*this, "Txt_Sphere_Equ_Right"};
    TextBox Txt_Right_AMP{*this, "Txt_Right_AMP"};
    Label Lbl_Right_Amp{*this, "Lbl_Right_Amp"};
    TextBox Txt_Age{*this, "Txt_Age"};
    TextBox Txt_Play_Person_Nr{*this, "Txt_Play_Person_Nr"};
    Image Img_Backwards{*this, "Img_Backwards"};
    Image Img_Forward{*this, "Img_Forward"};

    // Tolerance multipliers, one group per eye.
    Label Lbl_LeftTolerance{*this, "Lbl_LeftTolerance"};
    OptionGroup LeftGroup;
    OptionButton Opt_Left1{*this, "Opt_Left1", LeftGroup};
    OptionButton Opt_Left15{*this, "Opt_Left15", LeftGroup};
    OptionButton Opt_Left2{*this, "Opt_Left2", LeftGroup};
    OptionButton Opt_Left25{*this, "Opt_Left25", LeftGroup};
    OptionButton Opt_Left3{*this, "Opt_Left3", LeftGroup};
    OptionButton Opt_Left4{*this, "Opt_Left4", LeftGroup};
    Label Lbl_RightTolerance{*this, "Lbl_RightTolerance"};
    OptionGroup RightGroup;
    OptionButton Opt_Right1{*this, "Opt_Right1", RightGroup};
    OptionButton Opt_Right15{*this, "Opt_Right15", RightGroup};
    OptionButton Opt_Right2{*this, "Opt_Right2", RightGroup};
    OptionButton Opt_Right25{*this, "Opt_Right25", RightGroup};
    OptionButton Opt_Right3{*this, "Opt_Right3", RightGroup};
    OptionButton Opt_Right4{*this, "Opt_Right4", RightGroup};

    CheckBox Chk_VarnOverCylinder50{*this, "Chk_VarnOverCylinder50"};
    CheckBox Chk_BiFocal_Remove{*this, "Chk_BiFocal_Remove"};
    CheckBox Chk_BlindLeft{*this, "Chk_BlindLeft"};
    CheckBox Chk_BlindRight{*this, "Chk_BlindRight"};
    CommandButton Cmd_Search{*this, "Cmd_Search"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};
    TextBox Txt_Found{*this, "Txt_Found"};
    TextBox Txt_GuideMe{*this, "Txt_GuideMe"};

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

    void RefreshLeftFields();
    void RefreshRightFields();
    void RefreshFoundCount();
    void Cmd_Search_Click();
    void Cmd_Exit_Click();
    void Chk_VarnOverCylinder50_Click();
    // A multiplier option of either eye.
    void MultiplierChosen(bool left, double multiplier, Color color);

private:
    void wireMirrors();
    void design();
};

}  // namespace vistrel
