// The tolerance multiplier of each eye: *1 to *4 on that eye's allowed
// deviations, each option with its colour, which the eye's label and all
// six options of the eye take on, so the chosen step shows from afar.

#include "Frm_Advisor.h"
#include "WizardRules.h"

#include "core/Frm_Vistrel.h"

namespace vistrel {

namespace wizard {

namespace {
struct MultiplierRow {
    double multiplier;
    Color color;
};
constexpr MultiplierRow Rows[MultiplierRows] = {
    {1.0, 16776960}, {1.5, 12640511}, {2.0, 8454143}, {2.5, 16744703}, {3.0, 65280}, {4.0, 33023}};
}  // namespace

double ToleranceMultiplier(int row) { return Rows[row].multiplier; }

Color MultiplierColor(int row) { return Rows[row].color; }

}  // namespace wizard

void Frm_Advisor::MultiplierChosen(bool left, int row)
{
    Frm_Vistrel& v = vistrel();
    const Color color = wizard::MultiplierColor(row);
    (left ? v.LeftToleranceMultiplier : v.RightToleranceMultiplier) = wizard::ToleranceMultiplier(row);
    (left ? Lbl_LeftTolerance : Lbl_RightTolerance).setBackColor(color);
    for (OptionButton* o : (left ? LeftGroup : RightGroup).members())
        o->setBackColor(color);
    v.Cmd_Search_Click();
    refreshFields(left);
}

}  // namespace vistrel
