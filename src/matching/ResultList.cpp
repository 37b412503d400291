// The candidates as text rows of the sorted result list: the row's text,
// closeness first and bag number second, is the ranking.

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "core/Text.h"
#include "platform/Platform.h"

namespace vistrel {

std::string genderCodeText(std::int16_t code)
{
    switch (code) {
    case 0:
        return " E";
    case 1:
        return " F";
    case 2:
        return " M";
    case 3:
        return " C";
    default:
        return " E";
    }
}

// 0 gives " 0.0", 0.5 " 0.5", 4 " 4.0"; 10 and 12.5 are left as they are.
std::string Frm_Vistrel::ClosenessText(double closeness) const
{
    std::string t = StrTrimmed(closeness);
    if (t.size() == 1)
        t = " " + t + ".0";
    if (t.size() == 2 && closeness < 1)
        t = " 0" + t;
    if (t.size() == 3)
        t = " " + t;
    return t;
}

std::string Frm_Vistrel::EyeBlock(double sphere, double cylinder, std::int16_t axis, double add) const
{
    std::string block;
    block.reserve(40);
    block += Format(sphere, "#0.00");
    block += ' ';
    block += Format(cylinder, "#0.00");
    block += ' ';
    block += Format(axis, "000");
    block += ' ';
    block += Format(add, "#0.00");
    block += '(';
    block += Format(sphere + cylinder / 2 + add, "#0.00");
    return block;
}

void Frm_Vistrel::AddResultRow(std::int16_t i, double closeness)
{
    const auto r = static_cast<size_t>(i - 1);
    const std::string t = ClosenessText(closeness);
    const std::string n = Format(Inv_Number[r], "00000");
    const std::string rejects = Str(Inv_RejectCount[r]);
    const std::string flags = TrueFalse(Inv_Sunglasses[r], "S") + TrueFalse(Inv_Reading[r], "R")
        + TrueFalse(Inv_Progressive[r], "P") + TrueFalse(Inv_Bifocal[r], "B");
    const std::string gender = genderCodeText(Inv_Gender[r]);
    const std::string leftBlock = EyeBlock(Inv_LeftSphere[r], Inv_LeftCylinder[r], Inv_LeftAxis[r], Inv_LeftAdd[r]);
    const std::string rightBlock =
        EyeBlock(Inv_RightSphere[r], Inv_RightCylinder[r], Inv_RightAxis[r], Inv_RightAdd[r]);
    const std::string& firstBlock = FlipLeftFirst ? leftBlock : rightBlock;
    const std::string& secondBlock = FlipLeftFirst ? rightBlock : leftBlock;
    const std::string firstFlag = (FlipLeftFirst ? LeftMatchFlag : RightMatchFlag).string();
    const std::string secondFlag = (FlipLeftFirst ? RightMatchFlag : LeftMatchFlag).string();
    const bool firstEyeOnly = FlipLeftFirst ? LeftOnlyValue : RightOnlyValue;

    std::string row;
    if (MatchBothValue) {
        row = t + " " + n + " " + firstBlock + ")" + "    " + Inv_PD[r] + "  " + rejects + "  " + firstFlag + "    | "
            + " " + secondBlock + ")      (" + flags + ")    " + gender + " " + secondFlag;
    } else if (firstEyeOnly) {
        row = t + " " + n + " " + firstBlock + ")" + "    " + Inv_PD[r] + "  " + rejects + "  " + firstFlag
            + "    |  ----------- BLIND Eye. -----------  (" + flags + ")   " + gender;
    } else {
        row = t + " " + n + "   -------------- BLIND Eye. ---------- " + rejects + " ----------" + "    | " + " "
            + secondBlock + ")      (" + flags + ")    " + gender + " " + secondFlag;
    }
    Lst_LeftSelection.addItem(row, i);
}

void Frm_Vistrel::WriteDiagnostic(std::int16_t i)
{
    const auto r = static_cast<size_t>(i - 1);
    FileHandles& files = station().files();
    const int handle = DiagnosticFileNum != 0 ? DiagnosticFileNum : files.freeFile();
    if (!files.open(handle, platform().nativePath(PathIn(InventoryLocation, "DiagnosticFile.txt")),
            FileHandles::Mode::Append))
        return;
    auto d = [](double v) { return Format(v, "#0.00"); };
    if (DiagnosticHeaderPending) {
        files.printLine(handle,
            "Prescription: ,Left= ,," + d(LeftSphereRead.number()) + "," + d(LeftCylinderRead.number()) + ","
                + Format(LeftAxisRead, "#000") + "," + d(LeftReadingPower.number()) + ",[Equiv=" + d(LeftSphereEqu)
                + "],Right= ," + d(RightSphereRead.number()) + "," + d(RightCylinderRead.number()) + ","
                + Format(RightAxisRead, "#000") + "," + d(RightReadingPower.number()) + ",[Equiv="
                + d(RightSphereEqu) + "]");
        files.printLine(handle, "--Parameters: Over/Under,,,(A) Sphere=,," + Max_Sphere_OverageValue
                + ",,(B) Cylinder=,," + Max_Cylinder_OverageValue + ",(C) Axis=,," + Axis_DeviationValue);
        files.printLine(handle, "--Parameters (Cont):,,,(D) Max NO Astig Cylinder=,,," + Max_CylinderValue
                + ",(E) Min Sphere for D=,," + Min_SphereValue + ",");
        files.printLine(handle, "--Match Flags:,,,(F) Left first=," + TrueFalse(LeftOnlyValue, "1/0")
                + ",,(G) Right first=,,," + TrueFalse(RightOnlyValue, "1/0") + ",(H) Both=,"
                + TrueFalse(MatchBothValue, "1/0") + ",(I) Reading Power Also=,,," + Str(MatchReadingAlsoValue)
                + ",(J) Reading Power ONLY=,,," + Str(MatchReadingOnlyValue));
        DiagnosticHeaderPending = false;
    }
    files.printLine(handle,
        "--Choice: ,Left= ," + Format(Inv_Number[r], "00000") + "," + d(Inv_LeftSphere[r]) + ","
            + d(Inv_LeftCylinder[r]) + "," + Format(Inv_LeftAxis[r], "000") + "," + d(Inv_LeftAdd[r]) + ","
            + LeftMatchFlag.string() + ",Right: ," + d(Inv_RightSphere[r]) + "," + d(Inv_RightCylinder[r]) + ","
            + Format(Inv_RightAxis[r], "000") + "," + d(Inv_RightAdd[r]) + "," + RightMatchFlag.string()
            + ",Flags: ,Sunglasses= ," + TrueFalse(Inv_Sunglasses[r], "S") + ", Reading= ,"
            + TrueFalse(Inv_Reading[r], "R") + ", Progressive= ," + TrueFalse(Inv_Progressive[r], "P")
            + ", Bi-Trifocal= ," + TrueFalse(Inv_Bifocal[r], "B"));
    files.close(handle);
}

}  // namespace vistrel
