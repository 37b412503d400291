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

using EyeEntry = Frm_Vistrel::EyeEntry;

// One step; skipped without a word when it would take more than is left.
void cutBackStep(const EyeEntry& eye, double amount)
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
    eye.cutBackCount.setText(Format(Val(eye.cutBackCount.text()) + 1, "000"));
}

void resetCutBack(const EyeEntry& eye)
{
    if (eye.isCutback) {
        eye.cutBackCount.setText("000");
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
    cutBackStep(eyeEntry(true), Val(options().Txt_CutBack.text()));
    if (!SkipSearch)
        Search_Click();
    SkipSearch = false;
}

// The right eye searches plainly: it neither reads nor clears SkipSearch.
void Frm_Vistrel::Cmd_RightCutBackSearch_Click()
{
    cutBackStep(eyeEntry(false), Val(options().Txt_CutBack.text()));
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
    resetCutBack(eyeEntry(true));
}

void Frm_Vistrel::Cmd_RightResetCutBack_Click()
{
    resetCutBack(eyeEntry(false));
}

void Frm_Vistrel::Cmd_BothReset_Click()
{
    Cmd_LeftResetCutBack_Click();
    Cmd_RightResetCutBack_Click();
}

}  // namespace vistrel
