// Cases 1 to 4, one set per eye, and the restore of an eye to what was
// measured. Each case changes the main screen's state and searches at once;
// cases 3 and 4 search step by step and settle on the step that found most.
// Unchecking a case takes the eye back to its measured prescription.

#include "Frm_Advisor.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

#include <cmath>

namespace vistrel {

namespace {

// The loops of cases 3 and 4 stop at this many steps, or earlier when the
// cylinder has come down to half of the autorefractor's.
constexpr int MostSteps = 20;

bool halfOfMeasuredReached(Frm_Autorefractor& a, int index, const TextBox& cylinder)
{
    return std::fabs(Val(a.Txt_AutoCylinder[index].text())) / 2 >= std::fabs(Val(cylinder.text()));
}

}  // namespace

// ---- Case 1: match by the spherical equivalent ----

// Case 1 is guarded by case 3's flag, and clears it: so case 3's unchecking
// on activation runs in full once case 1's has run. The prescription stays.
void Frm_Advisor::caseOne(bool left)
{
    Eye e = eye(left);
    if (!e.case3Skip) {
        CheckBox& noEquivalent = left ? vistrel().Chk_NOEquivLeft : vistrel().Chk_NOEquivRight;
        noEquivalent.setValue(e.case1.value() == 1 ? 0 : 1);
    }
    e.case3Skip = false;
    refreshFields(left);
}

void Frm_Advisor::Chk_Case1_Left_Click() { caseOne(true); }

void Frm_Advisor::Chk_Case1_Right_Click() { caseOne(false); }

// ---- Case 2: no cylinder ----

void Frm_Advisor::caseTwo(bool left)
{
    Eye e = eye(left);
    if (!e.case2Skip) {
        if (e.case2.value() == 1) {
            if (left)
                Txt_Cylinder_Left_DblClick();
            else
                Txt_Cylinder_Right_DblClick();
            e.done = true;
        } else {
            restore(left);
        }
        vistrel().Cmd_Search_Click();
    }
    e.case2Skip = false;
    refreshFields(left);
}

void Frm_Advisor::Chk_Case2_Left_Click() { caseTwo(true); }

void Frm_Advisor::Chk_Case2_Right_Click() { caseTwo(false); }

// ---- Cases 3 and 4: steps on the cylinder ----

// Takes steps on the eye's cylinder, searching each, until it is half of
// the measured one or the steps run out; the step that found most, the
// earliest of equals (only a strictly larger count moves the best), and
// that count in best. With no improvement it is step 1.
int Frm_Advisor::tryCylinderSteps(bool left, const std::function<void()>& step, std::int16_t& best)
{
    Frm_Vistrel& v = vistrel();
    int bestStep = 1;
    for (int n = 1; n <= MostSteps; ++n) {
        step();
        if (v.FoundCount > best) {
            best = v.FoundCount;
            bestStep = n;
        }
        refreshFields(left);
        if (halfOfMeasuredReached(autorefractor(), left ? 0 : 1, eye(left).cylinder))
            break;
    }
    return bestStep;
}

// ---- Case 3: cut-back with the equivalent kept ----

void Frm_Advisor::caseThree(bool left)
{
    Eye e = eye(left);
    if (!e.case3Skip) {
        Frm_Vistrel& v = vistrel();
        auto cutBack = [&v, left] {
            if (left)
                v.Cmd_LeftCutBackSearch_Click();
            else
                v.Cmd_RightCutBackSearch_Click();
        };
        Foundstart = v.FoundCount;
        std::int16_t best = v.FoundCount;
        const std::string keptSphere = e.sphere.text();
        const std::string keptCylinder = e.cylinder.text();
        if (e.case3.value() != 1) {
            restore(left);
        } else {
            const int bestStep = tryCylinderSteps(left, cutBack, best);
            // Back to the start, then forward to the best step. The eye is
            // still in its cut-back, so the saved prescription stays.
            e.sphere.setText(keptSphere);
            e.cylinder.setText(keptCylinder);
            (left ? v.Txt_LeftCutBackCount : v.Txt_RightCutBackCount).setText("000");
            for (int n = 1; n <= bestStep; ++n)
                cutBack();
            if (best != Foundstart)
                e.done = true;
        }
    }
    e.case3Skip = false;
    refreshFields(left);
}

void Frm_Advisor::Chk_Case3_Left_Click() { caseThree(true); }

void Frm_Advisor::Chk_Case3_Right_Click() { caseThree(false); }

// ---- Case 4: the cylinder reduced alone ----

void Frm_Advisor::caseFour(bool left)
{
    Eye e = eye(left);
    if (!e.case4Skip) {
        Frm_Vistrel& v = vistrel();
        // The copy's change handler writes the main screen and searches.
        auto reduce = [&e] { e.cylinder.setText(Format(Val(e.cylinder.text()) + 0.25, "##.00")); };
        Foundstart = v.FoundCount;
        std::int16_t best = v.FoundCount;
        const std::string keptCylinder = e.cylinder.text();
        if (e.case4.value() != 1) {
            restore(left);
        } else {
            const int bestStep = tryCylinderSteps(left, [&] {
                reduce();
                Cmd_Search_Click();
            }, best);
            e.cylinder.setText(keptCylinder);
            for (int n = 1; n <= bestStep; ++n) {
                reduce();
                Cmd_Search_Click();
            }
            if (best != Foundstart)
                e.done = true;
        }
    }
    e.case4Skip = false;
    refreshFields(left);
}

void Frm_Advisor::Chk_Case4_Left_Click() { caseFour(true); }

void Frm_Advisor::Chk_Case4_Right_Click() { caseFour(false); }

// ---- Restore ----

// Back to the autorefractor's reading, or to the typed prescription as it
// stood when the wizard opened.
void Frm_Advisor::restore(bool left)
{
    Frm_Vistrel& v = vistrel();
    Eye e = eye(left);
    e.done = false;
    if (left)
        v.Cmd_LeftResetCutBack_Click();
    else
        v.Cmd_RightResetCutBack_Click();
    if (v.Chk_AutoBypass.value() == 1) {
        e.sphere.setText(e.saveSphere);
        e.cylinder.setText(e.saveCylinder);
        e.axis.setText(e.saveAxis);
    } else if (left) {
        v.Cmd_RestoreLeft_Click();
    } else {
        v.Cmd_RestoreRight_Click();
    }
    v.Cmd_Search_Click();
    refreshFields(left);
}

void Frm_Advisor::Cmd_RestoreLeft_Click() { restore(true); }

void Frm_Advisor::Cmd_RestoreRight_Click() { restore(false); }

}  // namespace vistrel
