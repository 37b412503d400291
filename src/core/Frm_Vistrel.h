#pragma once

#include "screen/Screen.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vistrel {

// The main screen, and with it the station's whole state: the measurement,
// the search settings, the inventory tables and the candidate tables. The
// other screens read and write its public fields directly.
//
// Its operations are spread over the subsystems' folders, one file per job
// (start-up, options file, inventory load, prescription arithmetic, entry
// rules, search, result list, presets, cut-back ...).
class Frm_Vistrel : public Screen {
public:
    static constexpr int InventoryRows = 32000;
    static constexpr int SearchRows = 2000;
    static constexpr int MeasurementRows = 2000;

    explicit Frm_Vistrel(Station& station);

    // ---- Menu bar ----
    Menu GenerateFileReports{*this, "GenerateFileReports"};
    Menu SaveDeletedRejectedInventory{*this, "SaveDeletedRejectedInventory", &GenerateFileReports};
    Menu SaveUNMatchedMeasurementsFile{*this, "SaveUNMatchedMeasurementsFile", &GenerateFileReports};
    Menu LoadPreviousAutorefractorMeasurements{*this, "LoadPreviousAutorefractorMeasurements", &GenerateFileReports};
    Menu GenerateReport{*this, "GenerateReport"};
    Menu DeletedReport{*this, "DeletedReport", &GenerateReport};
    Menu RejectedReport{*this, "RejectedReport", &GenerateReport};
    Menu VacantLocationsReport{*this, "VacantLocationsReport", &GenerateReport};
    Menu DisplayNoMatchMeasurements{*this, "DisplayNoMatchMeasurements", &GenerateReport};
    Menu SetOptions{*this, "SetOptions"};
    Menu HelpDropdown{*this, "HelpDropdown"};
    Menu HelpProgram{*this, "HelpProgram", &HelpDropdown};
    Menu HelpReportsDropdown{*this, "HelpReportsDropdown", &HelpDropdown};
    Menu HelpFileDropdown{*this, "HelpFileDropdown", &HelpDropdown};
    Menu HelpPrescriptionModificationWizard{*this, "HelpPrescriptionModificationWizard", &HelpDropdown};
    Menu EnableDisablePracticePlay{*this, "EnableDisablePracticePlay", &HelpDropdown};
    Menu TellAbout{*this, "TellAbout", &HelpDropdown};
    Menu UpdateProgram{*this, "UpdateProgram", &HelpDropdown};
    Menu AutoRefractorDataCapture{*this, "AutoRefractorDataCapture", &HelpDropdown};
    Menu ExitProgram{*this, "ExitProgram"};

    // ---- Person ----
    Frame Frm_Person{*this, "Frm_Person"};
    Label Lbl_PersonNumber{*this, "Lbl_PersonNumber"};
    TextBox Txt_PersonNumber{*this, "Txt_PersonNumber"};
    CommandButton Cmd_Patient1Up{*this, "Cmd_Patient1Up"};
    CommandButton Cmd_Patient1Down{*this, "Cmd_Patient1Down"};
    CommandButton Cmd_Patient10Up{*this, "Cmd_Patient10Up"};
    CommandButton Cmd_Patient10Down{*this, "Cmd_Patient10Down"};
    CommandButton Cmd_Patient100Up{*this, "Cmd_Patient100Up"};
    CommandButton Cmd_Patient100Down{*this, "Cmd_Patient100Down"};
    CommandButton Cmd_Patient1000Up{*this, "Cmd_Patient1000Up"};
    CommandButton Cmd_Patient1000Down{*this, "Cmd_Patient1000Down"};
    CommandButton Cmd_Patient10000Up{*this, "Cmd_Patient10000Up"};
    CommandButton Cmd_Patient10000Down{*this, "Cmd_Patient10000Down"};
    Label Lbl_Age{*this, "Lbl_Age"};
    TextBox Txt_Age{*this, "Txt_Age"};
    CommandButton Cmd_Age1Up{*this, "Cmd_Age1Up"};
    CommandButton Cmd_Age1Down{*this, "Cmd_Age1Down"};
    CommandButton Cmd_Age10Up{*this, "Cmd_Age10Up"};
    CommandButton Cmd_Age10Down{*this, "Cmd_Age10Down"};
    Label Lbl_ReadingNr{*this, "Lbl_ReadingNr"};
    TextBox Txt_ReadingNr{*this, "Txt_ReadingNr"};

