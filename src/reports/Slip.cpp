// The slip: one sheet for the person and the dispensary, printed as running
// text, line after line. Who was measured, the prescription searched for,
// the settings of the search, the pairs that came out (lowest score first)
// and the advice. The printer's own failures are its business: the slip
// goes on step by step and is never retried.

#include "SlipWriter.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/DateTexts.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Platform.h"
#include "wizard/Frm_Advisor.h"

#include <cstdio>
#include <utility>

namespace vistrel {

namespace {

// The device's title on the slip; a model without a row has none, and
// its title line shows only the dashes around it.
std::string DeviceTitle(const std::string& type)
{
    static const std::pair<const char*, const char*> titles[] = {
        {"NIKON RETINOMAX", "--- Nikon Retinomax ---"},
        {"NIKON RETINOMAX2", "----- Retinomax 2 -----"},
        {"NIKON RETINOMAX3", "----- Retinomax 3 -----"},
        {"HUMPHREY 597", " Humphrey 597 "},
        {"WELCHALLYN SURESIGHT", " Welch Allyn Suresight "},
        {"MARCONIDEK ARK-20/30", " Marco Nidek ARK-20/30 "},
        {"CANON RK-2", "------ CANON RK-2 -----"},
        {"TOPCON KR-3000-7000", "- TOPCON KR-3000-7000 -"},
        {"BURTON VELO 20-10", "-- BURTON VELO 20-10 --"},
        {"REICHERT RK600", "-- Reichert RK600 --"},
        {"NONE", "-----------------------"},
    };
    const std::string upper = UCase(type);
    for (const auto& [model, title] : titles)
        if (upper == model)
            return title;
    return {};
}

// "11-21-2026": month, day and four year digits.
std::string SlipDate(const DateTime& when)
{
    char text[16];
    std::snprintf(text, sizeof text, "%02d-%02d-%04d", when.month, when.day, when.year);
    return text;
}

// One eye's measured values as the device read them, beside the wizard's.
std::string ReadingLine(const char* label, Frm_Autorefractor& a, int index)
{
    return std::string(label) + Format2(Val(a.Txt_AutoSphere[index].text())) + " "
        + Format2(Val(a.Txt_AutoCylinder[index].text())) + " x" + Trim(a.Txt_AutoAxis[index].text());
}

// One eye's row of the prescription block: sphere, cylinder, axis and Add
// in columns, then the confidence or the spherical equivalent.
std::string PrescriptionRow(const char* label, const Frm_Vistrel::EyeEntry& eye, const TextBox& confidence,
    bool confidenceShown)
{
    const double sphere = Val(eye.sphere.text());
    const double cylinder = Val(eye.cylinder.text());
    const std::string axisText = Trim(eye.axis.text());
    const double add = Val(eye.add.text());

    std::string row = label + PadLeft(Format2(sphere), 5) + " ";
    row += cylinder == 0 ? std::string(5, ' ') : PadLeft(Format2(cylinder), 5);
    row += Val(eye.axis.text()) == 0 ? std::string(" x00  ") : PadRight(" x" + axisText + " ", 6);
    // The columns behind a one-digit axis stand one place to the right.
    if (axisText.size() == 1)
        row += " ";
    row += add == 0 ? std::string(4, ' ') : PadLeft(Format2(add), 4);
    if (confidenceShown) {
        row += " " + confidence.text();
    } else {
        const double equivalent = sphere + 0.5 * cylinder;
        if (equivalent < 0)
            row += " ";
        row += " " + Format2(equivalent);
    }
    return row;
}

// The score as the slip shows it: "3.0", "0.5", "1.25".
std::string ScoreText(double score)
{
    std::string text = StrTrimmed(score);
    if (text.size() == 1)
        text += ".0";
    else if (text.size() == 2)
        text.insert(0, "0");
    return text;
}

std::string GenderColumn(std::int16_t gender)
{
    switch (gender) {
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

std::string PairEyeLine(const char* label, double sphere, double cylinder, double axis, double add)
{
    return std::string(label) + Format(sphere, "#0.00") + "/" + Format(cylinder, "#0.00") + "/" + Format(axis, "#00")
        + " Add:" + Format(add, "#0.00") + " EQ:" + Format(sphere + 0.5 * cylinder, "#0.00");
}

}  // namespace

void Frm_Vistrel::Cmd_PrintList_Click()
{
    Frm_ProgramOptions& opt = options();
    SlipWriter slip(platform().printer());

    // 1, 2. The head: the person, the day, the device.
    const std::string title = DeviceTitle(AutoRefractorType);
    slip.bold(true).font("MS Sans Serif");
    if (Val(Txt_Age.text()) == 0)
        slip.size(14).line("       Patient #: " + Txt_PersonNumber.text());
    else
        slip.size(12).line("Patient #:" + Txt_PersonNumber.text() + "  Age:" + Txt_Age.text());
    platform().doEvents();
    const DateTime now = platform().now();
    slip.size(8).line("    Date: " + SlipDate(now) + "  Time: " + TimeText(now));
    slip.size(10).line("-------" + title + "---------");

    // 3. The prescription searched for, and what the device read where the
    // wizard changed it.
    if (Chk_Prescription.value() == 1) {
        const bool confidence = opt.Chk_ConfidenceLevel.value() == 1;
        slip.size(8).font("Courier New").bold(true);
        Frm_Advisor& wizard = advisor();
        if (wizard.WizardLeftDone || wizard.WizardRightDone) {
            Frm_Autorefractor& a = autorefractor();
            slip.line("Wizard adjusted from:");
            slip.line(ReadingLine("  R(OD): ", a, 1));
            slip.line(ReadingLine("  L(OS): ", a, 0));
            slip.line("to below for a match.");
        }
        slip.line(confidence ? "EYE   SPH  CYL AXIS ADD  CL" : "EYE   SPH  CYL AXIS ADD  SE");
        slip.size(7);
        slip.line(Chk_BlindRight.value() == 1
                ? std::string("R(OD):  --- B L I N D ---")
                : PrescriptionRow("R(OD):", eyeEntry(false), Txt_RightConfidenceValue, confidence));
        slip.line(Chk_BlindLeft.value() == 1
                ? std::string("L(OS):  --- B L I N D ---")
                : PrescriptionRow("L(OS):", eyeEntry(true), Txt_LeftConfidenceValue, confidence));
    }

    // 4. The settings of the search.
    slip.size(10).font("MS Sans Serif").bold(true).line("---------------- Settings --------------------");
    slip.bold(false);
    std::string matched = Chk_NOEquiv.value() == 1 ? "Matched" : "Equivalent";
    const std::pair<const CommandButton*, const char*> presets[] = {
        {&Cmd_2Exact_Match, " Exactly."},
        {&CMD_2DefDev4, " Default/4 setting."},
        {&CMD_2DefDev2, " Default/2 setting."},
        {&Cmd_Default, " Default setting."},
        {&Cmd_2DefTimes2, " Default*2 setting."},
        {&Cmd_MAX, " MAX setting."},
    };
    for (const auto& [button, phrase] : presets)
        if (button->backColor() == colors::Yellow)
            matched += phrase;
    slip.line(matched);
    if (opt.Chk_VarnRule.value() == 1 && (opt.Chk_NoOverplus.value() == 1 || opt.Chk_NoOverCylinder.value() == 1))
        slip.line("VARN RULE in effect for:");
    if (opt.Chk_NoOverplus.value() == 1)
        slip.line(" NO Over Plus (+) sphere.");
    if (opt.Chk_NoOverCylinder.value() == 1)
        slip.line(" NO over cylinder.");
    if (opt.Chk_UpTo50.value() == 1)
        slip.line(" Cylinder Over up to .50.");
    if (opt.Chk_NoOverMinus.value() == 1)
        slip.line(" NO over Minus (-) sphere. >" + opt.Txt_YearsOverMinus.text() + " Yrs.");
    if (Chk_OnlyBifocals.value() == 1)
        slip.line("Matched ADD Power Only.");
    else if (Chk_PlusBifocals.value() == 1)
        slip.line("Matched ADD Power Also.");

    // 5. A cut-back trial, with the prescription it started from. The left
    // eye without a trial of its own bears the right eye's label and axis,
    // as the slip always had it.
    const double leftCuts = Val(Txt_LeftCutBackCount.text());
    const double rightCuts = Val(Txt_RightCutBackCount.text());
    if (leftCuts != 0 || rightCuts != 0) {
        slip.line("Cutback: (L/R) =" + Str(leftCuts) + "/" + StrTrimmed(rightCuts) + " Originally was:");
        slip.bold(true).size(10).font("Courier New");
        if (Chk_BlindRight.value() == 1)
            slip.line("   R(OD):  --- B L I N D ---");
        else if (rightCuts != 0)
            slip.line("   R(OD):" + Txt_Sphere_RightSave + " " + Trim(Txt_Cylinder_RightSave) + "x"
                + Trim(Txt_Axis_Right.text()));
        else
            slip.line("   R(OD):" + Txt_Sphere_Right.text() + " " + Trim(Txt_Cylinder_Right.text()) + "x"
                + Trim(Txt_Axis_Right.text()));
        if (Chk_BlindLeft.value() == 1)
            slip.line("   L(OS):  --- B L I N D ---");
        else if (leftCuts != 0)
            slip.line("   L(OS):" + Txt_Sphere_LeftSave + " " + Trim(Txt_Cylinder_LeftSave) + "x"
                + Trim(Txt_Axis_Left.text()));
        else
            slip.line("   R(OD):" + Txt_Sphere_Left.text() + " " + Trim(Txt_Cylinder_Left.text()) + "x"
                + Trim(Txt_Axis_Right.text()));
    }

    // 6. The results' head.
    slip.bold(true).font("MS Sans Serif").size(10).line("-------------------------------------------------------------");
    slip.size(12).bold(false);
    slip.size(13).line("  #   Lcn#  (#Rej)   Flags");

    // 7, 8. The pairs, by score in tenths, lowest first, the list's order
    // holding within a tenth; as many as the operator asked for, one at least.
    if (FoundListCount != 0) {
        const double wanted = Val(Txt_PrintNr.text());
        const bool withPrescriptions = opt.Chk_PrintGlassesPrescriptions.value() == 1;
        int printed = 1;
        bool done = false;
        for (int level = 1; level <= 500 && !done; ++level) {
            for (int k = 0; k < FoundListCount && !done; ++k) {
                if (Int((Found_Score[k] + 0.05) * 10) != level)
                    continue;
                slip.font("MS Sans Serif").size(13).bold(false);
                const std::string gender = GenderColumn(Found_Gender[k]);
                std::string flags = Found_Bifocal[k] ? "-B" : " ";
                if (Found_Progressive[k])
                    flags = "-P";
                const auto r = static_cast<std::size_t>(Found_Index[k] - 1);
                slip.text(ScoreText(Found_Score[k]) + "  " + Format(Found_Number[k], "0000"));
                // A pair with rejections shows their number and no flags.
                if (Inv_RejectCount[r] > 0)
                    slip.text("    (" + Format(Inv_RejectCount[r], "#0") + ")       " + gender);
                else
                    slip.text(std::string("       ") + "        " + gender + flags);
                slip.line(" ");
                if (withPrescriptions) {
                    slip.font("Small Fonts").size(7).bold(true);
                    slip.line(Chk_BlindRight.value() == 1
                            ? std::string("              R(0D):  ----- Blind -----")
                            : PairEyeLine("     R(0D): ", Inv_RightSphere[r], Inv_RightCylinder[r],
                                  Inv_RightAxis[r], Inv_RightAdd[r]));
                    slip.line(Chk_BlindLeft.value() == 1
                            ? std::string("              L(0S):  ----- Blind -----")
                            : PairEyeLine("     L(0S):  ", Inv_LeftSphere[r], Inv_LeftCylinder[r], Inv_LeftAxis[r],
                                  Inv_LeftAdd[r]));
                }
                ++printed;
                done = printed > wanted;
            }
        }
    } else {
        slip.line(" ");
        slip.line("   ------------------------------");
        slip.line("   NO MATCH FOUND!");
        slip.line("   ------------------------------");
        slip.line(" ");
    }

    // 9. The advice.
    slip.font("MS Sans Serif").size(12).bold(true).line("  ");
    slip.line("-------- Dessa Says --------");
    slip.font("MS Serif").size(7).bold(false);
    for (std::size_t i = 1; i <= 10; ++i)
        if (!AdviceLines[i].empty())
            slip.line(AdviceLines[i]);

    // 10, 11. The signature and the program's version.
    slip.size(12).bold(true).font("MS Sans Serif");
    slip.line("--- Dr Dessa Varn, OD. ---");
    slip.line("-------- Calverley, Qd. -------");
    slip.size(8);
    slip.line(" ");
    slip.line(" ----------------------------------");
    slip.line(" Program Version: " + std::to_string(VISTREL_VERSION_MAJOR) + "." + std::to_string(VISTREL_VERSION_MINOR)
        + "." + std::to_string(VISTREL_VERSION_PATCH));
    slip.line(" ----------------------------------");
    slip.line(" ");
    slip.line(" ");
    slip.finish();
}

}  // namespace vistrel
