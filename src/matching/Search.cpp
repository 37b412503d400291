// The search: the measurement on the screen against every pair in stock,
// in table order, into the ranked list of candidates.

#include "EyeCount.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "platform/Platform.h"

#include <cmath>

namespace vistrel {

void Frm_Vistrel::Search_Click()
{
    // Start-up fills the fields with JumpBack up, and the options it reads
    // set off handlers that would search: none may, for a search would load
    // the inventory before the options are all read.
    if (JumpBack)
        return;
    // A search asked for from inside a running one (a timer or a click that
    // arrives while the pass yields) starts that search over instead.
    if (searchRunning_) {
        searchRestart_ = true;
        return;
    }
    searchRunning_ = true;
    do {
        searchRestart_ = false;

        // 1. A positive cylinder refuses the search.
        const double leftCylinder = LeftCylinderRead.number();
        const double rightCylinder = RightCylinderRead.number();
        const char* refusal = nullptr;
        if (leftCylinder > 0 && rightCylinder > 0)
            refusal = "Left and Right Cylinders must be negative values! -- Please Re-enter";
        else if (leftCylinder > 0)
            refusal = "Left Cylinder must be a negative value! -- Please Re-enter";
        else if (rightCylinder > 0)
            refusal = "Right Cylinder must be a negative value! -- Please Re-enter";
        if (refusal) {
            platform().messageBox("Entry Error!", refusal, MsgIcon::Critical);
            break;
        }

        // 2 to 4. The list is emptied on both sides of a load.
        LeftMatchFlag = Variant("");
        RightMatchFlag = Variant("");
        DiagnosticHeaderPending = true;
        Lst_LeftSelection.clear();
        FoundListCount = 0;
        DisplayPrescription();
        if (!InventoryLoaded)
            Get_Readings();
        else
            Txt_Status.setText(" Loaded: " + Str(InventoryCount.number()));
        if (searchRestart_)
            continue;
        Lst_LeftSelection.clear();
        FoundListCount = 0;
        DisplayPrescription();
        FoundCount = 0;
        LeftMatchFlag = Variant("");
        RightMatchFlag = Variant("");

        // 5. The regime, from the measurement alone.
        const SearchRegime regime = makeRegime(leftCylinder, rightCylinder, MatchReadingAlsoValue == 1,
            MatchReadingOnlyValue == 1, Val(Max_CylinderValue));
        auto target = [&](bool left) {
            EyeTarget eye;
            const double multiplier = left ? LeftToleranceMultiplier : RightToleranceMultiplier;
            eye.sphere = (left ? LeftSphereRead : RightSphereRead).number();
            eye.cylinder = left ? leftCylinder : rightCylinder;
            eye.axis = left ? LeftAxisRead : RightAxisRead;
            eye.equivalent = left ? LeftSphereEqu : RightSphereEqu;
            eye.readingPower = (left ? LeftReadingPower : RightReadingPower).number();
            eye.sphereTolerance = std::fabs(Val(Max_Sphere_OverageValue)) * multiplier;
            eye.cylinderTolerance = std::fabs(Val(Max_Cylinder_OverageValue)) * multiplier;
            eye.axisTolerance = std::fabs(Val(Axis_DeviationValue)) * multiplier;
            eye.noEquivalent = (left ? NOSphericalEquivalentLeft : NOSphericalEquivalentRight) == 1;
            eye.leftEye = left;
            return eye;
        };
        const EyeTarget leftEye = target(true);
        const EyeTarget rightEye = target(false);

        // 6. The eye count and the gate, then the vetoes of MatchFound.
        // The flags of a record are kept as plain values and written to the
        // screen's variables only when MatchFound reads them, and for the
        // last record, which leaves them as they would stand.
        const int count = static_cast<int>(InventoryCount.number());
        MatchFlag lastLeft = MatchFlag::None, lastRight = MatchFlag::None;
        bool flagsPending = false;
        for (int i = 1; i <= count && i <= InventoryRows && !searchRestart_; ++i) {
            const auto r = static_cast<size_t>(i - 1);
            if (Inv_Number[r] == 0)
                continue;
            const EyeCount left = countEye(
                leftEye, regime, Inv_LeftSphere[r], Inv_LeftCylinder[r], Inv_LeftAxis[r], Inv_LeftAdd[r]);
            const EyeCount right = countEye(
                rightEye, regime, Inv_RightSphere[r], Inv_RightCylinder[r], Inv_RightAxis[r], Inv_RightAdd[r]);
            lastLeft = left.flag;
            lastRight = right.flag;
            flagsPending = true;
            if (Inv_Removed[r])
                continue;
            if (!regime.astigmatic)
                lastLeft = lastRight = MatchFlag::Match;
            const bool leftPasses = left.points == regime.needed || RightOnlyValue;
            const bool rightPasses = right.points == regime.needed || LeftOnlyValue;
            if (leftPasses && rightPasses) {
                LeftMatchFlag = Variant(matchFlagText(lastLeft));
                RightMatchFlag = Variant(matchFlagText(lastRight));
                flagsPending = false;
                std::int16_t index = static_cast<std::int16_t>(i);
                MatchFound(index);
            }
        }
        if (flagsPending) {
            LeftMatchFlag = Variant(matchFlagText(lastLeft));
            RightMatchFlag = Variant(matchFlagText(lastRight));
        }
        if (searchRestart_)
            continue;

        // 7, 8.
        Txt_Status.setText("   Found:  " + Format(FoundCount, "0000"));
        Make_Recommendation();
    } while (searchRestart_);
    searchRunning_ = false;
}

void Frm_Vistrel::AutomaticSearch()
{
    if (options().Chk_AutoSearch.value() == 1 && !SkipSearch)
        Search_Click();
}

// ---- Handlers that change what is searched for ----

void Frm_Vistrel::Chk_Add_Either_Click()
{
    options().Chk_IncludeEither.setValue(Chk_Add_Either.value() == 1 ? 1 : 0);
    if (Opt_Male.value() || Opt_Female.value())
        AutomaticSearch();
}

void Frm_Vistrel::Chk_NOEquiv_Click()
{
    if (LeftChanged || RightChanged)
        return;
    BothChanged = true;
    Frm_ProgramOptions& opt = options();
    const int on = Chk_NOEquiv.value() == 1 ? 1 : 0;
    opt.Chk_NOSpherical_Equivalent.setValue(on);
    Chk_NOEquivLeft.setValue(on);
    Chk_NOEquivRight.setValue(on);
    NOSphericalEquivalent = static_cast<std::int16_t>(on);
    NOSphericalEquivalentLeft = static_cast<std::int16_t>(on);
    NOSphericalEquivalentRight = static_cast<std::int16_t>(on);
    AutomaticSearch();
    BothChanged = false;
}

// The single-eye boxes search without looking at SkipSearch.
void Frm_Vistrel::Chk_NOEquivLeft_Click()
{
    if (BothChanged)
        return;
    LeftChanged = true;
    if (Chk_NOEquivLeft.value() == 1) {
        NOSphericalEquivalentLeft = 1;
        if (Chk_NOEquivRight.value() == 1) {
            Chk_NOEquiv.setValue(1);
            NOSphericalEquivalent = 1;
        }
    } else {
        NOSphericalEquivalentLeft = 0;
        NOSphericalEquivalent = 0;
        Chk_NOEquiv.setValue(0);
    }
    if (options().Chk_AutoSearch.value() == 1)
        Search_Click();
    LeftChanged = false;
}

void Frm_Vistrel::Chk_NOEquivRight_Click()
{
    if (BothChanged)
        return;
    RightChanged = true;
    if (Chk_NOEquivRight.value() == 1) {
        NOSphericalEquivalentRight = 1;
        if (Chk_NOEquivLeft.value() == 1) {
            Chk_NOEquiv.setValue(1);
            NOSphericalEquivalent = 1;
        }
    } else {
        NOSphericalEquivalentRight = 0;
        NOSphericalEquivalent = 0;
        Chk_NOEquiv.setValue(0);
    }
    if (options().Chk_AutoSearch.value() == 1)
        Search_Click();
    RightChanged = false;
}

void Frm_Vistrel::Chk_OverPlus_Click()
{
    if (PlusBusy)
        return;
    options().Chk_NoOverplus.setValue(Chk_OverPlus.value() == 1 ? 1 : 0);
    AutomaticSearch();
}

void Frm_Vistrel::Chk_Overminus_Click()
{
    if (MinusBusy)
        return;
    options().Chk_NoOverMinus.setValue(Chk_Overminus.value() == 1 ? 1 : 0);
    AutomaticSearch();
}

void Frm_Vistrel::Chk_OnlyBifocals_Click()
{
    Frm_ProgramOptions& opt = options();
    if (Chk_OnlyBifocals.value() == 1) {
        opt.Chk_MatchReadingAlso.setValue(0);
        opt.Chk_MatchReadingOnly.setValue(1);
        MatchReadingOnlyValue = 1;
        MatchReadingAlsoValue = 0;
    } else {
        MatchReadingOnlyValue = 0;
        if (opt.Chk_MatchReadingAlso.value() == 1)
            MatchReadingAlsoValue = 1;
    }
    AutomaticSearch();
}

}  // namespace vistrel