    // ---- Measurement entry, left eye then right eye ----
    Frame Frm_LeftRight{*this, "Frm_LeftRight"};
    Label Lbl_LeftCover{*this, "Lbl_LeftCover"};
    Label Lbl_Sphere_Left{*this, "Lbl_Sphere_Left"};
    Label Lbl_Add_Left{*this, "Lbl_Add_Left"};
    Label Lbl_ReadingPower_Left{*this, "Lbl_ReadingPower_Left"};
    Label Lbl_Sphere_Equ_Left{*this, "Lbl_Sphere_Equ_Left"};
    TextBox Txt_Sphere_Left{*this, "Txt_Sphere_Left"};
    CommandButton Cmd_SphereLeftUp{*this, "Cmd_SphereLeftUp"};
    CommandButton Cmd_SphereLeftDown{*this, "Cmd_SphereLeftDown"};
    Label Lbl_Cylinder_Left{*this, "Lbl_Cylinder_Left"};
    TextBox Txt_Cylinder_Left{*this, "Txt_Cylinder_Left"};
    CommandButton Cmd_CylinderLeftUp{*this, "Cmd_CylinderLeftUp"};
    CommandButton Cmd_CylinderLeftDown{*this, "Cmd_CylinderLeftDown"};
    Label Lbl_Axis_Left{*this, "Lbl_Axis_Left"};
    TextBox Txt_Axis_Left{*this, "Txt_Axis_Left"};
    TextBox Txt_LeftAdd{*this, "Txt_LeftAdd"};
    CommandButton Cmd_AddLeftUp{*this, "Cmd_AddLeftUp"};
    CommandButton Cmd_AddLeftDown{*this, "Cmd_AddLeftDown"};
    TextBox Txt_LeftReadingPower{*this, "Txt_LeftReadingPower"};
    TextBox Txt_Sphere_Equ_Left{*this, "Txt_Sphere_Equ_Left"};
    Label Lbl_Left_Amp{*this, "Lbl_Left_Amp"};
    TextBox Txt_Left_AMP{*this, "Txt_Left_AMP"};
    Label Lbl_LeftConfidenceValue{*this, "Lbl_LeftConfidenceValue"};
    TextBox Txt_LeftConfidenceValue{*this, "Txt_LeftConfidenceValue"};
    CommandButton Cmd_LeftConfidenceUP{*this, "Cmd_LeftConfidenceUP"};
    CommandButton Cmd_LeftConfidenceDOWN{*this, "Cmd_LeftConfidenceDOWN"};
    CheckBox Chk_BlindLeft{*this, "Chk_BlindLeft"};
    CheckBox Chk_DominantLeft{*this, "Chk_DominantLeft"};
    CheckBox Chk_NOEquivLeft{*this, "Chk_NOEquivLeft"};
    CommandButton Cmd_RestoreLeft{*this, "Cmd_RestoreLeft"};
    Label Lbl_Left_Prescription{*this, "Lbl_Left_Prescription"};

    Label Lbl_RightCover{*this, "Lbl_RightCover"};
    Label Lbl_Sphere_Right{*this, "Lbl_Sphere_Right"};
    Label Lbl_Add_Right{*this, "Lbl_Add_Right"};
    Label Lbl_ReadingPower_Right{*this, "Lbl_ReadingPower_Right"};
    Label Lbl_Sphere_Equ_Right{*this, "Lbl_Sphere_Equ_Right"};
    TextBox Txt_Sphere_Right{*this, "Txt_Sphere_Right"};
    CommandButton Cmd_SphereRightUp{*this, "Cmd_SphereRightUp"};
    CommandButton Cmd_SphereRightDown{*this, "Cmd_SphereRightDown"};
    Label Lbl_Cylinder_Right{*this, "Lbl_Cylinder_Right"};
    TextBox Txt_Cylinder_Right{*this, "Txt_Cylinder_Right"};
    CommandButton Cmd_CylinderRightUp{*this, "Cmd_CylinderRightUp"};
    CommandButton Cmd_CylinderRightDown{*this, "Cmd_CylinderRightDown"};
    Label Lbl_Axis_Right{*this, "Lbl_Axis_Right"};
    TextBox Txt_Axis_Right{*this, "Txt_Axis_Right"};
    TextBox Txt_RightAdd{*this, "Txt_RightAdd"};
    CommandButton Cmd_AddRightUp{*this, "Cmd_AddRightUp"};
    CommandButton Cmd_AddRightDown{*this, "Cmd_AddRightDown"};
    TextBox Txt_RightReadingPower{*this, "Txt_RightReadingPower"};
    TextBox Txt_Sphere_Equ_Right{*this, "Txt_Sphere_Equ_Right"};
    Label Lbl_Right_Amp{*this, "Lbl_Right_Amp"};
    TextBox Txt_Right_AMP{*this, "Txt_Right_AMP"};
    Label Lbl_RightConfidenceValue{*this, "Lbl_RightConfidenceValue"};
    TextBox Txt_RightConfidenceValue{*this, "Txt_RightConfidenceValue"};
    CommandButton Cmd_RightConfidenceUP{*this, "Cmd_RightConfidenceUP"};
    CommandButton Cmd_RightConfidenceDOWN{*this, "Cmd_RightConfidenceDOWN"};
    CheckBox Chk_BlindRight{*this, "Chk_BlindRight"};
    CheckBox Chk_DominantRight{*this, "Chk_DominantRight"};
    CheckBox Chk_NOEquivRight{*this, "Chk_NOEquivRight"};
    CommandButton Cmd_RestoreRight{*this, "Cmd_RestoreRight"};
    Label Lbl_Right_Prescription{*this, "Lbl_Right_Prescription"};

