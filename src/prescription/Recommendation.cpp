// The station's advice after every search: a clinician's rules of thumb
// put to the measurement, spoken twice over in one pass, as a running
// sentence on the screen and as short lines for the printed slip. The two
// are worded apart on purpose, and some facts go to only one of them.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <cmath>

namespace vistrel {

namespace {

// One pass's words: the caption grows, and every line takes the next slot
// of the slip's table. The table has slots 0 to 20; a line that would
// land past the last slot is dropped rather than overrun it (no pass of
// the rules comes near, but the rules set no bound of their own).
class Advice {
public:
    Advice(Label& label, std::vector<std::string>& lines) : label_(label), lines_(lines) {}

    void caption(const std::string& text) { label_.setCaption(label_.caption() + text); }
    void replaceCaption(const std::string& text) { label_.setCaption(text); }
    bool captionHolds(std::string_view word) const { return Contains(label_.caption(), word); }

    void line(const std::string& text)
    {
        ++count_;
        store(text);
    }
    // The screen's words and the slip's words of one fact.
    void say(const std::string& onScreen, const std::string& onSlip)
    {
        caption(onScreen);
        line(onSlip);
    }
    void skipSlot() { ++count_; }
    void setCount(int count) { count_ = count; }
    // Writes the current slot again, without moving on.
    void store(const std::string& text)
    {
        if (count_ >= 0 && count_ < static_cast<int>(lines_.size()))
            lines_[static_cast<size_t>(count_)] = text;
    }

private:
    Label& label_;
    std::vector<std::string>& lines_;
    int count_ = 0;
};

}  // namespace

void Frm_Vistrel::Make_Recommendation()
{
    // 1.
    if (RecommendationBusy)
        return;
    RecommendationBusy = true;
    GlassesNeeded = false;
    GlassesOptional = false;

    // Every value is taken fresh from its field when a rule reads it.
    auto sL = [this] { return Val(Txt_Sphere_Left.text()); };
    auto sR = [this] { return Val(Txt_Sphere_Right.text()); };
    auto cL = [this] { return std::fabs(Val(Txt_Cylinder_Left.text())); };
    auto cR = [this] { return std::fabs(Val(Txt_Cylinder_Right.text())); };
    auto aL = [this] { return Val(Txt_Left_AMP.text()); };
    auto aR = [this] { return Val(Txt_Right_AMP.text()); };
    auto age = [this] { return Val(Txt_Age.text()); };
    auto add = [this] { return Val(ChosenAddText); };
    auto leftAdd = [this] { return Val(Txt_LeftAdd.text()); };
    auto first = [this] { return Val(options().Txt_To[0].text()); };
    auto p = [this] { return StrTrimmed(GetReadingPower()); };

    Advice advice(Lbl_Recommendation, AdviceLines);
    bool bothEyesMinus = false;
    enum class Next { Step4, Step11, Step14, End };
    Next next = Next::Step4;

    // 2. Nothing entered: the slip keeps the last person's lines.
    const bool nothing = sL() == 0 && sR() == 0 && cL() == 0 && cR() == 0 && Val(Txt_Axis_Left.text()) == 0
        && Val(Txt_Axis_Right.text()) == 0 && leftAdd() == 0 && Val(Txt_RightAdd.text()) == 0;
    if (nothing) {
        Lbl_Recommendation.setVisible(false);
        Lbl_Recommendation.setCaption("");
        next = Next::Step14;
    } else {
        // 3.
        Lbl_Recommendation.setVisible(true);
        for (std::string& slot : AdviceLines)
            slot.clear();
        advice.setCount(1);
        Lbl_Recommendation.setCaption("");
    }

    if (next == Next::Step4) {
        // 4. Age missing; a left sphere of a half or less says nothing.
        const auto w = ToInteger(std::fabs(sL()));
        if (w.value_or(1) != 0 && std::fabs(sR()) > 0 && age() == 0) {
            advice.caption("ENTER AGE for accurate glasses list. ");
            advice.setCount(2);
            advice.store("ENTER AGE for accurate glasses list.");
            Txt_Age.setBackColor(colors::Yellow);
            Lbl_Age.setBackColor(colors::Yellow);
        }

        // 5.
        bothEyesMinus = sL() < 0 && std::fabs(sL()) > 0.5 && sR() < 0 && std::fabs(sR()) > 0.5;

        // 6. Near perfect: the warning goes, in the caption and in its slot.
        if ((std::fabs(sL()) < 0.5 && cL() < 0.5 && std::fabs(sR()) < 0.5 && cR() < 0.5) || aL() + aR() < 4) {
            advice.replaceCaption("Near Perfect Distance Vision.");
            advice.store("- Near Perfect Distance Vision.");
            if (add() > 0) {
                advice.say("  No distance glasses but +" + p() + " readers. ",
                    "- No distance glasses but +" + p() + " readers.");
                next = Next::Step11;
            } else if (age() < 30) {
                advice.say("  No glasses needed for this young person. ", "- No glasses needed for this young person.");
                GlassesNeeded = false;
                next = Next::Step14;
            } else {
                advice.say("  No glasses needed. ", "- No glasses needed.");
                GlassesNeeded = false;
                next = Next::Step14;
            }
        }
    }

    if (next == Next::Step4) {
        // 7. Tolerable astigmatism.
        const double tol = std::fabs(age()) > 10 ? 1.00 : 1.50;
        if (std::fabs(sL()) < 0.5 && cL() < tol + 0.1 && std::fabs(sR()) < 0.5 && cR() < tol + 0.1) {
            advice.say("Tolerable Astigmatism.  No Glasses Needed.", "- Tolerable Astigmatism.  No Glasses Needed.");
            GlassesNeeded = false;
            advice.line("- Tolerate: -1.00(CYL) and below(Adults) and");
            advice.line("-    -1.50(CYL) and below (Child 10 & below)");
            next = Next::Step11;
        }
    }

    if (next == Next::Step4) {
        // 8. Both eyes in question.
        if ((cL() >= 0.5 || std::fabs(sL()) >= 0.5) && (cR() >= 0.5 || std::fabs(sR()) >= 0.5)) {
            GlassesNeeded = true;
            if (cL() <= 0.5 && std::fabs(sL()) == 0.5 && cR() <= 0.5 && std::fabs(sR()) == 0.5 && !bothEyesMinus
                && (first() < age() || add() > 0))
                advice.say("+" + p() + " Readers alone may suffice.", "- +" + p() + " Readers alone may suffice.");
        }
        // Very unequal eyes; the ".001" keeps the divisions off zero and
        // stays on the screen.
        if (aR() >= 20 || aL() >= 20) {
            if (aR() == 0)
                Txt_Right_AMP.setText(".001");
            if (aL() / aR() >= 2.5) {
                advice.say(" Ask if left eye blind. May be lazy eye.", "- Ask if left eye blind. May be lazy eye.");
                advice.line("- Match right eye and mark left eye blind.");
            }
            if (aL() == 0)
                Txt_Left_AMP.setText(".001");
            if (aR() / aL() >= 2.5) {
                advice.say(" Ask if right eye blind. May be lazy eye.", "- Ask if right eye blind. May be lazy eye.");
                advice.line("- Match left eye and mark right blind.");
            }
        }

        // 9. One eye good. The two sides differ on purpose: only the left
        // tests both-eyes-minus and its own Add, and its slip line has the
        // power twice.
        if ((cL() > 0.5 || std::fabs(sL()) >= 0.5) && cR() <= 1.0 && std::fabs(sR()) < 0.5) {
            GlassesNeeded = true;
            advice.skipSlot();
            if (cL() < 2.5 && sL() < 0)
                advice.say(" Use left for reading. Right for distance.", "- Use left for reading. Right for distance.");
            if ((cL() == 0.5 || std::fabs(sL()) == 0.5) && (first() < age() || add() > 0) && !bothEyesMinus
                && (first() < age() || leftAdd() > 0))
                advice.say(" +" + p() + " Readers alone may suffice.",
                    "- +" + p() + "+" + p() + " Readers alone may suffice.");
        }
        if ((cR() > 0.5 || std::fabs(sR()) >= 0.5) && cL() <= 1.0 && std::fabs(sL()) < 0.5) {
            GlassesNeeded = true;
            advice.skipSlot();
            if (cR() < 2.5 && sR() < 0)
                advice.say(" Use right for reading. Left for distance.", "- Use right for reading. Left for distance.");
            if ((cR() == 0.5 || std::fabs(sR()) == 0.5) && (first() < age() || add() > 0))
                advice.say(" +" + p() + " Readers alone may suffice.", "- +" + p() + " Readers alone may suffice.");
        }

        // 10. High astigmatism.
        if (cL() >= 1.75 && cR() >= 1.75) {
            advice.say(" High Astigmatism both eyes.", "- High Astigmatism both eyes.");
            GlassesNeeded = true;
            next = Next::Step11;
        } else {
            if (cR() >= 1.75) {
                advice.say(" High Astigmatism right eye.", "- High Astigmatism right eye.");
                GlassesNeeded = true;
                if (cL() < 0.5 && std::fabs(sL()) < 0.5) {
                    advice.caption(" Left eye is perfect. May try +" + p() + " Readers.");
                    advice.line("- Left eye is perfect.");
                    advice.line("- May try +" + p() + " Readers.");
                }
            }
            if (cL() >= 1.75) {
                advice.say(" High Astigmatism left eye.", "- High Astigmatism left eye.");
                GlassesNeeded = true;
                if (cR() < 0.5 && std::fabs(sR()) < 0.5) {
                    advice.caption(" Right eye is perfect. May try +" + p() + " Readers.");
                    advice.line("- Right eye is perfect.");
                    advice.line("- May try +" + p() + " Readers.");
                }
            }
            next = Next::Step11;
        }
    }

    if (next == Next::Step11) {
        // 11. Too few matches: the wizard is called for.
        if (FoundCount < 4 && !advice.captionHolds("Wizard")) {
            if (first() < age() || leftAdd() > 0) {
                advice.say(" Few or no BiFocal matches made.", "- Few or no BiFocal matches made.");
                advice.say(" Add may be wrong on any listed.", "- Add may be wrong on any listed.");
            }
            if (Chk_PlusBifocals.value() == 1)
                advice.say(" Use Wizard or uncheck ALSO for more matches.", "- Use Wizard/uncheck ALSO for more matches.");
            else
                advice.say(" Use Wizard for more matches.", "- Use Wizard for more matches.");
            WizardFlashCounter = 3;
            WizardFlash = true;
            Cmd_RunAdvisor.setBackColor(colors::Green);
        }

        // 12. Squinting; the test is one-sided though the words say +-.
        auto nearHorizontal = [](double axis) {
            const double a = std::fabs(axis);
            return (a >= 0 && a <= 5) || (a >= 175 && a <= 180);
        };
        if (sL() < 0 && sR() < 0 && std::fabs(sL()) >= 0.75 && std::fabs(sR()) >= 0.75 && std::fabs(sL()) - cL() < 0.6
            && std::fabs(sR()) - cR() < 0.6 && nearHorizontal(Val(Txt_Axis_Left.text()))
            && nearHorizontal(Val(Txt_Axis_Right.text()))) {
            advice.say(" Squinting may improve vision.", "- Squinting may improve vision when");
            advice.line("  minus Sphere & Cylinder are .75 or");
            advice.line("  more & are within +- .50 of each other.");
            advice.line("  Axis must be at 180 +- 5 degrees.");
        }

        // 13. By age.
        if (age() < 20) {
            if (cR() < 1.0 && std::fabs(sR()) < 1.1 && sR() < 0 && cL() < 1.0 && std::fabs(sL()) < 1.1 && sL() < 0) {
                advice.caption(" Check Acuity on E-Chart. May be OK. Dilation may not be complete. ");
                advice.line("- Check Acuity on E-Chart. May be OK.");
                advice.line("- Eye muscles may not be totally relaxed.");
                advice.line("- Dilation may not be complete.");
            }
            if (cR() < 0.75 && sR() >= 0 && sR() < 1.6 && cL() < 0.75 && sL() >= 0 && sL() < 1.6) {
                advice.say(" Young person will not need glasses.", "- Young person will not need glasses.");
                advice.line("- Low cylinder and Sphere 1.5 or less.");
                GlassesNeeded = false;
            }
        } else if (age() < 31) {
            advice.say(" Remember dilation rules.", "- Remember dilation rules.");
        }
        next = Next::Step14;
    }

    // 14. An older person with one eye fine.
    if (first() < age()) {
        if (aR() < aL() && aL() > 12 && aR() < 4)
            advice.say(" Correct right eye with +" + p() + " readers.", "- Correct right eye with +" + p() + " readers.");
        if (aL() < aR() && aR() > 12 && aL() < 4)
            advice.say(" Correct left eye with +" + p() + " readers.", "- Correct left eye with +" + p() + " readers.");
    }

    // 15. The verdict.
    if (GlassesNeeded) {
        if (sR() < 0.25 && sL() < 0.25)
            advice.say(" Nearsighted both eyes.", "- Nearsighted both eyes.");
        if (sR() > 0.25 && sL() > 0.25)
            advice.say(" Farsighted both eyes.", "- Farsighted both eyes.");
        // The left level twice, the right one not at all: so it decides.
        const double v = aL() + aL();
        if (v >= 10) {
            advice.say(" Glasses needed.", "- Glasses are needed.");
        } else {
            GlassesOptional = true;
            if (first() > age())
                advice.say(" Glasses optional with this young person.", "- Glasses optional with this young person.");
            else
                advice.say(" Glasses optional.", "- Glasses optional.");
        }
        if (first() < age() && cR() <= 1.0 && cL() <= 1.0) {
            // An exact zero on the right fails the readers' test.
            if (sL() >= 0 && sL() <= 3.0 && sR() > 0 && sR() <= 3.0 && (first() < age() || leftAdd() > 0)) {
                advice.caption(" But +" + p() + " readers alone may suffice.");
                advice.line("- But +" + p() + " readers alone may suffice.");
                advice.line("-  Because sphere plus and <= 3.00.");
            }
            if (sL() < 0 && std::fabs(sL()) <= 1.0 && sR() < 0 && std::fabs(sR()) <= 1.0
                && (first() < age() || leftAdd() > 0)) {
                advice.say(" But no glasses may suffice.", "- But no glasses may suffice.");
                advice.line("-  Because sphere minus and <= 1.00.");
            }
            advice.line("-    And cylinder is low to moderate <= 1.00.");
        }
    }
    RecommendationBusy = false;
}

}  // namespace vistrel
