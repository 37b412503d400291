// The quick ways of entering a measurement: double clicks that blank a
// field, spin buttons that step it, and the confidence buttons.

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

namespace vistrel {

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

}  // namespace vistrel
