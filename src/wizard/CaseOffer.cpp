// Which of the cases 1 to 4 the wizard offers an eye. Cases 1 and 2 are
// for a small cylinder, 3 and 4 for a large one, told apart by the sphere;
// a cylinder between -1.75 and -2.00 gets none of them.

#include "Frm_Advisor.h"
#include "WizardRules.h"

#include "core/Numbers.h"

#include <cmath>

namespace vistrel {

namespace wizard {

CaseOffer OfferedCases(double sphere, double cylinder, double equivalent)
{
    const double s = std::fabs(sphere);
    const double c = std::fabs(cylinder);
    const double e = std::fabs(equivalent);
    CaseOffer offer;
    offer.case1 = c > 0 && c <= 1.75 && e > 0.25;
    offer.case2 = c > 0 && c <= 1.0;
    offer.case3 = c >= 2.0 && s >= 2.0;
    offer.case4 = c >= 2.0 && s < 2.0;
    return offer;
}

}  // namespace wizard

namespace {

// A box unchecked without its click handler.
void uncheckSilently(CheckBox& box)
{
    std::function<void()> handler = std::move(box.onClick);
    box.onClick = nullptr;
    box.setValue(0);
    box.onClick = std::move(handler);
}

}  // namespace

// The cases of one eye that its prescription fits, with their guide text
// when the eye is the poorer one; the others are hidden.
void Frm_Advisor::OfferCases(bool left)
{
    Eye e = eye(left);
    const wizard::CaseOffer offer = wizard::OfferedCases(Val(e.sphere.text()), Val(e.cylinder.text()),
        Val(e.sphereEqu.text()));
    const bool poorer = e.wellness.backColor() != colors::Green;
    auto offerCase = [&](CheckBox& box, Label* action, bool shown, const char* leftText, const char* rightText) {
        box.setVisible(shown);
        if (action)
            action->setVisible(shown);
        if (!shown)
            return;
        uncheckSilently(box);
        if (poorer)
            guide(left ? leftText : rightText);
    };
    offerCase(e.case1, &e.switchSE, offer.case1, "Click Case 1 Left eye then. ", "Click Case 1 Right eye then. ");
    offerCase(e.case2, &e.clearCylinder, offer.case2, "Click Case 2 Left eye then. ", "Click Case 2 Right eye then. ");
    offerCase(e.case3, nullptr, offer.case3, "Click/Unclick (for most matches) Case 3 Left eye then. ",
        "Click/Unclick (for most matches) Case 3 Right eye then. ");
    offerCase(e.case4, nullptr, offer.case4, "Click/Unclick (for most matches) Case 4 for Left eye then. ",
        "Click/Unclick (for most matches) Case 4 Right eye then. ");
    const bool cutBack = e.case3.visible() || e.case4.visible();
    e.multiple.setVisible(cutBack);
    e.halfCylinder.setVisible(cutBack);
}

}  // namespace vistrel
