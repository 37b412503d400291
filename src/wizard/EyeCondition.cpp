// The eye-condition panel: the two correction levels side by side, the
// better eye green and the poorer one coloured by how far it falls behind,
// and the tolerance advice that follows from it. A dominant eye counts as
// perfect and the other as hopeless, on the wizard only.

#include "Frm_Advisor.h"
#include "WizardRules.h"

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

#include <cmath>

namespace vistrel {

namespace wizard {

Color ConditionColor(std::int16_t difference)
{
    if (difference <= 2)
        return 33023;
    if (difference <= 4)
        return 8421631;
    if (difference <= 6)
        return 255;
    return 192;
}

EyeCondition CompareLevels(double leftLevel, double rightLevel)
{
    EyeCondition condition;
    // A difference beyond a 16-bit Integer isn't stored, and stays 0.
    condition.difference = ToInteger(std::fabs(rightLevel - leftLevel)).value_or(0);
    if (leftLevel == rightLevel)
        return condition;
    if (rightLevel < leftLevel)
        condition.left = ConditionColor(condition.difference);
    else
        condition.right = ConditionColor(condition.difference);
    return condition;
}

}  // namespace wizard

void Frm_Advisor::ShowEyeCondition()
{
    Frm_Vistrel& v = vistrel();
    Frm_Left.setCaption("Left Eye");
    Frm_Right.setCaption("Right Eye");
    if (v.Chk_DominantLeft.value() == 1) {
        Txt_Right_AMP.setText("99");
        Txt_Left_AMP.setText("00");
        Frm_Left.setCaption("Left Eye (Dominant)");
    }
    if (v.Chk_DominantRight.value() == 1) {
        Txt_Left_AMP.setText("99");
        Txt_Right_AMP.setText("00");
        Frm_Right.setCaption("Right Eye (Dominant)");
    }

    const wizard::EyeCondition condition = wizard::CompareLevels(Val(Txt_Left_AMP.text()), Val(Txt_Right_AMP.text()));
    Txt_LeftWellness.setBackColor(condition.left);
    Txt_RightWellness.setBackColor(condition.right);

    // Widen the poorer eye first; an eye far behind may be better left out.
    if (Txt_LeftWellness.backColor() == Txt_RightWellness.backColor())
        return;
    const bool veryUnequal = condition.difference >= 20;
    if (Txt_LeftWellness.backColor() == colors::Green) {
        guide("Adjust right eye tolerance multiplier ");
        guide("to higher numbers (*1.5,*2,*2.5,*3,*4). If no match, adjust left eye multiplier slightly. ");
        if (veryUnequal)
            guide(" Or blind right eye. ");
    } else {
        guide("Adjust left eye tolerance multiplier ");
        guide("to higher numbers (*1.5,*2,*2.5,*3,*4). If no match, adjust right eye multiplier slightly. ");
        if (veryUnequal)
            guide(" Or blind Left eye. ");
    }
}

}  // namespace vistrel