    CommandButton Cmd_Flip{*this, "Cmd_Flip"};
    CommandButton Cmd_SetAdd{*this, "Cmd_SetAdd"};
    Label Lbl_Recommendation{*this, "Lbl_Recommendation"};

    // ---- What is searched for ----
    Frame Frm_SearchFor{*this, "Frm_SearchFor"};
    Label Lbl_CutBackCounts{*this, "Lbl_CutBackCounts"};
    CheckBox Chk_PlusBifocals{*this, "Chk_PlusBifocals"};
    CheckBox Chk_OnlyBifocals{*this, "Chk_OnlyBifocals"};
    CheckBox Chk_NOEquiv{*this, "Chk_NOEquiv"};
    CheckBox Chk_OverPlus{*this, "Chk_OverPlus"};
    CheckBox Chk_Overminus{*this, "Chk_Overminus"};
    TextBox Txt_YearsOverMinus{*this, "Txt_YearsOverMinus"};
    Label Lbl_YearsOverMinus{*this, "Lbl_YearsOverMinus"};
    CheckBox Chk_Add_Either{*this, "Chk_Add_Either"};
    Frame Frm_Gender{*this, "Frm_Gender"};
    OptionGroup GenderGroup;
    OptionButton Opt_DoNotCare{*this, "Opt_DoNotCare", GenderGroup};
    OptionButton Opt_EitherMaleFemale{*this, "Opt_EitherMaleFemale", GenderGroup};
    OptionButton Opt_Female{*this, "Opt_Female", GenderGroup};
    OptionButton Opt_Male{*this, "Opt_Male", GenderGroup};
    OptionButton Opt_Child{*this, "Opt_Child", GenderGroup};
    Frame Frm_LensType{*this, "Frm_LensType"};
    OptionGroup LensGroup;
    OptionButton Opt_LensDoNotCare{*this, "Opt_LensDoNotCare", LensGroup};
    OptionButton Opt_LensSingle{*this, "Opt_LensSingle", LensGroup};
    OptionButton Opt_LensBiFocal{*this, "Opt_LensBiFocal", LensGroup};
    OptionButton Opt_Progressive{*this, "Opt_Progressive", LensGroup};
    OptionButton Opt_Readers{*this, "Opt_Readers", LensGroup};
    CheckBox Chk_AutoBypass{*this, "Chk_AutoBypass"};

    // ---- Tolerance presets and cut-back ----
    Frame Frm_Tolerance{*this, "Frm_Tolerance"};
    CommandButton Cmd_Default{*this, "Cmd_Default"};
    CommandButton Cmd_2Exact_Match{*this, "Cmd_2Exact_Match"};
    CommandButton CMD_2DefDev2{*this, "CMD_2DefDev2"};
    CommandButton CMD_2DefDev4{*this, "CMD_2DefDev4"};
    CommandButton Cmd_2DefTimes2{*this, "Cmd_2DefTimes2"};
    CommandButton Cmd_MAX{*this, "Cmd_MAX"};
    Frame Frm_CutBack{*this, "Frm_CutBack"};
    CommandButton Cmd_LeftCutBackSearch{*this, "Cmd_LeftCutBackSearch"};
    CommandButton Cmd_RightCutBackSearch{*this, "Cmd_RightCutBackSearch"};
    CommandButton Cmd_BothCutBackSearch{*this, "Cmd_BothCutBackSearch"};
    CommandButton Cmd_LeftResetCutBack{*this, "Cmd_LeftResetCutBack"};
    CommandButton Cmd_RightResetCutBack{*this, "Cmd_RightResetCutBack"};
    CommandButton Cmd_BothReset{*this, "Cmd_BothReset"};
    TextBox Txt_LeftCutBackCount{*this, "Txt_LeftCutBackCount"};
    TextBox Txt_RightCutBackCount{*this, "Txt_RightCutBackCount"};

