// How the measurement area behaves: every write of an entry field, typed,
// stepped or written by another screen, runs its change handler, and the
// handlers keep the derived values and the prescription captions current.

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

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

}  // namespace vistrel
