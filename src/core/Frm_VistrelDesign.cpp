// How the main screen is drawn: captions, tool tips, places (in twips, 15
// to a pixel) and the designed contents of its fields. The left eye stands
// on the left, the right eye on the right; reversing the screen swaps the
// places of each pair.

#include "Frm_Vistrel.h"
#include "screen/Layout.h"

#include <algorithm>
#include <iterator>

namespace vistrel {

namespace {

const Font kFixed{"Courier New", 8, false};
const Font kFixedBold{"Courier New", 9, true};
const Font kWarning{"MS Sans Serif", 12, true};

}  // namespace

void Frm_Vistrel::design()
{
    setCaption("Vistrel - Eyeglass Matching Station");
    setGeometry(0, 0, 14295, 10830);

    // Menu bar.
    GenerateFileReports.setCaption("&File");
    SaveDeletedRejectedInventory.setCaption("&Save Deleted / Rejected Inventory");
    SaveUNMatchedMeasurementsFile.setCaption("Save &Un-Matched Measurements File");
    LoadPreviousAutorefractorMeasurements.setCaption("&Load Previous Autorefractor Measurements");
    GenerateReport.setCaption("&Reports");
    DeletedReport.setCaption("&Deleted Item Report");
    RejectedReport.setCaption("&Rejected Item Report");
    VacantLocationsReport.setCaption("&Vacant Location Report (Includes Deleted items)");
    DisplayNoMatchMeasurements.setCaption("&Display Measurements without a match");
    SetOptions.setCaption("&Options");
    HelpDropdown.setCaption("&Help");
    HelpProgram.setCaption("&Help");
    HelpReportsDropdown.setCaption("Help &Reports Dropdown");
    HelpFileDropdown.setCaption("Help &File Dropdown");
    HelpPrescriptionModificationWizard.setCaption("Help &Prescription Modification Wizard");
    EnableDisablePracticePlay.setCaption("&Enable / Disable Practice Play");
    TellAbout.setCaption("&About");
    UpdateProgram.setCaption("&Update Program");
    AutoRefractorDataCapture.setCaption("&Training: Show autorefractor Data Capture Window");
    ExitProgram.setCaption("&Exit");

    // ---- Person ----
    place(Frm_Person, nullptr, 60, 0, 3360, 1740, "Person");
    place(Lbl_PersonNumber, &Frm_Person, 120, 300, 900, 255, "Person #");
    place(Txt_PersonNumber, &Frm_Person, 1020, 240, 1020, 330, {}, "Number of the person being served.");
    place(Lbl_ReadingNr, &Frm_Person, 2100, 300, 540, 255, "Rdg #");
    place(Txt_ReadingNr, &Frm_Person, 2640, 240, 600, 330, {}, "Reading number sent by the autorefractor.");
    Lbl_ReadingNr.setVisible(false);
    Txt_ReadingNr.setVisible(false);
    CommandButton* personUp[] = {
        &Cmd_Patient1Up, &Cmd_Patient10Up, &Cmd_Patient100Up, &Cmd_Patient1000Up, &Cmd_Patient10000Up};
    CommandButton* personDown[] = {
        &Cmd_Patient1Down, &Cmd_Patient10Down, &Cmd_Patient100Down, &Cmd_Patient1000Down, &Cmd_Patient10000Down};
    const char* steps[] = {"1", "10", "100", "1K", "10K"};
    for (int k = 0; k < 5; ++k) {
        place(*personUp[k], &Frm_Person, 120 + k * 630, 630, 600, 270, std::string("+") + steps[k]);
        place(*personDown[k], &Frm_Person, 120 + k * 630, 915, 600, 270, std::string("-") + steps[k]);
    }
    place(Lbl_Age, &Frm_Person, 120, 1320, 540, 255, "Age");
    Lbl_Age.setBackColor(colors::Cyan);
    place(Txt_Age, &Frm_Person, 720, 1260, 660, 330, {}, "Age of the person in years.");
    place(Cmd_Age1Up, &Frm_Person, 1440, 1260, 420, 330, "+1");
    place(Cmd_Age1Down, &Frm_Person, 1875, 1260, 420, 330, "-1");
    place(Cmd_Age10Up, &Frm_Person, 2310, 1260, 450, 330, "+10");
    place(Cmd_Age10Down, &Frm_Person, 2775, 1260, 450, 330, "-10");

    // ---- Tolerance presets ----
    place(Frm_Tolerance, nullptr, 60, 1800, 3360, 1320, "Tolerances (to make the list)");
    place(Cmd_Default, &Frm_Tolerance, 120, 270, 1020, 420, "Default", "Click to Select Default option values.");
    place(Cmd_2Exact_Match, &Frm_Tolerance, 1170, 270, 1020, 420, "Exact Match",
        "Click to match to match the prescription exactly.");
    place(Cmd_MAX, &Frm_Tolerance, 2220, 270, 1020, 420, "Max");
    place(CMD_2DefDev2, &Frm_Tolerance, 120, 750, 1020, 420, "D/2",
        "Click to Select Default option values divided by 2.");
    place(CMD_2DefDev4, &Frm_Tolerance, 1170, 750, 1020, 420, "D/4",
        "Click to Select Default option values divided by 4.");
    place(Cmd_2DefTimes2, &Frm_Tolerance, 2220, 750, 1020, 420, "D*2",
        "Click to Select Default option values times 2.");
    for (CommandButton* b : {&Cmd_2Exact_Match, &CMD_2DefDev2, &CMD_2DefDev4, &Cmd_2DefTimes2, &Cmd_MAX})
        b->setBackColor(colors::Cyan);
    Cmd_Default.setBackColor(colors::Yellow);

    place(Frm_CutBack, nullptr, 60, 3180, 3360, 1200, "Cut-Back both eyes");
    place(Cmd_BothCutBackSearch, &Frm_CutBack, 120, 270, 1560, 540, "Cut-Back BOTH && Search",
        "Cut back the cylinder by .25 on both left and right lens and automatically search.");
    place(Cmd_BothReset, &Frm_CutBack, 1740, 270, 1500, 540, "Reset BOTH Cut-Backs");
    place(Lbl_CutBackCounts, &Frm_CutBack, 120, 870, 1500, 255, "Cut-backs L / R:");
    place(Txt_LeftCutBackCount, &Frm_CutBack, 1680, 840, 600, 300, {},
        "Number of times left cylinder has been cut back.");
    place(Txt_RightCutBackCount, &Frm_CutBack, 2340, 840, 600, 300, {},
        "Number of times right cylinder has been cut back.");
    Txt_LeftCutBackCount.setText("000");
    Txt_RightCutBackCount.setText("000");
    Txt_LeftCutBackCount.setLocked(true);
    Txt_RightCutBackCount.setLocked(true);

    // ---- Measurement entry: a block per eye, side by side ----
    place(Frm_LeftRight, nullptr, 3480, 0, 8400, 4380, LeftFirstHeading());
    struct EyeControls {
        Label& cover;
        Label& sphereLabel;
        TextBox& sphere;
        CommandButton& sphereUp;
        CommandButton& sphereDown;
        Label& cylinderLabel;
        TextBox& cylinder;
        CommandButton& cylinderUp;
        CommandButton& cylinderDown;
        Label& axisLabel;
        TextBox& axis;
        Label& addLabel;
        TextBox& add;
        CommandButton& addUp;
        CommandButton& addDown;
        Label& readingLabel;
        TextBox& reading;
        Label& equLabel;
        TextBox& equ;
        CheckBox& blind;
        CheckBox& dominant;
        Label& ampLabel;
        TextBox& amp;
        Label& confidenceLabel;
        TextBox& confidence;
        CommandButton& confidenceUp;
        CommandButton& confidenceDown;
        CommandButton& restore;
        Label& prescription;
        const char* eye;
        const char* side;
    };
    const EyeControls eyes[] = {
        {Lbl_LeftCover, Lbl_Sphere_Left, Txt_Sphere_Left, Cmd_SphereLeftUp, Cmd_SphereLeftDown, Lbl_Cylinder_Left,
            Txt_Cylinder_Left, Cmd_CylinderLeftUp, Cmd_CylinderLeftDown, Lbl_Axis_Left, Txt_Axis_Left, Lbl_Add_Left,
            Txt_LeftAdd, Cmd_AddLeftUp, Cmd_AddLeftDown, Lbl_ReadingPower_Left, Txt_LeftReadingPower,
            Lbl_Sphere_Equ_Left, Txt_Sphere_Equ_Left, Chk_BlindLeft, Chk_DominantLeft, Lbl_Left_Amp, Txt_Left_AMP,
            Lbl_LeftConfidenceValue, Txt_LeftConfidenceValue, Cmd_LeftConfidenceUP, Cmd_LeftConfidenceDOWN,
            Cmd_RestoreLeft, Lbl_Left_Prescription, "LEFT EYE  (OS)", "left"},
        {Lbl_RightCover, Lbl_Sphere_Right, Txt_Sphere_Right, Cmd_SphereRightUp, Cmd_SphereRightDown,
            Lbl_Cylinder_Right, Txt_Cylinder_Right, Cmd_CylinderRightUp, Cmd_CylinderRightDown, Lbl_Axis_Right,
            Txt_Axis_Right, Lbl_Add_Right, Txt_RightAdd, Cmd_AddRightUp, Cmd_AddRightDown, Lbl_ReadingPower_Right,
            Txt_RightReadingPower, Lbl_Sphere_Equ_Right, Txt_Sphere_Equ_Right, Chk_BlindRight, Chk_DominantRight,
            Lbl_Right_Amp, Txt_Right_AMP, Lbl_RightConfidenceValue, Txt_RightConfidenceValue, Cmd_RightConfidenceUP,
            Cmd_RightConfidenceDOWN, Cmd_RestoreRight, Lbl_Right_Prescription, "RIGHT EYE  (OD)", "right"},
    };
    for (int k = 0; k < 2; ++k) {
        const EyeControls& e = eyes[k];
        Frame* f = &Frm_LeftRight;
        const int x = k == 0 ? 120 : 4320;
        const std::string side = e.side;
        place(e.cover, f, x, 240, 3960, 285, e.eye);
        e.cover.setFont(Font{"MS Sans Serif", 9.75, true});
        place(e.sphereLabel, f, x, 630, 1020, 255, "Sphere");
        place(e.sphere, f, x + 1020, 570, 960, 345, {}, "Sphere of the " + side + " eye.");
        place(e.sphereUp, f, x + 2010, 570, 360, 345, "+");
        place(e.sphereDown, f, x + 2385, 570, 360, 345, "-");
        place(e.cylinderLabel, f, x, 1020, 1020, 255, "Cylinder");
        place(e.cylinder, f, x + 1020, 960, 960, 345, {}, "Cylinder of the " + side + " eye (negative).");
        place(e.cylinderUp, f, x + 2010, 960, 360, 345, "+");
        place(e.cylinderDown, f, x + 2385, 960, 360, 345, "-");
        place(e.axisLabel, f, x, 1410, 1020, 255, "Axis");
        place(e.axis, f, x + 1020, 1350, 960, 345, {}, "Axis of the " + side + " eye in degrees.");
        place(e.addLabel, f, x, 1800, 1020, 255, "Add");
        place(e.add, f, x + 1020, 1740, 960, 345, {}, "Bifocal Add of the " + side + " eye.");
        place(e.addUp, f, x + 2010, 1740, 360, 345, "+");
        place(e.addDown, f, x + 2385, 1740, 360, 345, "-");
        place(e.readingLabel, f, x, 2190, 1020, 255, "Read Pwr");
        place(e.reading, f, x + 1020, 2130, 960, 345, {},
            std::string(k == 0 ? "Left" : "Right")
                + " eye net power (NOT Add).  It is the sum of the Spherical Equivalent and the ADD.");
        place(e.equLabel, f, x, 2580, 1020, 255, "Sph. Equiv.");
        place(e.equ, f, x + 1020, 2520, 960, 345, {}, "Spherical equivalent of the " + side + " eye.");
        place(e.blind, f, x + 2880, 570, 1080, 285, "Blind");
        place(e.dominant, f, x + 2880, 870, 1080, 285, "Dominant");
        place(e.ampLabel, f, x + 2880, 1230, 540, 255, "Level");
        place(e.amp, f, x + 3420, 1170, 540, 345, {},
            "Correction intensity level needed for " + side + " eye. (Sphere-AgeAdjustment+Cylinder)/.25");
        place(e.confidenceLabel, f, x + 2880, 1590, 1080, 255, "Confidence");
        place(e.confidence, f, x + 2880, 1860, 480, 345);
        place(e.confidenceUp, f, x + 3375, 1860, 285, 345, "+");
        place(e.confidenceDown, f, x + 3675, 1860, 285, 345, "-");
        place(e.restore, f, x + 2880, 2520, 1080, 345, "Restore", "Restore to last Autorefractor's reading");
        place(e.prescription, f, x, 2940, 3960, 285);
        e.prescription.setFont(kFixedBold);
        e.amp.setLocked(true);
        e.equ.setLocked(true);
        for (Control* c : std::initializer_list<Control*>{
                 &e.confidenceLabel, &e.confidence, &e.confidenceUp, &e.confidenceDown})
            c->setVisible(false);
    }
    // The cut-back strip under the two eyes; reversing moves these places.
    place(Cmd_LeftResetCutBack, &Frm_LeftRight, 60, 3300, 1000, 960,
        std::string(20, ' ') + "Left Lens" + std::string(8, ' ') + "Reset Cut-Back");
    place(Cmd_LeftCutBackSearch, &Frm_LeftRight, 1110, 3300, 1440, 960, "Left Cut-Back && Search",
        "Click to Cut-Back left cylinder by measured amount and search.");
    place(Chk_NOEquivLeft, &Frm_LeftRight, 2600, 3300, 840, 285, "No Eq.",
        "No match on the spherical equivalent for the left eye.");
    place(Chk_NOEquivRight, &Frm_LeftRight, 4560, 3300, 840, 285, "No Eq.",
        "No match on the spherical equivalent for the right eye.");
    place(Cmd_RightCutBackSearch, &Frm_LeftRight, 5400, 3300, 1440, 960, "Right Cut-Back && Search",
        "Click to Cut-Back right cylinder by measured amount and search.");
    place(Cmd_RightResetCutBack, &Frm_LeftRight, 7200, 3300, 1000, 960,
        std::string(32, ' ') + "Right Lens Reset Cut-Back");
    place(Cmd_Flip, &Frm_LeftRight, 2700, 3780, 2600, 420, "<-Reverse->",
        "Click to Reverse Left and Right Data entry, display. and reports positioning.");

    // ---- What is searched for ----
    place(Frm_SearchFor, nullptr, 11940, 0, 2280, 4380, "Search for");
    place(Chk_PlusBifocals, &Frm_SearchFor, 90, 240, 2130, 255, "Match Add ALSO",
        "Match the reading power (Add) besides the rest.");
    place(Chk_OnlyBifocals, &Frm_SearchFor, 90, 495, 2130, 255, "Match Add ONLY",
        "Match the reading power only; ignore the rest of the lens.");
    place(Chk_NOEquiv, &Frm_SearchFor, 90, 750, 2130, 255, "NO Equiv. both eyes",
        "No match on spherical equivalence.");
    place(Chk_OverPlus, &Frm_SearchFor, 90, 1005, 2130, 255, "NO Over     plus.");
    place(Chk_Overminus, &Frm_SearchFor, 90, 1260, 1560, 255, "No Over Minus if:");
    place(Txt_YearsOverMinus, &Frm_SearchFor, 1650, 1230, 450, 300);
    Txt_YearsOverMinus.setText("35");
    place(Lbl_YearsOverMinus, &Frm_SearchFor, 1050, 1530, 1140, 225, "or greater");
    place(Frm_Gender, &Frm_SearchFor, 60, 1770, 2160, 1290, "Gender");
    // Two columns of options; the right one starts early enough for
    // "Progressive" to fit inside the frame.
    place(Opt_DoNotCare, &Frm_Gender, 45, 210, 915, 240, "Any");
    place(Opt_EitherMaleFemale, &Frm_Gender, 45, 450, 915, 240, "Adult");
    place(Opt_Female, &Frm_Gender, 960, 210, 1185, 240, "Female");
    place(Opt_Male, &Frm_Gender, 960, 450, 1185, 240, "Male");
    place(Opt_Child, &Frm_Gender, 45, 690, 915, 240, "Child");
    place(Chk_Add_Either, &Frm_Gender, 960, 690, 1185, 240, "+Either", "Male && Female searches include Either.");
    Opt_DoNotCare.selectQuietly();
    place(Frm_LensType, &Frm_SearchFor, 60, 3090, 2160, 1230, "Lens type");
    place(Opt_LensDoNotCare, &Frm_LensType, 45, 210, 915, 240, "Any");
    place(Opt_LensSingle, &Frm_LensType, 960, 210, 1185, 240, "Single");
    place(Opt_LensBiFocal, &Frm_LensType, 45, 450, 915, 240, "Bifocal");
    place(Opt_Progressive, &Frm_LensType, 960, 450, 1185, 240, "Progressive");
    place(Opt_Readers, &Frm_LensType, 45, 690, 915, 240, "Readers");
    place(Chk_AutoBypass, &Frm_LensType, 960, 690, 1185, 240, "Typed", "The prescription was typed, not captured.");
    Opt_LensDoNotCare.selectQuietly();

    // ---- Command row ----
    const int row = 4440;
    place(Cmd_Search, nullptr, 60, row, 1080, 420, "&Search", "Search the inventory for this prescription.");
    place(Cmd_CalculateDataClear, nullptr, 1170, row, 1080, 420, "&Clear", "Clear the screen for the next person.");
    place(Cmd_SetAdd, nullptr, 2280, row, 960, 420, "Set &Add", "Set the Add from the age by the Add chart.");
    place(Cmd_RunAdvisor, nullptr, 3270, row, 1080, 420, "&Wizard", "Prescription modification wizard.");
    Cmd_RunAdvisor.setBackColor(colors::Green);
    place(Cmd_PrintList, nullptr, 4380, row, 780, 420, "Print",
        "Click to print to the printer XX of the below search list plus (Check Mark) the prescription for the "
        "patient.");
    place(Txt_PrintNr, nullptr, 5190, row + 45, 450, 330, {},
        "Enter the number of lines from the below list to include in the printout.");
    Txt_PrintNr.setText("5");
    // Two lines within the height of the row's buttons.
    place(Lbl_PrintLines, nullptr, 5670, row, 1560, 420, "  lines of below list plus");
    place(Chk_Prescription, nullptr, 7230, row + 75, 300, 270);
    place(Cmd_PrescriptionSave, nullptr, 7590, row, 1680, 420, "Save UN-Matched",
        "Click to save current prescription to file as one you could NOT find in inventory.");
    place(Txt_UnmatchedCount, nullptr, 9300, row + 45, 540, 330, {}, "Measurements saved without a match.");
    Txt_UnmatchedCount.setLocked(true);
    place(Txt_Status, nullptr, 9900, row + 45, 4320, 330, {}, "What the station is doing.");
    Txt_Status.setLocked(true);

    // ---- Result list ----
    place(Lbl_SearchDataEntryArea, nullptr, 60, 4920, 14160, 240,
        "<------------------------------------------- Search Results Window ----(Click for help) "
        "--------------------------------------->");
    place(Frm_Selection, nullptr, 60, 5160, 14160, 2640, "Items Available", "Results of inventory search.");
    place(Frm_LeftSelection, &Frm_Selection, 60, 210, 14040, 2370,
        // Three blanks more than a turn back to left-first writes.
        "Left" + std::string(68, ' ') + "|  Right", "Left lens reading of glasses found.");
    struct Head {
        Label& label;
        int left;
        const char* caption;
        const char* tip;
    };
    const Head heads[] = {
        {Lbl_Closeness, 90, "#", "Closeness of match from 0 to 9"},
        {Lbl_LeftNr, 480, "Nr.", "Glasses Bag number"},
        {Lbl_LeftSphere, 960, "SPH", "Left Sphere Power"},
        {Lbl_LeftCylinder, 1500, "CYL", "Left Cylinder Astigmatism Power"},
        {Lbl_LeftAxis, 2040, "Axis", "Left Astigmatism Axis"},
        {Lbl_LeftAdd, 2460, " Add (Pwr)", "Left Progressive/Bifocal Add"},
        {Lbl_PD, 3540, "PD", "S=57, M=65, L=70 mm Pupilary Distance"},
        {Lbl_RejectNr, 3900, "Rej #", "Number of times rejected"},
        {Lbl_LeftMatchFlag, 4440, "Flag", "Matched on SPH, CYL, & Axis or matched on Spherical Equivalence."},
        {Lbl_RightSphere, 5700, "SPH", "Right Sphere Power"},
        {Lbl_RightCylinder, 6240, "CYL", "Right Cylinder Astigmatism Power"},
        {Lbl_RightAxis, 6780, "Axis", "Right Astigmatism Axis"},
        {Lbl_RightAdd, 7200, "Add (Pwr)", "Right Progressive/Bifocal Add"},
        {Lbl_LeftSunGlasses, 8340, "(S", "Sunglasses Column (S/x=Yes/No)"},
        {Lbl_LeftReading, 8580, "R", "Reading Glasses Column (R/x=Yes/No)"},
        {Lbl_LeftProgressive, 8700, "P", "Progressive Lens Column (P/x=Yes/No)"},
        {Lbl_LeftBifocals, 8820, "B)", "Bifocals Column (B/x=Yes/No)"},
        {Lbl_GenderSearch, 9420, "G", "Gender:  E=Either, F= Female, M=Male, C=Child."},
        {Lbl_MatchFlag, 9660, "Flag", "Flag indicating Match or Sphere Equ."},
    };
    // A heading reaches to the next one where that is far, so "Add (Pwr)"
    // shows whole; the narrow lens-kind columns keep the designed width.
    for (size_t k = 0; k < std::size(heads); ++k) {
        const Head& h = heads[k];
        const int room = k + 1 < std::size(heads) ? heads[k + 1].left - h.left - 30 : 600;
        place(h.label, &Frm_LeftSelection, h.left, 240, std::max(600, room), 225, h.caption, h.tip);
    }
    place(Lst_LeftSelection, &Frm_LeftSelection, 60, 480, 13920, 1830, {}, "Click to Make your selection");
    Lst_LeftSelection.setFont(kFixed);
    place(Lbl_Recommendation, nullptr, 60, 7830, 14160, 460);
    Lbl_Recommendation.setBackColor(colors::Yellow);
    Lbl_Recommendation.setVisible(false);

    // ---- Stock lists and persons ----
    // Both stock lists are of one width: a turn of the screen swaps their places.
    place(Frm_LeftInventory, nullptr, 60, 8310, 4890, 2100, "Left Inventory");
    place(Lbl_LeftInventoryHeads, &Frm_LeftInventory, 90, 210, 4740, 210,
        "Nr.   SPH   CYL   Axis Add  (Pwr)     PD Rej",
        "Glasses Bag number, Left Sphere Power, Left Cylinder Astigmatism Power, Left Astigmatism Axis, "
        "Left Progressive/Bifocal Add, Number of times rejected");
    place(Lst_LeftInventory, &Frm_LeftInventory, 60, 420, 4770, 1620, {}, "Click on a pair to remove or reject it.");
    place(Frm_RightInventory, nullptr, 5010, 8310, 4890, 2100, "Right Inventory");
    place(Lbl_RightInventoryHeads, &Frm_RightInventory, 90, 210, 4740, 210,
        "Nr.   SPH   CYL   Axis Add  (Pwr)  (S R P B) G Comment",
        "Gender:  E=Either, F= Female, M=Male, C=Child.  Sunglasses Column (S/x=Yes/No), "
        "Reading Glasses Column (R/x=Yes/No), Progressive Lens Column (P/x=Yes/No), Bifocals Column (B/x=Yes/No)");
    place(Lst_RightInventory, &Frm_RightInventory, 60, 420, 4770, 1620, {},
        "Click on a pair to remove or reject it.");
    Lbl_LeftInventoryHeads.setFont(kFixed);
    Lbl_RightInventoryHeads.setFont(kFixed);
    Lst_LeftInventory.setFont(kFixed);
    Lst_RightInventory.setFont(kFixed);
    place(Frm_Persons, nullptr, 9960, 8310, 2400, 2100, "Persons list and glasses.");
    place(Lbl_PersonNrs, &Frm_Persons, 60, 210, 1200, 225, "Person Nrs");
    place(Lbl_GlassesNrs, &Frm_Persons, 1320, 210, 1020, 225, "Glasses Nrs");
    place(Lst_PersonsList, &Frm_Persons, 60, 450, 2280, 1140, {}, "Click on a line to return glasses to inventory.");
    Lst_PersonsList.setFont(kFixed);
    place(Cmd_ListPersons, &Frm_Persons, 60, 1620, 2280, 420, "Refresh Person List");
    place(Lbl_InventoryNr, nullptr, 12420, 8370, 900, 225, "Go to bag #");
    place(Txt_InventoryNr, nullptr, 13350, 8310, 870, 330, {}, "Type a bag number to move the stock lists there.");
    place(Lbl_Used, nullptr, 12420, 8730, 900, 225, "Used");
    place(Txt_Used, nullptr, 13350, 8670, 870, 330, {}, "Pairs given out.");
    Txt_Used.setLocked(true);
    // Two lines of caption: as high as two lines need.
    place(Cmd_ClearReload, nullptr, 12420, 9030, 1800, 480, "CLEAR && RELOAD ALL INVENTORY");
    place(Cmd_ReadingGlasses, nullptr, 12420, 9540, 885, 360, "Readers");
    place(Cmd_DisplayLensFrames, nullptr, 13335, 9540, 885, 360, "Lens");
    place(Cmd_Sizer, nullptr, 12420, 9930, 585, 360, "Home");
    Cmd_Sizer.setVisible(false);
    place(Cmd_CloseProgram, nullptr, 13020, 9930, 1200, 360, "E&xit");
    // A warning that must not be missed: large, bold and red.
    place(Lbl_NetworkJournalDown, nullptr, 60, 10425, 3660, 330, "Network Journal is down!");
    Lbl_NetworkJournalDown.setFont(kWarning);
    Lbl_NetworkJournalDown.setForeColor(colors::Red);
    Lbl_NetworkJournalDown.setVisible(false);

    // ---- A window made larger than designed: the result list and the stock
    // lists take the room it gains, half the height each, and the controls
    // beside and below them go with them.
    using Stretch = Control::Stretch;
    for (Control* c : std::initializer_list<Control*>{&Lbl_SearchDataEntryArea, &Txt_Status})
        c->setStretch({0, 0, 1, 0});
    for (Control* c : std::initializer_list<Control*>{&Frm_Selection, &Frm_LeftSelection, &Lst_LeftSelection})
        c->setStretch({0, 0, 1, 0.5});
    Lbl_Recommendation.setStretch({0, 0.5, 1, 0});
    Frm_LeftInventory.setStretch({0, 0.5, 0.5, 0.5});
    Frm_RightInventory.setStretch({0.5, 0.5, 0.5, 0.5});
    for (Control* c : std::initializer_list<Control*>{&Lbl_LeftInventoryHeads, &Lbl_RightInventoryHeads})
        c->setStretch({0, 0, 0.5, 0});
    for (Control* c : std::initializer_list<Control*>{&Lst_LeftInventory, &Lst_RightInventory})
        c->setStretch({0, 0, 0.5, 0.5});
    Frm_Persons.setStretch({1, 0.5, 0, 0.5});
    Lst_PersonsList.setStretch({0, 0, 0, 0.5});
    Cmd_ListPersons.setStretch({0, 0.5, 0, 0});
    for (Control* c : std::initializer_list<Control*>{&Lbl_InventoryNr, &Txt_InventoryNr, &Lbl_Used, &Txt_Used,
             &Cmd_ClearReload, &Cmd_ReadingGlasses, &Cmd_DisplayLensFrames, &Cmd_Sizer, &Cmd_CloseProgram})
        c->setStretch({1, 0.5, 0, 0});
    for (Control* c : std::initializer_list<Control*>{&Lbl_NetworkJournalDown, &Lbl_PracticePlay, &Img_Backwards,
             &Txt_Play_Person_Nr, &Img_Forward})
        c->setStretch(Stretch{0, 1, 0, 0});

    // ---- Keyboard order: person, age, the eyes (set by the tab-order
    // operations), then the search and the results. Spin buttons and fields
    // that only show a result are left out of the Tab chain.
    Txt_PersonNumber.setTabIndex(1);
    Txt_Age.setTabIndex(2);
    Cmd_Search.setTabIndex(30);
    Lst_LeftSelection.setTabIndex(31);
    Cmd_CalculateDataClear.setTabIndex(32);
    for (CommandButton* spin : {&Cmd_Patient1Up, &Cmd_Patient1Down, &Cmd_Patient10Up, &Cmd_Patient10Down,
             &Cmd_Patient100Up, &Cmd_Patient100Down, &Cmd_Patient1000Up, &Cmd_Patient1000Down,
             &Cmd_Patient10000Up, &Cmd_Patient10000Down, &Cmd_Age1Up, &Cmd_Age1Down, &Cmd_Age10Up,
             &Cmd_Age10Down, &Cmd_SphereLeftUp, &Cmd_SphereLeftDown, &Cmd_CylinderLeftUp, &Cmd_CylinderLeftDown,
             &Cmd_AddLeftUp, &Cmd_AddLeftDown, &Cmd_SphereRightUp, &Cmd_SphereRightDown, &Cmd_CylinderRightUp,
             &Cmd_CylinderRightDown, &Cmd_AddRightUp, &Cmd_AddRightDown, &Cmd_LeftConfidenceUP,
             &Cmd_LeftConfidenceDOWN, &Cmd_RightConfidenceUP, &Cmd_RightConfidenceDOWN})
        spin->setTabStop(false);
    for (TextBox* shown : {&Txt_Left_AMP, &Txt_Right_AMP, &Txt_Status, &Txt_Used, &Txt_UnmatchedCount,
             &Txt_LeftCutBackCount, &Txt_RightCutBackCount})
        shown->setTabStop(false);

    // ---- Practice play ----
    place(Lbl_PracticePlay, nullptr, 3780, 10440, 1500, 255, "Practice Play");
    place(Img_Backwards, nullptr, 5340, 10410, 360, 300, "<");
    place(Txt_Play_Person_Nr, nullptr, 5760, 10410, 720, 300);
    place(Img_Forward, nullptr, 6540, 10410, 360, 300, ">");
    for (Control* c : std::initializer_list<Control*>{&Lbl_PracticePlay, &Img_Backwards, &Txt_Play_Person_Nr,
             &Img_Forward})
        c->setVisible(false);
    // Tab goes as the eye reads: back, the person, forward.
    Img_Backwards.setTabIndex(40);
    Txt_Play_Person_Nr.setTabIndex(41);
    Img_Forward.setTabIndex(42);
}

}  // namespace vistrel