    // ---- Commands ----
    CommandButton Cmd_Search{*this, "Cmd_Search"};
    CommandButton Cmd_CalculateDataClear{*this, "Cmd_CalculateDataClear"};
    CommandButton Cmd_RunAdvisor{*this, "Cmd_RunAdvisor"};
    CommandButton Cmd_PrintList{*this, "Cmd_PrintList"};
    TextBox Txt_PrintNr{*this, "Txt_PrintNr"};
    CheckBox Chk_Prescription{*this, "Chk_Prescription"};
    Label Lbl_PrintLines{*this, "Lbl_PrintLines"};
    CommandButton Cmd_PrescriptionSave{*this, "Cmd_PrescriptionSave"};
    TextBox Txt_UnmatchedCount{*this, "Txt_UnmatchedCount"};
    CommandButton Cmd_Sizer{*this, "Cmd_Sizer"};
    CommandButton Cmd_CloseProgram{*this, "Cmd_CloseProgram"};
    CommandButton Cmd_ReadingGlasses{*this, "Cmd_ReadingGlasses"};
    CommandButton Cmd_DisplayLensFrames{*this, "Cmd_DisplayLensFrames"};
    TextBox Txt_Status{*this, "Txt_Status"};

    // ---- Result list ----
    Label Lbl_SearchDataEntryArea{*this, "Lbl_SearchDataEntryArea"};
    Frame Frm_Selection{*this, "Frm_Selection"};
    Frame Frm_LeftSelection{*this, "Frm_LeftSelection"};
    Label Lbl_Closeness{*this, "Lbl_Closeness"};
    Label Lbl_LeftNr{*this, "Lbl_LeftNr"};
    Label Lbl_LeftSphere{*this, "Lbl_LeftSphere"};
    Label Lbl_LeftCylinder{*this, "Lbl_LeftCylinder"};
    Label Lbl_LeftAxis{*this, "Lbl_LeftAxis"};
    Label Lbl_LeftAdd{*this, "Lbl_LeftAdd"};
    Label Lbl_PD{*this, "Lbl_PD"};
    Label Lbl_RejectNr{*this, "Lbl_RejectNr"};
    Label Lbl_LeftMatchFlag{*this, "Lbl_LeftMatchFlag"};
    Label Lbl_RightSphere{*this, "Lbl_RightSphere"};
    Label Lbl_RightCylinder{*this, "Lbl_RightCylinder"};
    Label Lbl_RightAxis{*this, "Lbl_RightAxis"};
    Label Lbl_RightAdd{*this, "Lbl_RightAdd"};
    Label Lbl_LeftSunGlasses{*this, "Lbl_LeftSunGlasses"};
    Label Lbl_LeftReading{*this, "Lbl_LeftReading"};
    Label Lbl_LeftProgressive{*this, "Lbl_LeftProgressive"};
    Label Lbl_LeftBifocals{*this, "Lbl_LeftBifocals"};
    Label Lbl_GenderSearch{*this, "Lbl_GenderSearch"};
    Label Lbl_MatchFlag{*this, "Lbl_MatchFlag"};
    ListBox Lst_LeftSelection{*this, "Lst_LeftSelection", true};

    // ---- Stock lists and persons ----
    Frame Frm_LeftInventory{*this, "Frm_LeftInventory"};
    Label Lbl_LeftInventoryHeads{*this, "Lbl_LeftInventoryHeads"};
    ListBox Lst_LeftInventory{*this, "Lst_LeftInventory"};
    Frame Frm_RightInventory{*this, "Frm_RightInventory"};
    Label Lbl_RightInventoryHeads{*this, "Lbl_RightInventoryHeads"};
    ListBox Lst_RightInventory{*this, "Lst_RightInventory"};
    Label Lbl_InventoryNr{*this, "Lbl_InventoryNr"};
    TextBox Txt_InventoryNr{*this, "Txt_InventoryNr"};
    Label Lbl_Used{*this, "Lbl_Used"};
    TextBox Txt_Used{*this, "Txt_Used"};
    CommandButton Cmd_ClearReload{*this, "Cmd_ClearReload"};
    Frame Frm_Persons{*this, "Frm_Persons"};
    Label Lbl_PersonNrs{*this, "Lbl_PersonNrs"};
    Label Lbl_GlassesNrs{*this, "Lbl_GlassesNrs"};
    ListBox Lst_PersonsList{*this, "Lst_PersonsList"};
    CommandButton Cmd_ListPersons{*this, "Cmd_ListPersons"};
    Label Lbl_NetworkJournalDown{*this, "Lbl_NetworkJournalDown"};

