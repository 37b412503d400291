// A pair that passed the eye count: the vetoes, the closeness score, the
// gender filter, and its place among the candidates.

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

// The closeness of one eye, 0 for a perfect fit.
double eyeScore(const Variant& flag, double S, double C, std::int16_t A, double Q, double s, double c,
    std::int16_t a, double addTerm, bool withAdd, double axisDeviation)
{
    if (flag.string() == " -Equiv") {
        // The pair's side keeps the minus: sphere plus half the cylinder's size.
        return std::fabs(Q - (s - c * 0.5)) / 0.25 + addTerm;
    }
    const double sphereTerm = std::fabs(S - s) / 0.25;
    const double cylinderTerm = std::fabs(C - c) / 0.25;
    int f = A;
    int g = a;
    if (axisDeviation < std::abs(f - g)) {
        if (f <= g)
            f += 180;
        else
            g += 180;
    }
    const std::int16_t d = AxisDifference(static_cast<std::int16_t>(f), static_cast<std::int16_t>(g));
    double penalty = 0;
    if (std::fabs(C) <= 2)
        penalty = ToIntegerOr(d * 0.25, 0);
    else if (std::fabs(C) <= 3)
        penalty = ToIntegerOr(d * 0.5, 0);
    else
        penalty = d;
    if (std::fabs(c) < 0.26)
        penalty = 0;
    if (withAdd)
        return (sphereTerm + cylinderTerm + penalty + addTerm) / 4;
    return (sphereTerm + cylinderTerm + penalty) / 3;
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
            return eyeScore(LeftMatchFlag, LeftSphereRead.number(), LeftCylinderRead.number(), LeftAxisRead,
                LeftSphereEqu, throughText(Inv_LeftSphere[r]), throughText(Inv_LeftCylinder[r]), Inv_LeftAxis[r],
                addTerm, plusBifocals, axisDeviation);
        return eyeScore(RightMatchFlag, RightSphereRead.number(), RightCylinderRead.number(), RightAxisRead,
            RightSphereEqu, throughText(Inv_RightSphere[r]), throughText(Inv_RightCylinder[r]), Inv_RightAxis[r],
            addTerm, plusBifocals, axisDeviation);
    };
    double leftScore = score(true);
    double rightScore = score(false);
    if (RightOnlyValue)
        leftScore = rightScore;
    if (LeftOnlyValue)
        rightScore = leftScore;
    const double closeness = Int((std::fabs(rightScore) + std::fabs(leftScore)) / 2 * 10) / 10;

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
