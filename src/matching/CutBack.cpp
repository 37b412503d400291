// Cut-back: when nothing fits a person with astigmatism, the cylinder is
// stepped down while the spherical equivalent is kept, and the search runs
// again. The saved texts are written on the first step only, so any number
// of steps comes back to the prescription as entered.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

#include <cmath>

namespace vistrel {

namespace {

struct CutBackEye {
    TextBox& sphere;
    TextBox& cylinder;
    TextBox& count;
    bool& isCutback;
    std::string& sphereSave;
    std::string& cylinderSave;
    Variant& sphereRead;
    Variant& cylinderRead;
    double& equivalent;
};

// One step; skipped without a word when it would take more than is left.
void cutBackStep(CutBackEye eye, double amount)
{
    if (std::fabs(amount) > std::fabs(Val(eye.cylinder.text())))
        return;
    if (!eye.isCutback) {
        eye.cylinderSave = eye.cylinder.text();
        eye.sphereSave = eye.sphere.text();
    }
    eye.isCutback = true;
    eye.cylinder.setText(Format(Val(eye.cylinder.text()) + amount, "0.00"));
    eye.cylinderRead = Variant(Val(eye.cylinder.text()));
    eye.sphere.setText(Format(eye.equivalent - Val(eye.cylinder.text()) * 0.5, "0.00"));
    eye.sphereRead = Variant(Val(eye.sphere.text()));
    eye.count.setText(Format(Val(eye.count.text()) + 1, "000"));
}

void resetCutBack(CutBackEye eye)
{
    if (eye.isCutback) {
        eye.count.setText("000");
        eye.cylinder.setText(eye.cylinderSave);
        eye.sphere.setText(eye.sphereSave);
        eye.cylinderRead = Variant(Val(eye.cylinder.text()));
        eye.sphereRead = Variant(Val(eye.sphere.text()));
    }
    eye.isCutback = false;
}

}  // namespace

void Frm_Vistrel::Cmd_LeftCutBackSearch_Click()
{
    cutBackStep({Txt_Sphere_Left, Txt_Cylinder_Left, Txt_LeftCutBackCount, LeftIsCutback, Txt_Sphere_LeftSave,
                    Txt_Cylinder_LeftSave, LeftSphereRead, LeftCylinderRead, LeftSphereEqu},
        Val(options().Txt_CutBack.text()));
    if (!SkipSearch)
        Search_Click();
    SkipSearch = false;
}

// The right eye searches plainly: it neither reads nor clears SkipSearch.
void Frm_Vistrel::Cmd_RightCutBackSearch_Click()
{
    cutBackStep({Txt_Sphere_Right, Txt_Cylinder_Right, Txt_RightCutBackCount, RightIsCutback, Txt_Sphere_RightSave,
                    Txt_Cylinder_RightSave, RightSphereRead, RightCylinderRead, RightSphereEqu},
        Val(options().Txt_CutBack.text()));
    Search_Click();
}

void Frm_Vistrel::Cmd_BothCutBackSearch_Click()
{
    SkipSearch = true;
    Cmd_LeftCutBackSearch_Click();
    Cmd_RightCutBackSearch_Click();
}

void Frm_Vistrel::Cmd_LeftResetCutBack_Click()
{
    resetCutBack({Txt_Sphere_Left, Txt_Cylinder_Left, Txt_LeftCutBackCount, LeftIsCutback, Txt_Sphere_LeftSave,
        Txt_Cylinder_LeftSave, LeftSphereRead, LeftCylinderRead, LeftSphereEqu});
}

void Frm_Vistrel::Cmd_RightResetCutBack_Click()
{
    resetCutBack({Txt_Sphere_Right, Txt_Cylinder_Right, Txt_RightCutBackCount, RightIsCutback, Txt_Sphere_RightSave,
        Txt_Cylinder_RightSave, RightSphereRead, RightCylinderRead, RightSphereEqu});
}

void Frm_Vistrel::Cmd_BothReset_Click()
{
    Cmd_LeftResetCutBack_Click();
    Cmd_RightResetCutBack_Click();
}

}  // namespace vistrel