    // ---- Practice play ----
    Label Lbl_PracticePlay{*this, "Lbl_PracticePlay"};
    Image Img_Backwards{*this, "Img_Backwards"};
    Image Img_Forward{*this, "Img_Forward"};
    TextBox Txt_Play_Person_Nr{*this, "Txt_Play_Person_Nr"};

    // ---- Timers ----
    Timer Tmr_InventoryMovement{*this, "Tmr_InventoryMovement", 200};
    Timer Tmr_SaveInventory{*this, "Tmr_SaveInventory", 1000};
    Timer Tmr_RefreshPersonList{*this, "Tmr_RefreshPersonList", 60000};

    // ---- Public state ----
    bool VistrelFlag = false;
    bool ProgramOptionsFlag = false;
    bool FirstLoad = true;
    std::string InventoryLocation;
    std::string ProgramFilesLocation;
    std::string Max_Sphere_OverageValue = "1.00", Max_Sphere_OverageValueDefault = "1.00";
    std::string Max_Cylinder_OverageValue = "1.00", Max_Cylinder_OverageValueDefault = "1.00";
    std::string Axis_DeviationValue = "15", Axis_DeviationValueDefault = "15";
    std::string Max_CylinderValue = ".5", Max_CylinderValueDefault = ".5";
    std::string Min_SphereValue = "4.00", Min_SphereValueDefault = "4.00";
    std::string Txt_CutBackValue = "0.25", Txt_CutBackValueDefault = "0.25";
    double LeftToleranceMultiplier = 1.0;
    double RightToleranceMultiplier = 1.0;
    std::int16_t PublicMaximumEntries = 32000;
    std::int16_t PublicMaximumLocations = 32000;
    std::int16_t PublicSearchLength = 2000;
    std::int16_t PublicMaxMeasSaved = 2000;
    std::int16_t MeasurementsSaved = 0;
    bool SavePrescriptionYesNo = true;
    bool SavePrescriptionASK = true;
    bool SkipSearch = false;
    bool JumpBack = false;
    bool FlipLeftFirst = true;
    std::int16_t SaveLeftPosition = 0;
    bool LeftIsCutback = false;
    bool RightIsCutback = false;
    std::string Txt_Sphere_LeftSave, Txt_Cylinder_LeftSave, Txt_Sphere_RightSave, Txt_Cylinder_RightSave;
    std::string SaveLeftSphere, SaveLeftCylinder, SaveLeftAxis, SaveRightSphere, SaveRightCylinder, SaveRightAxis;
    bool LeftOnlyValue = false;
    bool RightOnlyValue = false;
    bool MatchBothValue = true;
    bool BlindLeft = false, BlindRight = false, DominantLeft = false, DominantRight = false;
    std::int16_t MatchReadingAlsoValue = 0;
    std::int16_t MatchReadingOnlyValue = 0;
    std::int16_t RefreshAddRemoveValue = 0;
    std::int16_t DiagnosticValue = 0;
    std::int16_t NOSphericalEquivalent = 0, NOSphericalEquivalentLeft = 0, NOSphericalEquivalentRight = 0;
    bool BothChanged = false, LeftChanged = false, RightChanged = false;
    bool MinusBusy = false, PlusBusy = false;
    bool WizardFlash = false;
    std::int16_t WizardFlashCounter = 0;
    bool GlassesNeeded = false, GlassesOptional = false;
    double Person_Nr = 0;
    bool Practice_Loaded = false;
    std::int16_t HighestInventoryNr = 0;
    std::int16_t FoundCount = 0;
    bool EOF_Found = false;
    bool JournalOK = true;
    std::int16_t JournalBadPoint = 1;
    std::int16_t Filenum = 0, AutoFileNum = 0, JournalFileNum = 0, NetworkJournalFileNum = 0;
    std::int16_t ReportFileNum = 0, DeletedFileNum = 0, UnMatchedFileNum = 0;
    std::string ReportFileName, DeletedFileName, UnMatchedFileName;
    std::int16_t NetworkJournalOfflineCounter = 1;
    std::int16_t NetworkJournalRefreshCounter = 5;
    std::string AutoRefractorType, ComPortNumber, PrintPrescription, AutoSearch, Confidence;
    Variant LeftSphereRead, LeftCylinderRead, LeftReadingPower;
    Variant RightSphereRead, RightCylinderRead, RightReadingPower;
    double LeftSphereEqu = 0, RightSphereEqu = 0;
    std::int16_t LeftAxisRead = 0, RightAxisRead = 0;
    std::int16_t Response = 0;
    bool ReturnInventoryFlag = false;
    std::string AutoFilename;
    Variant SelectedRowText;
    Variant SelectedIndex;
    std::string JournalAddFlag;
    std::string ChosenAddText;
    std::vector<std::string> AdviceLines = std::vector<std::string>(21);  // slots 0 to 20

