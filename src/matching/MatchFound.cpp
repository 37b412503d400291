// A pair that passed the eye count: the vetoes, the closeness score, the
// gender filter, and its place among the candidates.

#include "Closeness.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Platform.h"

#include <cmath>
#include <cstdlib>

namespace vistrel {

namespace {

// A pair's number after its trip through plain text and back; values in
// hundredths come back unchanged, and most pairs hold such values.
double throughText(double x)
{
    const double hundredths = std::round(x * 100) / 100;
    return hundredths == x ? x : Val(Str(x));
}

}  // namespace

std::string genderCodeText(std::int16_t code);

void Frm_Vistrel::MatchFound(std::int16_t& i)
{
    const auto r = static_cast<size_t>(i - 1);
    Frm_ProgramOptions& opt = options();
    const bool blindLeft = Chk_BlindLeft.value() == 1;
    const bool blindRight = Chk_BlindRight.value() == 1;
    const double sphereL = Val(Txt_Sphere_Left.text());
    const double sphereR = Val(Txt_Sphere_Right.text());
    const double addL = Val(Txt_LeftAdd.text());
    const double addR = Val(Txt_RightAdd.text());
    const bool plusBifocals = Chk_PlusBifocals.value() == 1;

    // V1, V2: no over-plus; the right Add test takes a zero Add, the left doesn't.
    if (opt.Chk_NoOverplus.value() == 1) {
        if (!blindLeft && sphereL >= 0 && Inv_LeftSphere[r] > sphereL)
            return;
        if (!blindRight && sphereR >= 0 && Inv_RightSphere[r] > sphereR)
            return;
        if (plusBifocals) {
            if (!blindLeft && addL > 0 && Inv_LeftAdd[r] > addL)
                return;
            if (!blindRight && addR >= 0 && Inv_RightAdd[r] > addR)
                return;
        }
    }
    // V3: no over-cylinder, with a quarter (or a half) to spare.
    if (opt.Chk_NoOverCylinder.value() == 1) {
        const double m = opt.Chk_UpTo50.value() == 1 ? -0.55 : -0.30;
        if (!blindLeft && std::fabs(Inv_LeftCylinder[r]) + m > std::fabs(Val(Txt_Cylinder_Left.text())))
            return;
        if (!blindRight && std::fabs(Inv_RightCylinder[r]) + m > std::fabs(Val(Txt_Cylinder_Right.text())))
            return;
    }
    // V4, V5: no over-minus for adults, half a dioptre for the younger.
    const double age = Val(Txt_Age.text());
    const double years = Val(opt.Txt_YearsOverMinus.text());
    if (opt.Chk_NoOverMinus.value() == 1 && age > 0) {
        const double allowance = years <= age ? 0 : 0.5;
        if (!blindLeft && sphereL < 0 && Inv_LeftSphere[r] < sphereL - allowance)
            return;
        if (!blindRight && sphereR < 0 && Inv_RightSphere[r] < sphereR - allowance)
            return;
    }
    // V6: lens type.
    bool lensPasses = Opt_LensDoNotCare.value();
    if (!lensPasses && Opt_Progressive.value())
        lensPasses = Inv_Progressive[r];
    if (!lensPasses && Opt_LensBiFocal.value())
        lensPasses = Inv_Bifocal[r];
    if (!lensPasses && Opt_LensSingle.value())
        lensPasses = !Inv_Bifocal[r];
    if (!lensPasses && Opt_Readers.value())
        lensPasses = Inv_Reading[r];
    if (!lensPasses)
        return;

    // Closeness, left eye first.
    const double axisDeviation = Val(Axis_DeviationValue);
    auto score = [&](bool left) {
        const double pairAdd = throughText(left ? Inv_LeftAdd[r] : Inv_RightAdd[r]);
        const double addTerm = plusBifocals ? std::fabs((left ? addL : addR) - pairAdd) / 0.25 : 0;
        if (left)
            return eyeScore(LeftMatchFlag.string() == " -Equiv", LeftSphereRead.number(), LeftCylinderRead.number(), LeftAxisRead,
                LeftSphereEqu, throughText(Inv_LeftSphere[r]), throughText(Inv_LeftCylinder[r]), Inv_LeftAxis[r],
                addTerm, plusBifocals, axisDeviation);
        return eyeScore(RightMatchFlag.string() == " -Equiv", RightSphereRead.number(), RightCylinderRead.number(), RightAxisRead,
            RightSphereEqu, throughText(Inv_RightSphere[r]), throughText(Inv_RightCylinder[r]), Inv_RightAxis[r],
            addTerm, plusBifocals, axisDeviation);
    };
    const double closeness = pairCloseness(score(true), score(false), LeftOnlyValue, RightOnlyValue);

    // V7: gender.
    const std::string gender = genderCodeText(Inv_Gender[r]);
    const bool includeEither = opt.Chk_IncludeEither.value() == 1;
    bool genderPasses = false;
    if (Opt_DoNotCare.value())
        genderPasses = true;
    else if (Opt_EitherMaleFemale.value())
        genderPasses = gender != " C";
    else if (Opt_Female.value())
        genderPasses = gender == " F" || (includeEither && gender == " E");
    else if (Opt_Male.value())
        genderPasses = gender == " M" || (includeEither && gender == " E");
    else if (Opt_Child.value())
        genderPasses = gender == " C";
    if (!genderPasses)
        return;

    // Acceptance: counted always, listed up to the table's size.
    ++FoundCount;
    Txt_Status.setText("Searching. " + Format(FoundCount, "0000"));
    platform().doEvents();
    if (FoundListCount >= SearchRows)
        return;
    const auto k = static_cast<size_t>(FoundListCount);
    ++FoundListCount;
    Found_Number[k] = Inv_Number[r];
    Found_Index[k] = i;
    Found_Score[k] = closeness;
    Found_Gender[k] = Inv_Gender[r];
    Found_Bifocal[k] = Inv_Bifocal[r];
    Found_Progressive[k] = Inv_Progressive[r];
    AddResultRow(i, closeness);
    if (DiagnosticValue == 1)
        WriteDiagnostic(i);
    LeftMatchFlag = Variant("");
    RightMatchFlag = Variant("");
}

}  // namespace vistrel
