// The numbers every later step works from: spherical equivalents, net
// reading powers, correction levels, the age adjustment and the Add by age.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "wizard/Frm_Advisor.h"

#include <cmath>

namespace vistrel {

double Frm_Vistrel::GetAgeAdjustment()
{
    const double a = Val(Txt_Age.text());
    if (a < 3)
        return 3.0;
    if (a <= 5)
        return 2.875;
    if (a <= 10)
        return 2.75;
    if (a <= 15)
        return 2.5;
    if (a <= 20)
        return 2.25;
    if (a <= 25)
        return 2.0;
    if (a <= 30)
        return 1.5;
    if (a <= 35)
        return 1.0;
    return 0;
}

// The plain reading glasses advised: the weaker eye's equivalent plus the
// chosen Add, rounded down to a quarter, never below 1.00.
double Frm_Vistrel::GetReadingPower()
{
    const double add = Val(ChosenAddText);
    const double l = Val(Txt_Sphere_Equ_Left.text()) + add;
    const double r = Val(Txt_Sphere_Equ_Right.text()) + add;
    double p = l < r ? l : r;
    if (p < 1.0)
        p = 1.0;
    const double t = std::floor(p * 2 * 100) / 100 / 2;
    return std::floor(std::floor(t * 100) / 25) * 0.25;
}

// The correction level of each eye; only plus spheres are reduced by age.
void Frm_Vistrel::Calculate_AMP()
{
    auto level = [this](const TextBox& sphere, const TextBox& cylinder) {
        const double s = Val(sphere.text());
        double x = s;
        if (s > 0) {
            x = s - GetAgeAdjustment();
            if (x < 0)
                x = 0;
        }
        return (std::fabs(Val(cylinder.text())) + std::fabs(x)) / 0.25;
    };
    const double left = level(Txt_Sphere_Left, Txt_Cylinder_Left);
    const double right = level(Txt_Sphere_Right, Txt_Cylinder_Right);
    Txt_Left_AMP.setText(StrTrimmed(left));
    Txt_Right_AMP.setText(StrTrimmed(right));
    advisor().Txt_Left_AMP.setText(Txt_Left_AMP.text());
    advisor().Txt_Right_AMP.setText(Txt_Right_AMP.text());
}

void Frm_Vistrel::Cmd_SetAdd_Click()
{
    Frm_ProgramOptions& opt = options();
    const double age = Val(Txt_Age.text());
    int row = -1;
    for (int i = 0; i <= 7; ++i) {
        if (Val(opt.Txt_From[i].text()) <= age && Val(opt.Txt_To[i].text()) >= age) {
            row = i;
            break;
        }
    }
    if (row >= 0) {
        const double add = Val(opt.Txt_Add[row].text());
        const double left = Val(StrTrimmed(Val(Txt_Sphere_Equ_Left.text()) + add));
        Txt_LeftReadingPower.setText(Format(left, "0.00"));
        Txt_LeftAdd.setText(Format(add, "0.00"));
        advisor().Txt_LeftAdd.setText(Txt_LeftAdd.text());
        const double right = Val(StrTrimmed(Val(Txt_Sphere_Equ_Right.text()) + add));
        Txt_RightReadingPower.setText(Format(right, "0.00"));
        Txt_RightAdd.setText(Format(add, "0.00"));
        advisor().Txt_RightAdd.setText(Txt_RightAdd.text());
    }
    if (Val(Txt_LeftReadingPower.text()) == 0)
        Txt_LeftReadingPower.setText("");
    if (Val(Txt_RightReadingPower.text()) == 0)
        Txt_RightReadingPower.setText("");
    Chk_PlusBifocals.setValue(Val(Txt_LeftAdd.text()) == 0 ? 0 : 1);
    ChosenAddText = Txt_LeftAdd.text();
    if (Val(Txt_RightAdd.text()) == 0)
        Opt_LensSingle.select();
}

namespace {

// Clock positions of a meridian reading, in degrees.
bool clockDegrees(const std::string& clock, std::int16_t& degrees)
{
    static const std::pair<const char*, int> table[] = {{"9", 0}, {"3", 0}, {"9-10", 15}, {"3-4", 15},
        {"10", 30}, {"4", 30}, {"10-11", 45}, {"4-5", 45}, {"11", 60}, {"5", 60}, {"11-12", 75}, {"5-6", 75},
        {"12", 90}, {"6", 90}, {"12-1", 105}, {"6-7", 105}, {"1", 120}, {"7", 120}, {"1-2", 135}, {"7-8", 135},
        {"2", 150}, {"8", 150}, {"2-3", 165}, {"8-9", 165}};
    for (auto [text, deg] : table) {
        if (clock == text) {
            degrees = static_cast<std::int16_t>(deg);
            return true;
        }
    }
    return false;
}

}  // namespace

// Two meridian readings to a prescription; false for an unknown position.
bool Frm_Vistrel::Calculate(const std::array<double, 2>& powers, const std::array<std::string, 2>& clock,
    double& sphere, double& cylinder, double& equivalent, std::int16_t& axis, bool& hasCylinder)
{
    if (clock[0].empty()) {
        sphere = powers[0];
        equivalent = powers[0];
        hasCylinder = false;
        cylinder = 0;
        axis = 0;
        return true;
    }
    std::int16_t first = 0, second = 0;
    if (!clockDegrees(clock[0], first) || !clockDegrees(clock[1], second))
        return false;
    hasCylinder = true;
    cylinder = -std::fabs(powers[0] - powers[1]);
    if (powers[0] > powers[1]) {
        sphere = powers[0];
        axis = second;
    } else {
        sphere = powers[1];
        axis = first;
    }
    equivalent = cylinder * 0.5 + sphere;
    return true;
}

}  // namespace vistrel