    // ---- Private state ----
    bool InventoryLoaded = false;
    Variant SaveInventoryCountdown = Variant(600);
    bool RecommendationRunning = false;
    bool RecommendationBusy = false;
    bool PracticePlayEnabled = false;
    bool InventoryNrBusy = false;
    bool InventoryNrExpired = false;
    std::int16_t InventoryNrCountdown = 0;
    std::string LastInventoryNrText = "0";
    std::string CrLf = "\r\n";
    std::string OptionsFileName;
    std::string OptDefaultSetting = "Default";
    std::string OptEquivalent, OptDiagnostic, OptRefreshAddRemove, OptAutorefractorEnable;
    std::string OptNoFocometer, OptPrintGlasses;
    Variant InventoryCount = Variant(0);
    std::int16_t ReadingGlassesTotal = 0;
    std::int16_t ListedCount = 0;
    std::int16_t PersonsListed = 0;
    std::int16_t FoundListCount = 0;
    Variant LeftMatchFlag = Variant(" -NONE"), RightMatchFlag = Variant(" -NONE");
    bool DiagnosticHeaderPending = false;
    std::int16_t DiagnosticFileNum = 0;

    // ---- Inventory tables: row i of the prose is element i - 1 ----
    std::vector<std::int16_t> Inv_Number;
    std::vector<double> Inv_LeftSphere, Inv_LeftCylinder, Inv_RightSphere, Inv_RightCylinder;
    std::vector<bool> Inv_FieldsRead;  // the Variant columns of the row were written
    std::vector<std::int16_t> Inv_LeftAxis, Inv_RightAxis;
    std::vector<double> Inv_LeftAdd, Inv_RightAdd;
    std::vector<bool> Inv_Sunglasses, Inv_Reading, Inv_SpareFlag, Inv_Progressive, Inv_Bifocal;
    std::vector<std::string> Inv_PD;
    std::vector<std::int16_t> Inv_Gender, Inv_RejectCount;
    std::vector<std::string> Inv_Comment, Inv_Extra1, Inv_Extra2;
    std::vector<bool> Inv_Removed;
    std::vector<std::int32_t> Inv_PersonNumber;
    std::vector<bool> Inv_LocationUsed;  // by bag number minus 1

    // ---- Candidate tables, in acceptance order ----
    std::vector<std::int16_t> Found_Number, Found_Index, Found_Gender;
    std::vector<double> Found_Score;
    std::vector<bool> Found_Bifocal, Found_Progressive;

    // ---- Practice readings, by person number minus 1; filled on first use ----
    std::vector<std::string> Practice_Age, Practice_RightSphere, Practice_RightCylinder, Practice_RightAxis;
    std::vector<std::string> Practice_LeftSphere, Practice_LeftCylinder, Practice_LeftAxis;

    // ---- Unmatched measurements ----
    std::vector<double> Meas_LeftSphere, Meas_LeftCylinder, Meas_LeftAxis, Meas_LeftAdd, Meas_LeftSphereEqu;
    std::vector<double> Meas_RightSphere, Meas_RightCylinder, Meas_RightAxis, Meas_RightAdd, Meas_RightSphereEqu;
    std::vector<bool> Meas_Written;

    // The entry fields and measurement state of one eye, for the handlers
    // that are twins but for the eye they work on.
    struct EyeEntry {
        TextBox& sphere;
        TextBox& cylinder;
        TextBox& axis;
        TextBox& add;
        TextBox& readingPower;
        TextBox& sphereEqu;
        TextBox& cutBackCount;
        Variant& sphereRead;
        Variant& cylinderRead;
        Variant& readingPowerRead;
        double& equivalent;
        std::int16_t& axisRead;
        bool& isCutback;
        std::string& sphereSave;
        std::string& cylinderSave;
    };
    EyeEntry eyeEntry(bool left);

    // ---- Start-up and end ----
    void Form_Load();
    void ExitProgram_Click();
    void Cmd_CloseProgram_Click() { ExitProgram_Click(); }
    void Form_Unload() { ExitProgram_Click(); }
    void Form_Terminate() { ExitProgram_Click(); }
    void Cmd_Sizer_Click();
    void SetOptions_Click();
    std::string GetMyDocumentsDirectory();
    bool DirectoryExists(const std::string& path);
    bool FileExists(const std::string& path);
    std::string OptionsFolder();
    // A station path: folder, separator, name.
    std::string PathIn(const std::string& folder, const std::string& name) const;

    // ---- Options file (reader; the writer is on the options screen) ----
    void ReadOptionsFile();
    void ApplyAutorefractorType(const std::string& keyword);

