// The screen turned for an operator who faces the person: the two eyes'
// columns change places, with their buttons, captions and tab order. Each
// field keeps its name and its content; only its place changes.

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Text.h"

#include <utility>

namespace vistrel {

namespace {

// The heading of the eyes' frame and of the result list, left eye first or
// right eye first.
const std::string LeftRightHeading = "Left                         Right";
const std::string RightLeftHeading = "Right                        Left";

void swapLeft(Control& left, Control& right, std::int16_t& saved)
{
    saved = static_cast<std::int16_t>(left.left());
    left.setLeft(right.left());
    right.setLeft(saved);
    // In a window larger than designed, each takes the other's way of moving too.
    Control::Stretch leftStretch = left.stretch(), rightStretch = right.stretch();
    std::swap(leftStretch.moveX, rightStretch.moveX);
    left.setStretch(leftStretch);
    right.setStretch(rightStretch);
}

void setOrder(const std::initializer_list<std::pair<TextBox*, int>>& order)
{
    // All twelve, then all twelve once more, so that each ends where it should.
    for (int pass = 0; pass < 2; ++pass)
        for (auto [box, index] : order)
            box->setTabIndex(index);
}

}  // namespace

std::string Frm_Vistrel::LeftFirstHeading()
{
    return LeftRightHeading;
}

void Frm_Vistrel::Cmd_Flip_Click()
{
    FlipLeftFirst = !FlipLeftFirst;
    const bool leftFirst = FlipLeftFirst;
    Cmd_LeftCutBackSearch.setLeft(leftFirst ? 1110 : 5400);
    Cmd_RightCutBackSearch.setLeft(leftFirst ? 5400 : 1110);
    Cmd_LeftResetCutBack.setLeft(leftFirst ? 60 : 7200);
    Cmd_RightResetCutBack.setLeft(leftFirst ? 7200 : 60);
    Chk_NOEquivLeft.setLeft(leftFirst ? 2600 : 4560);
    Chk_NOEquivRight.setLeft(leftFirst ? 4560 : 2600);
    // The blanks place the words on the lines of the tall buttons.
    Cmd_LeftResetCutBack.setCaption(leftFirst ? std::string(20, ' ') + "Left Lens" + std::string(8, ' ') + "Reset Cut-Back"
                                              : std::string(33, ' ') + "Left Lens Reset Cut-Back");
    Cmd_RightResetCutBack.setCaption(leftFirst
            ? std::string(32, ' ') + "Right Lens Reset Cut-Back"
            : std::string(19, ' ') + "Right Lens" + std::string(8, ' ') + "Reset Cut-Back");
    Frm_LeftSelection.setCaption(
        leftFirst ? "Left" + std::string(65, ' ') + "|  Right" : "Right" + std::string(62, ' ') + "|  Left");
    Frm_LeftRight.setCaption(options().Chk_NOFocometer.value() == 1 ? std::string()
            : leftFirst                                             ? LeftRightHeading
                                                                    : RightLeftHeading);
    flipleft();
    // The level and the prescription line stand in each eye's column too;
    // they go with it, so no number is read under the other eye's heading.
    for (auto [left, right] : {std::pair<Control*, Control*>{&Lbl_Left_Amp, &Lbl_Right_Amp},
             {&Txt_Left_AMP, &Txt_Right_AMP}, {&Lbl_Left_Prescription, &Lbl_Right_Prescription}}) {
        std::int16_t held = 0;
        swapLeft(*left, *right, held);
    }
    if (leftFirst)
        TabIndexleft();
    else
        TabIndexRight();
    // The lists are rebuilt in the new order when there is a prescription.
    if (!LTrim(Txt_Sphere_Left.text()).empty() && !LTrim(Txt_Sphere_Right.text()).empty())
        Search_Click();
}

// A swap of places is its own inverse: the same whichever way the turn goes.
void Frm_Vistrel::flipleft()
{
    Frm_Autorefractor& capture = autorefractor();
    swapLeft(capture.Frm_LettEyeAuto0, capture.Frm_LettEyeAuto1, SaveLeftPosition);
    const std::pair<Control*, Control*> pairs[] = {
        {&Frm_LeftInventory, &Frm_RightInventory},
        {&Cmd_RestoreLeft, &Cmd_RestoreRight},
        {&Chk_BlindLeft, &Chk_BlindRight},
        {&Chk_DominantLeft, &Chk_DominantRight},
        {&Txt_LeftConfidenceValue, &Txt_RightConfidenceValue},
        {&Cmd_LeftConfidenceUP, &Cmd_RightConfidenceUP},
        {&Cmd_LeftConfidenceDOWN, &Cmd_RightConfidenceDOWN},
        {&Txt_Sphere_Left, &Txt_Sphere_Right},
        {&Cmd_SphereLeftUp, &Cmd_SphereRightUp},
        {&Cmd_SphereLeftDown, &Cmd_SphereRightDown},
        {&Txt_Cylinder_Left, &Txt_Cylinder_Right},
        {&Cmd_CylinderLeftUp, &Cmd_CylinderRightUp},
        {&Cmd_CylinderLeftDown, &Cmd_CylinderRightDown},
        {&Txt_Axis_Left, &Txt_Axis_Right},
        {&Txt_LeftReadingPower, &Txt_RightReadingPower},
        {&Txt_LeftAdd, &Txt_RightAdd},
        {&Cmd_AddLeftUp, &Cmd_AddRightUp},
        {&Cmd_AddLeftDown, &Cmd_AddRightDown},
        {&Txt_Sphere_Equ_Left, &Txt_Sphere_Equ_Right},
        {&Lbl_LeftCover, &Lbl_RightCover},
    };
    for (auto [left, right] : pairs)
        swapLeft(*left, *right, SaveLeftPosition);
}

void Frm_Vistrel::TabIndexleft()
{
    setOrder({{&Txt_Sphere_Left, 10}, {&Txt_Cylinder_Left, 11}, {&Txt_Axis_Left, 12}, {&Txt_LeftAdd, 16},
        {&Txt_LeftReadingPower, 20}, {&Txt_Sphere_Equ_Left, 90}, {&Txt_Sphere_Right, 13}, {&Txt_Cylinder_Right, 14},
        {&Txt_Axis_Right, 15}, {&Txt_RightAdd, 17}, {&Txt_RightReadingPower, 21}, {&Txt_Sphere_Equ_Right, 91}});
}

void Frm_Vistrel::TabIndexRight()
{
    setOrder({{&Txt_Sphere_Left, 13}, {&Txt_Cylinder_Left, 14}, {&Txt_Axis_Left, 15}, {&Txt_LeftAdd, 17},
        {&Txt_LeftReadingPower, 21}, {&Txt_Sphere_Equ_Left, 91}, {&Txt_Sphere_Right, 10}, {&Txt_Cylinder_Right, 11},
        {&Txt_Axis_Right, 12}, {&Txt_RightAdd, 16}, {&Txt_RightReadingPower, 20}, {&Txt_Sphere_Equ_Right, 90}});
}

}  // namespace vistrel
