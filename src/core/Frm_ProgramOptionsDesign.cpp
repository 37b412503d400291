// How the options screen is drawn, and the designed contents of its fields:
// the default tolerances, the Add chart, the network path and the printer.

#include "Frm_ProgramOptions.h"
#include "screen/Layout.h"

namespace vistrel {

void Frm_ProgramOptions::design()
{
    setCaption("Program Options");
    setGeometry(0, 0, 12600, 9350);

    // Tolerances.
    place(Frm_Tolerances, nullptr, 120, 60, 6600, 3000, "Tolerances");
    struct Item {
        Label& label;
        TextBox& box;
        const char* caption;
        const char* text;
    };
    const Item items[] = {
        {Lbl_Max_Sphere_Overage, Txt_Max_Sphere_Overage, "1.    Maximum Sphere Overage allowed to make the list:",
            "1.00"},
        {Lbl_Max_Cylinder_Overage, Txt_Max_Cylinder_Overage,
            "2.     Maximum  Cylinder Over- age allowed to make the list:", "1.00"},
        {Lbl_Axis_Deviation, Txt_Axis_Deviation, "3.            (+ or -) Axis Deviation allowed to make the list:",
            "15"},
        {Lbl_Max_Cylinder, Txt_Max_Cylinder, "4.     Maximum Allowed Cylinder when NO Patient Astigmatism:", ".5"},
        {Lbl_Min_Sphere, Txt_Min_Sphere, "5.   Minimum Patient Sphere Value when above parameter is met:", "4.00"},
        {Lbl_CutBack, Txt_CutBack, "6.   Amount to Cut-Back Cylinder             each time:", "0.25"},
    };
    int y = 270;
    for (const Item& item : items) {
        place(item.label, &Frm_Tolerances, 120, y + 30, 5160, 255, item.caption);
        place(item.box, &Frm_Tolerances, 5340, y, 1080, 315);
        item.box.setText(item.text);
        item.box.setBackColor(colors::White);
        y += 360;
    }
    place(Cmd_RestoreDefaults, &Frm_Tolerances, 120, 2460, 1020, 420, "&Restore Defaults");
    place(Cmd_ExactMatch, &Frm_Tolerances, 1170, 2460, 1020, 420, "Exact Match", "Click to force an exact match.");
    place(Cmd_DefaultsDev2, &Frm_Tolerances, 2220, 2460, 1020, 420, "Defaults /2");
    place(Cmd_DefaultsDev4, &Frm_Tolerances, 3270, 2460, 1020, 420, "Defaults /4");
    place(Cmd_DefaultsTimes2, &Frm_Tolerances, 4320, 2460, 1020, 420, "Defaults *2");
    place(Cmd_MAX, &Frm_Tolerances, 5370, 2460, 1020, 420, "MAX");
    for (CommandButton* b : {&Cmd_ExactMatch, &Cmd_DefaultsDev2, &Cmd_DefaultsDev4, &Cmd_DefaultsTimes2, &Cmd_MAX})
        b->setBackColor(colors::Cyan);
    Cmd_RestoreDefaults.setBackColor(colors::Yellow);

    // Matching.
    place(Frm_Match, nullptr, 120, 3120, 6600, 1980, "Matching");
    place(Chk_IncludeEither, &Frm_Match, 120, 240, 6300, 255, "Male && Female searches should include \"Either\".");
    place(Opt_LeftOnly, &Frm_Match, 120, 510, 3600, 255, "Match Left Only  (BLIND in right eye)");
    place(Opt_RightOnly, &Frm_Match, 120, 780, 3600, 255, "Match Right Only (BLIND in left eye)");
    place(Opt_MatchBoth, &Frm_Match, 120, 1050, 3600, 255, "Match Both Equally");
    Opt_MatchBoth.selectQuietly();
    place(Chk_MatchReadingAlso, &Frm_Match, 3840, 510, 2640, 255, "Match Reading Power");
    place(Chk_MatchReadingOnly, &Frm_Match, 3840, 780, 2640, 255, "Match Reading Power ONLY",
        "Ignore value of rest of lens.");
    place(Chk_NOSpherical_Equivalent, &Frm_Match, 120, 1350, 6300, 255, "NO match on spherical equivalence.");
    place(Chk_NOFocometer, &Frm_Match, 120, 1620, 6300, 255, "Disable Focometer Support.(*Gone*)");
    Chk_NOFocometer.setValue(1);

    // Varn rules.
    place(Frm_VarnRules, nullptr, 120, 5160, 6600, 1500, "Varn Rules");
    place(Chk_VarnRule, &Frm_VarnRules, 120, 240, 2400, 255, "Enable Varns Rules.");
    place(Cmd_HelpWithRule, &Frm_VarnRules, 2640, 210, 1680, 330, "Help with Rule");
    place(Chk_NoOverplus, &Frm_VarnRules, 120, 540, 2100, 255, "NO Over     plus.");
    place(Chk_NoOverCylinder, &Frm_VarnRules, 2280, 540, 2100, 255, "NO Over Cylinder.");
    place(Chk_NoOverMinus, &Frm_VarnRules, 120, 840, 2100, 255, "No Over Minus if:");
    place(Txt_YearsOverMinus, &Frm_VarnRules, 2280, 810, 540, 315);
    Txt_YearsOverMinus.setText("35");
    place(Lbl_YearsOrGreater, &Frm_VarnRules, 2880, 840, 1200, 255, "or greater");
    place(Chk_UpTo50, &Frm_VarnRules, 120, 1140, 6300, 255, "Up to -.50 Over Cylinder with Varns Rules");

    // Station.
    place(Frm_Station, nullptr, 6840, 60, 5640, 4560, "Station");
    const std::pair<CheckBox*, const char*> boxes[] = {
        {&Chk_Diagnostic, "Set Program  diagnostic  mode."},
        {&Chk_RefreshAddRemove, "Refresh screen upon Add/Remove"},
        {&Chk_AutoSearch, "Automatic Search when changed."},
        {&Chk_AutoSearchWhenRead, "Enable automatic search when read."},
        {&Chk_ConfidenceLevel, "Display Confidence Level."},
        {&Chk_PrintPrescription, "Print patient prescription on picklist."},
        {&Chk_PrintGlassesPrescriptions, "Print Glasses List Prescriptions."},
        {&Chk_ShowLevel, "Show Correction Intensity Levels for both eyes."},
        {&Chk_EnableHome, "Enable HOME button (   ) on main screen."},
        {&Chk_EnableNetJournal, "Enable a Journal file on the network."},
    };
    y = 240;
    for (auto [box, caption] : boxes) {
        place(*box, &Frm_Station, 120, y, 5400, 255, caption);
        y += 285;
    }
    place(Frm_NetworkJournalPath, &Frm_Station, 120, y, 5400, 660, "Path to Network Journal File");
    place(Txt_NetworkJournalPath, &Frm_NetworkJournalPath, 120, 240, 5160, 315);
    Txt_NetworkJournalPath.setText("C:\\NetworkJournal");
    Frm_NetworkJournalPath.setVisible(false);
    place(Img_PointPath, &Frm_Station, 5160, y - 285, 240, 240, ">");
    Img_PointPath.setVisible(false);
    y += 720;
    place(Lbl_HighestInventoryNumber, &Frm_Station, 120, y + 30, 3240, 255, "Highest Allowable Inventory Number:");
    place(Txt_HighestInventoryNumber, &Frm_Station, 3420, y, 1080, 315, {},
        "Highest Allowable Inventory Number allows operation on smaller inventoryi files.");
    Txt_HighestInventoryNumber.setText("32000");
    y += 390;
    place(Lbl_ChoosePrinter, &Frm_Station, 120, y + 30, 1200, 255, "Use Printer:");
    place(Cmb_ChoosePrinter, &Frm_Station, 1320, y, 4080, 315);
    Cmb_ChoosePrinter.setText("Default");

    // Obsolete screens.
    place(Frm_RemoveForms, nullptr, 6840, 4680, 5640, 600, "Remove Obsolete Forms");
    place(Chk_ReadingGlasses, &Frm_RemoveForms, 120, 270, 2400, 255, "Reading Glasses.");
    place(Chk_LensFrames, &Frm_RemoveForms, 2640, 270, 2400, 255, "Lens && Frames");

    // Add chart.
    place(Frm_BifocalAdd, nullptr, 6840, 5340, 5640, 2580, "BiFocal Add Chart");
    place(Lbl_ChartFrom, &Frm_BifocalAdd, 240, 240, 900, 225, "From age");
    place(Lbl_ChartTo, &Frm_BifocalAdd, 1440, 240, 900, 225, "To age");
    place(Lbl_ChartAdd, &Frm_BifocalAdd, 2640, 240, 900, 225, "Add");
    static const char* const chart[8][3] = {{"0", "37", "0.00"}, {"38", "43", "1.00"}, {"44", "47", "1.50"},
        {"48", "55", "2.00"}, {"56", "99", "2.50"}, {"100", "101", "2.50"}, {"102", "103", "2.50"},
        {"104", "105", "2.50"}};
    for (int i = 0; i <= 7; ++i) {
        place(Txt_From[i], &Frm_BifocalAdd, 240, 480 + i * 255, 1080, 255);
        place(Txt_To[i], &Frm_BifocalAdd, 1440, 480 + i * 255, 1080, 255);
        place(Txt_Add[i], &Frm_BifocalAdd, 2640, 480 + i * 255, 1080, 255);
        Txt_From[i].setText(chart[i][0]);
        Txt_To[i].setText(chart[i][1]);
        Txt_Add[i].setText(chart[i][2]);
    }

    // Autorefractor.
    place(Chk_EnableAutorefractorDataCapture, nullptr, 120, 6720, 6600, 255, "Enable Autorefractor Data Capture");
    place(Lbl_AutorefractorType, nullptr, 120, 7020, 6600, 255);
    Lbl_AutorefractorType.setVisible(false);
    place(Frm_Autorefractors, nullptr, 120, 9360, 7920, 1440, "Autorefractor");
    struct Model {
        OptionButton& option;
        const char* caption;
    };
    const Model models[] = {{Opt_NikonRetinomax, "Nikon Retinomax"}, {Opt_NikonRetinomax2, "Retinomax 2"},
        {Opt_NikonRetinomax3, "Retinomax 3"}, {Opt_Humphrey597, "Humphrey 597"},
        {Opt_WelchAllynSuresight, "Welch Allyn Suresight"}, {Opt_MarcoNidekArk, "Marco Nidek ARK-20/30"},
        {Opt_CanonRK2, "Canon RK-2"}, {Opt_KR_3000_7000, "Topcon KR-3000-7000"}, {Opt_Burton2010, "Burton Velo 20/10"},
        {Opt_ShinNippon8001, "Shin Nippon 8001"}, {Opt_Reichert_RK600, "Reichert RK-600"},
        {Opt_NoAutorefractor, "None"}};
    for (int k = 0; k < 12; ++k)
        place(models[k].option, &Frm_Autorefractors, 120 + (k % 3) * 2580, 240 + (k / 3) * 285, 2520, 255,
            models[k].caption);
    Opt_NoAutorefractor.selectQuietly();
    place(Frm_ComPort, nullptr, 8160, 9360, 4320, 1440, "Serial port");
    // "None" takes two cells of the grid, the ports 1 to 16 one each.
    for (int n = 0; n <= 16; ++n) {
        const int cell = n == 0 ? 0 : n + 1;
        place(Opt_Com[n], &Frm_ComPort, 120 + (cell % 6) * 690, 240 + (cell / 6) * 330, n == 0 ? 1350 : 660, 285,
            n == 0 ? "None" : std::to_string(n));
    }
    Opt_Com[0].selectQuietly();

    place(Cmd_Continue, nullptr, 7440, 8040, 2400, 480, "&Continue", "Use these settings for this run.");
    place(Cmd_SaveContinue, nullptr, 9960, 8040, 2520, 480, "&Save && Continue",
        "Use these settings and save them for the next start.");
}

}  // namespace vistrel