    // ---- Inventory ----
    void Get_Readings();
    std::string Get_Record(std::int16_t handle);
    void ListInventory();
    void Cmd_ClearReload_Click() { ListInventory(); }
    void Lst_LeftInventory_Scroll();
    void Lst_RightInventory_Scroll();
    void ListPersons();
    void Cmd_ListPersons_Click() { ListPersons(); }
    void ClearEntryValues();
    void Txt_InventoryNr_Change();
    void Txt_InventoryNr_DblClick();
    void Cmd_ReadingGlasses_Click();
    void Cmd_DisplayLensFrames_Click();

    // ---- Dispensing ----
    void Lst_LeftInventory_Click();
    void Lst_RightInventory_Click();
    void Lst_PersonsList_Click();

    // ---- Journal ----
    void Journal_AddRemove();
    void JournalMeasumentData();
    void LoadJournalFile(const std::string& word);
    // The journal files as the system names them here.
    std::string LocalJournalFile();
    std::string NetworkJournalFile(bool forWriting);

    // ---- Autorefractor readings and practice play ----
    void AutoRefractorDataCapture_Click();
    void LoadPreviousAutorefractorMeasurements_Click();
    void EnableDisablePracticePlay_Click();
    void ShowPracticeControls();
    void Img_Backwards_Click();
    void Img_Forward_Click();
    void Txt_Play_Person_Nr_Change();
    void LoadPractice();

    // ---- Unmatched measurements ----
    void Cmd_PrescriptionSave_Click();
    bool MeasurementComplete();
    static bool MeasurementFieldOK(const std::string& text);

    // ---- Prescription arithmetic ----
    double GetAgeAdjustment();
    double GetReadingPower();
    void Calculate_AMP();
    void Cmd_SetAdd_Click();
    bool Calculate(const std::array<double, 2>& powers, const std::array<std::string, 2>& clock, double& sphere,
        double& cylinder, double& equivalent, std::int16_t& axis, bool& hasCylinder);

    // ---- Entry rules ----
    void Txt_Sphere_Left_Change();
    void Txt_Cylinder_Left_Change();
    void Txt_axis_left_Change();
    void Txt_LeftAdd_Change();
    void Txt_LeftReadingPower_Change();
    void Txt_Sphere_Right_Change();
    void Txt_Cylinder_Right_Change();
    void Txt_Axis_Right_Change();
    void Txt_RightAdd_Change();
    void Txt_RightReadingPower_Change();
    void DisplayPrescription();
    void Txt_Age_Change();
    void Txt_Age_Click();
    void Txt_Age_DblClick();
    void Txt_PersonNumber_Change();
    void Txt_PersonNumber_DblClick();
    void Txt_Sphere_Left_DblClick();
    void Txt_Sphere_Right_DblClick();
    void Txt_LeftAdd_DblClick();
    void Txt_RightAdd_DblClick();
    void Txt_Cylinder_Left_DblClick();
    void Txt_Cylinder_Right_DblClick();
    void Cmd_SphereLeftUp_Click();
    void Cmd_SphereLeftDown_Click();
    void Cmd_SphereRightUp_Click();
    void Cmd_SphereRightDown_Click();
    void Cmd_CylinderLeftUp_Click();
    void Cmd_CylinderLeftDown_Click();
    void Cmd_CylinderRightUp_Click();
    void Cmd_CylinderRightDown_Click();
    void Cmd_AddLeftUp_Click();
    void Cmd_AddLeftDown_Click();
    void Cmd_AddRightUp_Click();
    void Cmd_AddRightDown_Click();
    void Cmd_Age1Up_Click();
    void Cmd_Age1Down_Click();
    void Cmd_Age10Up_Click();
    void Cmd_Age10Down_Click();
    void StepPersonNumber(double step);
    void Cmd_LeftConfidenceUP_Click();
    void Cmd_LeftConfidenceDOWN_Click();
    void Cmd_RightConfidenceUP_Click();
    void Cmd_RightConfidenceDOWN_Click();
    void Txt_LeftConfidenceValue_Change();
    void Txt_RightConfidenceValue_Change();
    void ConfidenceVisibility(bool visible);
    void Chk_BlindLeft_Click();
    void Chk_BlindRight_Click();
    void Chk_DominantLeft_Click();
    void Chk_DominantRight_Click();
    void Chk_PlusBifocals_Click();
    void Cmd_RestoreLeft_Click();
    void Cmd_RestoreRight_Click();
    void Cmd_CalculateDataClear_Click();

