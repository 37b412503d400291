// How the wizard is drawn: one frame per eye with its copies of the
// measurement, its condition, its multiplier and its cases; below them the
// cases for the person, the legend, the count, the guide text and the
// buttons. The help text stands beyond the narrow width and shows when the
// form is widened.

#include "Frm_Advisor.h"
#include "WizardRules.h"

#include "core/screen/Layout.h"

namespace vistrel {

namespace {

const char* const HelpText =
    "HOW TO USE THE WIZARD\r\n"
    "\r\n"
    "Every step below searches at once. Look at the count after each one, and print the list as soon as it "
    "holds enough glasses to try on.\r\n"
    "\r\n"
    "1. Remove the BiFocal requirement first: check the box to the right of ***. The person is then given "
    "readers for close work, and many more single-vision glasses qualify.\r\n"
    "\r\n"
    "2. Look at the eye-condition colours. The green eye is the better one. Raise the tolerance multiplier "
    "of the other, poorer eye (*1.5, *2, *2.5, *3, *4). If that still finds nothing, raise the multiplier of "
    "the better eye a little.\r\n"
    "\r\n"
    "3. On the eye with the lowest cylinder, try Case 1 (the search goes by the spherical equivalent), then "
    "Case 2 (the cylinder is left out).\r\n"
    "\r\n"
    "4. Then try Case 3 or Case 4, whichever is shown. Both cut the cylinder back step by step, search at "
    "each step and stay on the step that found the most. Click the case again to take the change back.\r\n"
    "\r\n"
    "5. Only when all that fails, change the rules: Rule Change allows -.50 of over-cylinder, Case 5 doubles "
    "the allowed margins and Case 6 opens them as far as they go.\r\n"
    "\r\n"
    "\"Restore to last Autorefractor's reading\" puts an eye back to what was measured, so that you can start "
    "again from the top.";

struct EyeDesign {
    Frame& frame;
    Label& sphereHead;
    TextBox& sphere;
    CommandButton& sphereUp;
    CommandButton& sphereDown;
    Label& cylinderHead;
    TextBox& cylinder;
    CommandButton& cylinderUp;
    CommandButton& cylinderDown;
    Label& axisHead;
    TextBox& axis;
    Label& addHead;
    TextBox& add;
    CommandButton& addUp;
    CommandButton& addDown;
    Label& equHead;
    TextBox& equ;
    Label& ampHead;
    TextBox& amp;
    Label& wellnessHead;
    TextBox& wellness;
    CheckBox& blind;
    CommandButton& restore;
    Label& tolerance;
    OptionButton* options[6];
    CheckBox& case1;
    Label& switchSE;
    CheckBox& case2;
    Label& clearCylinder;
    CheckBox& case3;
    CheckBox& case4;
    Label& halfCylinder;
    Label& multiple;
};

void designEye(const EyeDesign& e, bool left, int frameLeft)
{
    const std::string eyeWord = left ? "left" : "right";
    place(e.frame, nullptr, frameLeft, 120, 4800, 4440, left ? "Left Eye" : "Right Eye");
    e.frame.setBackColor(colors::Cyan);
    Frame* f = &e.frame;

    // The measurement, as on the main screen: sphere, cylinder, axis, Add.
    place(e.sphereHead, f, 120, 240, 960, 225, "Sphere");
    place(e.sphere, f, 120, 480, 720, 375);
    place(e.sphereUp, f, 840, 480, 240, 187, "+", "Sphere up by .25");
    place(e.sphereDown, f, 840, 667, 240, 188, "-", "Sphere down by .25");
    place(e.cylinderHead, f, 1140, 240, 960, 225, "Cylinder");
    place(e.cylinder, f, 1140, 480, 720, 375, {}, "Double click to clear the cylinder and axis.");
    place(e.cylinderUp, f, 1860, 480, 240, 187, "+", "Cylinder up by .25");
    place(e.cylinderDown, f, 1860, 667, 240, 188, "-", "Cylinder down by .25");
    place(e.axisHead, f, 2160, 240, 540, 225, "Axis");
    place(e.axis, f, 2160, 480, 540, 375);
    place(e.addHead, f, 2760, 240, 960, 225, "Add");
    place(e.add, f, 2760, 480, 720, 375, {}, "Double click to clear the Add.");
    place(e.addUp, f, 3480, 480, 240, 187, "+", "Add up by .25");
    place(e.addDown, f, 3480, 667, 240, 188, "-", "Add down by .25");
    for (Control* c : {&e.sphereUp, &e.sphereDown, &e.cylinderUp, &e.cylinderDown, &e.addUp, &e.addDown})
        c->setTabStop(false);

    // What follows from it, and the eye's condition against the other.
    place(e.equHead, f, 120, 960, 960, 225, "Sph. Equ.");
    place(e.equ, f, 120, 1200, 900, 375, {}, "Spherical equivalent of the " + eyeWord + " eye.");
    e.equ.setLocked(true);
    place(e.ampHead, f, 1140, 960, 960, 225, "Level");
    place(e.amp, f, 1140, 1200, 720, 375, {},
        "Correction intensity level needed for " + eyeWord + " eye. (Sphere-AgeAdjustment+Cylinder)/.25");
    e.amp.setLocked(true);
    place(e.wellnessHead, f, 2160, 960, 1200, 225, "Condition");
    place(e.wellness, f, 2160, 1200, 1200, 375, {},
        "The condition of the " + eyeWord + " eye against the other: see the colours below.");
    e.wellness.setLocked(true);
    e.wellness.setTabStop(false);
    place(e.blind, f, 3480, 1230, 1200, 300, "Blind", "Mark the " + eyeWord + " eye blind: match the other eye only.");
    place(e.restore, f, 120, 1740, 4560, 375, "Restore to last Autorefractor's reading");

    // The multiplier of the eye's allowed deviations.
    place(e.tolerance, f, 120, 2220, 4560, 255, left ? "Left eye tolerance multiplier:" : "Right eye tolerance multiplier:");
    e.tolerance.setBackColor(wizard::MultiplierColor(0));
    const char* captions[] = {"*1", "*1.5", "*2", "*2.5", "*3", "*4"};
    const char* times[] = {"1", "1.5", "2", "2.5", "3", "4"};
    for (int i = 0; i < 6; ++i) {
        place(*e.options[i], f, 120 + i * 750, 2520, 720, 300, captions[i],
            "Multiply " + eyeWord + " eye deviation (to make the list) by " + times[i] + ".");
        e.options[i]->setBackColor(wizard::MultiplierColor(0));
    }

    // The cases, each with what it does beside it. Cases 1 and 2 are for a
    // small cylinder and 3 and 4 for a large one, and 3 and 4 exclude each
    // other: an eye never shows more than two, so 3 and 4 take the place
    // of 1 and 2.
    place(e.case1, f, 120, 2940, 2760, 600, "Case 1 (Cylinder is -1.75 or smaller)",
        "Select this case and a search will be made based upon spherical equivalence and not Sphere, Cylinder & "
        "axis.");
    place(e.switchSE, f, 2940, 2940, 1740, 600, "Action: (Switch to Spherical Equivalent)");
    place(e.case2, f, 120, 3600, 2760, 420, "Case 2     (Cylinder is -1.00 or less)",
        "Select this case & cylinder is cleared.  Case 1 no longer applicable.");
    place(e.clearCylinder, f, 2940, 3600, 1740, 420, "Action:  (Clear out cylinder)");
    place(e.case3, f, 120, 2940, 2760, 660,
        "Case 3 (Cylinder is -2.00 or more &&      Sphere is greater than + or -2.00)",
        "Select this case & the system automatically searches up to 10 times cutting back cylinder (no more than "
        "1/2) each time by .25 but keeping spherical equivalent the same.");
    place(e.case4, f, 120, 2940, 2760, 660,
        "Case 4 (Cylinder is -2.00 or more &&      Sphere is smaller than + or -2.00)",
        "Select this case & cylinder is cut up to 1/2 for the maximum number of matches.");
    place(e.halfCylinder, f, 2940, 2940, 1740, 1020,
        "Action:  (Cutback Cylinder up to 20 times               but not more than half)");
    place(e.multiple, f, 120, 4080, 4560, 255, "Cases 3,4 performed multiple times.");
}

}  // namespace

void Frm_Advisor::design()
{
    setCaption("Prescription Modification Wizard");
    setGeometry(0, 0, NarrowWidth, 8760);

    designEye({Frm_Left, Lbl_Sphere_Left, Txt_Sphere_Left, Cmd_SphereLeftUp, Cmd_SphereLeftDown, Lbl_Cylinder_Left,
                  Txt_Cylinder_Left, Cmd_CylinderLeftUp, Cmd_CylinderLeftDown, Lbl_Axis_Left, Txt_Axis_Left,
                  Lbl_Add_Left, Txt_LeftAdd, Cmd_AddLeftUp, Cmd_AddLeftDown, Lbl_Sphere_Equ_Left, Txt_Sphere_Equ_Left,
                  Lbl_Left_Amp, Txt_Left_AMP, Lbl_LeftWellness, Txt_LeftWellness, Chk_BlindLeft, Cmd_RestoreLeft,
                  Lbl_LeftTolerance, {&Opt_Left1, &Opt_Left15, &Opt_Left2, &Opt_Left25, &Opt_Left3, &Opt_Left4},
                  Chk_Case1_Left, Lbl_Switch_SE_Left, Chk_Case2_Left, Lbl_Clr_Cyl_Left, Chk_Case3_Left,
                  Chk_Case4_Left, Lbl_Half_Cylinder_Left, Lbl_Multiple_Left},
        true, 120);
    designEye({Frm_Right, Lbl_Sphere_Right, Txt_Sphere_Right, Cmd_SphereRightUp, Cmd_SphereRightDown,
                  Lbl_Cylinder_Right, Txt_Cylinder_Right, Cmd_CylinderRightUp, Cmd_CylinderRightDown, Lbl_Axis_Right,
                  Txt_Axis_Right, Lbl_Add_Right, Txt_RightAdd, Cmd_AddRightUp, Cmd_AddRightDown, Lbl_Sphere_Equ_Right,
                  Txt_Sphere_Equ_Right, Lbl_Right_Amp, Txt_Right_AMP, Lbl_RightWellness, Txt_RightWellness,
                  Chk_BlindRight, Cmd_RestoreRight, Lbl_RightTolerance,
                  {&Opt_Right1, &Opt_Right15, &Opt_Right2, &Opt_Right25, &Opt_Right3, &Opt_Right4}, Chk_Case1_Right,
                  Lbl_Switch_SE_Right, Chk_Case2_Right, Lbl_Clr_Cyl_Right, Chk_Case3_Right, Chk_Case4_Right,
                  Lbl_Half_Cylinder_Right, Lbl_Multiple_Right},
        false, 5010);
    // Before the handlers are wired: the multipliers start at *1 quietly.
    Opt_Left1.setValue(true);
    Opt_Right1.setValue(true);

    // For the person.
    place(Lbl_Age, nullptr, 120, 4740, 480, 255, "Age");
    place(Txt_Age, nullptr, 600, 4680, 600, 330, {}, "The age as on the main window.");
    Txt_Age.setLocked(true);
    place(Chk_Case5_Still_no_match, nullptr, 120, 5100, 4800, 300,
        "Case 5 (Tried many things and still no good matches)",
        "Select this case and the allowed margin for glasses to appear on the list is doubled.");
    place(Lbl_Change_Default_times_2, nullptr, 120, 5400, 4800, 255, "Action:  (Change Default values times 2)");
    place(Chk_Case6_Desperate, nullptr, 120, 5700, 4800, 300, "Case 6 (I'm desperate.  I need something to try)",
        "Click this case if all else fails to give you a list of glasses that you can try.");
    place(Chk_VarnOverCylinder50, nullptr, 120, 6060, 4800, 300,
        "Rule Change: Allow -.50 Over Cylinder with Varns Rules.");
    place(Lbl_Asterisk, nullptr, 1320, 4740, 480, 255, "***");
    place(Chk_BiFocal_Remove, nullptr, 1800, 4710, 300, 300, {},
        "Check here to remove BiFocal/Trifocal/Progressive Add from search.  Give Readers instead.");

    // The legend of the eye-condition colours.
    place(Lbl_Legend, nullptr, 5010, 4740, 4800, 255, "Eye condition colours:");
    struct LegendEntry {
        TextBox& box;
        const char* text;
        Color color;
        const char* tip;
    };
    const LegendEntry legend[] = {
        {Txt_Best, "Best or Same", colors::Green,
            "The left eye and right eye have the same correction intensity."},
        {Txt_Minus2, "-2", wizard::ConditionColor(2),
            "The difference between the correction intensity of the eye with this color and the other is 2 and "
            "below."},
        {Txt_Minus4, "-4", wizard::ConditionColor(4),
            "The difference between the correction intensity of the eye with this color and the other is 4 and "
            "below."},
        {Txt_Minus6, "-6", wizard::ConditionColor(6),
            "The difference between the correction intensity of the eye with this color and the other is 6 and "
            "below."},
        {Txt_Worst, "Worst", wizard::ConditionColor(7),
            "This color is for an eye which is very poor in comparison to the other eye."},
    };
    int x = 5010;
    for (const LegendEntry& entry : legend) {
        const int width = &entry.box == &Txt_Best ? 1320 : 870;
        place(entry.box, nullptr, x, 5040, width, 330, {}, entry.tip);
        entry.box.setText(entry.text);
        entry.box.setBackColor(entry.color);
        entry.box.setLocked(true);
        entry.box.setTabStop(false);
        x += width;
    }

    // The count, and the person of practice play.
    place(Txt_Found, nullptr, 5010, 5580, 2100, 375, {}, "Holds a copy of the status field on the main window.");
    Txt_Found.setLocked(true);
    place(Img_Backwards, nullptr, 7380, 5580, 360, 375, {}, "Previous person of practice play.");
    place(Txt_Play_Person_Nr, nullptr, 7800, 5580, 900, 375, {}, "Person of practice play.");
    place(Img_Forward, nullptr, 8760, 5580, 360, 375, {}, "Next person of practice play.");
    for (Control* c : std::initializer_list<Control*>{&Img_Backwards, &Txt_Play_Person_Nr, &Img_Forward})
        c->setVisible(false);

    // The guide, and the buttons.
    place(Txt_GuideMe, nullptr, 120, 6480, 9690, 1140, {},
        "This window lists the steps you should follow to get the most valid matches.");
    Txt_GuideMe.setMultiLine(true);
    Txt_GuideMe.setLocked(true);
    place(Cmd_Search, nullptr, 120, 7740, 1500, 420, "&SEARCH", "Search again with what the wizard shows.");
    place(Cmd_Print, nullptr, 1740, 7740, 1500, 420, "&Print List", "Print the list and the prescription.");
    place(Cmd_Help, nullptr, 3360, 7740, 1500, 420, "&Help?", "Show or hide the help beside the wizard.");
    place(Cmd_Exit, nullptr, 8310, 7740, 1500, 420, "E&xit Wizard", "Back to the main window.");

    // Beyond the narrow width: shown when the form is widened.
    place(Txt_Help, nullptr, NarrowWidth + 60, 120, WideWidth - NarrowWidth - 300, 8040);
    Txt_Help.setText(HelpText);
    Txt_Help.setMultiLine(true);
    Txt_Help.setLocked(true);
    // Beyond the narrow width the caret must not wander off the screen.
    Txt_Help.setTabStop(false);
}

}  // namespace vistrel