    // ---- Search ----
    void Search_Click();
    void Cmd_Search_Click() { Search_Click(); }
    void AutomaticSearch();
    void MatchFound(std::int16_t& i);
    void Make_Recommendation();
    void Opt_Child_Click() { AutomaticSearch(); }
    void Opt_DoNotCare_Click() { AutomaticSearch(); }
    void Opt_EitherMaleFemale_Click() { AutomaticSearch(); }
    void Opt_Female_Click() { AutomaticSearch(); }
    void Opt_Male_Click() { AutomaticSearch(); }
    void Opt_LensDoNotCare_Click() { AutomaticSearch(); }
    void Opt_LensSingle_Click() { AutomaticSearch(); }
    void Opt_LensBiFocal_Click() { AutomaticSearch(); }
    void Opt_Progressive_Click() { AutomaticSearch(); }
    void Opt_Readers_Click() { AutomaticSearch(); }
    void Chk_Add_Either_Click();
    void Chk_NOEquiv_Click();
    void Chk_NOEquivLeft_Click();
    void Chk_NOEquivRight_Click();
    void Chk_OverPlus_Click();
    void Chk_Overminus_Click();
    void Chk_OnlyBifocals_Click();

    // ---- Result list ----
    std::string ClosenessText(double closeness) const;
    std::string EyeBlock(double sphere, double cylinder, std::int16_t axis, double add) const;
    void AddResultRow(std::int16_t i, double closeness);
    void WriteDiagnostic(std::int16_t i);
    void Lst_LeftSelection_Click();
    void Announce_Selection();

    // ---- Presets and cut-back ----
    void Cmd_Default_Click();
    void Cmd_2Exact_Match_Click();
    void CMD_2DefDev2_Click();
    void CMD_2DefDev4_Click();
    void Cmd_2DefTimes2_Click();
    void Cmd_MAX_Click();
    void Cmd_LeftCutBackSearch_Click();
    void Cmd_RightCutBackSearch_Click();
    void Cmd_BothCutBackSearch_Click();
    void Cmd_LeftResetCutBack_Click();
    void Cmd_RightResetCutBack_Click();
    void Cmd_BothReset_Click();

    // ---- The wizard (src/wizard) ----
    void Cmd_RunAdvisor_Click();

    // ---- The slip (src/reports) ----
    void Cmd_PrintList_Click();

    // ---- File reports (src/reports) ----
    void DeletedReport_Click();
    void RejectedReport_Click();
    void VacantLocationsReport_Click();
    void DisplayNoMatchMeasurements_Click();
    void SaveDeletedRejectedInventory_Click();
    void SaveUNMatchedMeasurementsFile_Click();

    // ---- Help and about (src/core/Help*.cpp) ----
    void HelpProgram_Click();
    void HelpReportsDropdown_Click();
    void HelpFileDropdown_Click();
    void HelpPrescriptionModificationWizard_Click();
    void TellAbout_Click();
    void UpdateProgram_Click();
    void Lbl_SearchDataEntryArea_Click();
    // Opens a help document of the program's folder in the desktop's
    // viewer; false, after a message box naming it, when it isn't there.
    bool ShowHelpDocument(const std::string& fileName);
    void wireHelp();

    // ---- Reversal of the screen ----
    void Cmd_Flip_Click();
    void flipleft();
    // The heading of the eyes' frame on the left-first screen.
    static std::string LeftFirstHeading();
    void TabIndexleft();
    void TabIndexRight();

    // ---- Later subsystems reached from here ----
    void Tmr_InventoryMovement_Timer();
    void Tmr_SaveInventory_Timer();
    void Tmr_RefreshPersonList_Timer();
    void WriteAutorefractorPrescription();

private:
    // Where stock records that name no cell of their own land during a
    // replay: the cell of the record before.
    struct ReplayCursor {
        int readingCell = 0;
        int lensRow = 0;
        int lensColumn = 0;
    };
    void appendJournalRecord(std::string line);
    bool replayRecord(std::int16_t handle, const std::string& first, ReplayCursor& cursor);
    bool replayMeasurement(std::int16_t handle);
    bool replayDispensing(std::int16_t handle, const std::string& first);
    void announceRow(const ListBox& list, bool returning);
    void blindChanged(bool rightEye);
    void sphereOrCylinderChanged(const EyeEntry& eye, bool sphere);
    void addChanged(const EyeEntry& eye);
    void axisChanged(const EyeEntry& eye);
    void readingPowerChanged(const EyeEntry& eye);
    void wireHandlers();
    void bindRegistry();
    void design();
    void clearLensGrids();

    // Re-entry of the search from the event pump restarts it instead.
    bool searchRunning_ = false;
    bool searchRestart_ = false;
    // A stock or persons listing started from the event pump lists all
    // itself; the one it interrupted stops. Counted per listing begun.
    unsigned inventoryListings_ = 0;
    unsigned personListings_ = 0;
};

}  // namespace vistrel
