#include "Frm_Vistrel.h"

namespace vistrel {

Frm_Vistrel::Frm_Vistrel(Station& station) : Screen(station, "Frm_Vistrel")
{
    const auto rows = static_cast<size_t>(InventoryRows);
    Inv_Number.assign(rows, 0);
    Inv_LeftSphere.assign(rows, 0);
    Inv_LeftCylinder.assign(rows, 0);
    Inv_RightSphere.assign(rows, 0);
    Inv_RightCylinder.assign(rows, 0);
    Inv_FieldsRead.assign(rows, false);
    Inv_LeftAxis.assign(rows, 0);
    Inv_RightAxis.assign(rows, 0);
    Inv_LeftAdd.assign(rows, 0);
    Inv_RightAdd.assign(rows, 0);
    Inv_Sunglasses.assign(rows, false);
    Inv_Reading.assign(rows, false);
    Inv_SpareFlag.assign(rows, false);
    Inv_Progressive.assign(rows, false);
    Inv_Bifocal.assign(rows, false);
    Inv_PD.assign(rows, {});
    Inv_Gender.assign(rows, 0);
    Inv_RejectCount.assign(rows, 0);
    Inv_Comment.assign(rows, {});
    Inv_Extra1.assign(rows, {});
    Inv_Extra2.assign(rows, {});
    Inv_Removed.assign(rows, false);
    Inv_PersonNumber.assign(rows, 0);
    Inv_LocationUsed.assign(rows, false);

    const auto found = static_cast<size_t>(SearchRows);
    Found_Number.assign(found, 0);
    Found_Index.assign(found, 0);
    Found_Gender.assign(found, 0);
    Found_Score.assign(found, 0);
    Found_Bifocal.assign(found, false);
    Found_Progressive.assign(found, false);

    const auto meas = static_cast<size_t>(MeasurementRows);
    for (auto* t : {&Meas_LeftSphere, &Meas_LeftCylinder, &Meas_LeftAxis, &Meas_LeftAdd, &Meas_LeftSphereEqu,
             &Meas_RightSphere, &Meas_RightCylinder, &Meas_RightAxis, &Meas_RightAdd, &Meas_RightSphereEqu})
        t->assign(meas, 0);
    Meas_Written.assign(meas, false);

    design();
    wireHandlers();
    bindRegistry();
}

// Every control's events go to the handler of the same name, which is also
// registered as an operation so that other screens and scripts reach it.
void Frm_Vistrel::wireHandlers()
{

    // Menu bar.
    wireClick(SetOptions, "SetOptions_Click", [this] { SetOptions_Click(); });
    wireClick(ExitProgram, "ExitProgram_Click", [this] { ExitProgram_Click(); });
    wireClick(DeletedReport, "DeletedReport_Click", [this] { DeletedReport_Click(); });
    wireClick(RejectedReport, "RejectedReport_Click", [this] { RejectedReport_Click(); });
    wireClick(VacantLocationsReport, "VacantLocationsReport_Click", [this] { VacantLocationsReport_Click(); });
    wireClick(DisplayNoMatchMeasurements, "DisplayNoMatchMeasurements_Click",
        [this] { DisplayNoMatchMeasurements_Click(); });
    wireClick(SaveDeletedRejectedInventory, "SaveDeletedRejectedInventory_Click",
        [this] { SaveDeletedRejectedInventory_Click(); });
    wireClick(SaveUNMatchedMeasurementsFile, "SaveUNMatchedMeasurementsFile_Click",
        [this] { SaveUNMatchedMeasurementsFile_Click(); });
    // Help and about (src/core/HelpMenu.cpp).
    wireHelp();
    onCloseBox = [this] { ExitProgram_Click(); };
    onLoad = [this] { Form_Load(); };
    op("Form_Load", [this] { Form_Load(); });
    op("Form_Unload", [this] { Form_Unload(); });
    op("Form_Terminate", [this] { Form_Terminate(); });

    // Entry fields.
    wireChange(Txt_Sphere_Left, "Txt_Sphere_Left_Change", [this] { Txt_Sphere_Left_Change(); });
    wireChange(Txt_Cylinder_Left, "Txt_Cylinder_Left_Change", [this] { Txt_Cylinder_Left_Change(); });
    wireChange(Txt_Axis_Left, "Txt_axis_left_Change", [this] { Txt_axis_left_Change(); });
    wireChange(Txt_LeftAdd, "Txt_LeftAdd_Change", [this] { Txt_LeftAdd_Change(); });
    wireChange(Txt_LeftReadingPower, "Txt_LeftReadingPower_Change", [this] { Txt_LeftReadingPower_Change(); });
    wireChange(Txt_Sphere_Right, "Txt_Sphere_Right_Change", [this] { Txt_Sphere_Right_Change(); });
    wireChange(Txt_Cylinder_Right, "Txt_Cylinder_Right_Change", [this] { Txt_Cylinder_Right_Change(); });
    wireChange(Txt_Axis_Right, "Txt_Axis_Right_Change", [this] { Txt_Axis_Right_Change(); });
    wireChange(Txt_RightAdd, "Txt_RightAdd_Change", [this] { Txt_RightAdd_Change(); });
    wireChange(Txt_RightReadingPower, "Txt_RightReadingPower_Change", [this] { Txt_RightReadingPower_Change(); });
    wireChange(Txt_Age, "Txt_Age_Change", [this] { Txt_Age_Change(); });
    wireClick(Txt_Age, "Txt_Age_Click", [this] { Txt_Age_Click(); });
    wireDblClick(Txt_Age, "Txt_Age_DblClick", [this] { Txt_Age_DblClick(); });
    wireChange(Txt_PersonNumber, "Txt_PersonNumber_Change", [this] { Txt_PersonNumber_Change(); });
    wireClick(Txt_PersonNumber, "Txt_PersonNumber_Click", [] {});
    wireDblClick(Txt_PersonNumber, "Txt_PersonNumber_DblClick", [this] { Txt_PersonNumber_DblClick(); });
    wireDblClick(Txt_Sphere_Left, "Txt_Sphere_Left_DblClick", [this] { Txt_Sphere_Left_DblClick(); });
    wireDblClick(Txt_Sphere_Right, "Txt_Sphere_Right_DblClick", [this] { Txt_Sphere_Right_DblClick(); });
    wireDblClick(Txt_LeftAdd, "Txt_LeftAdd_DblClick", [this] { Txt_LeftAdd_DblClick(); });
    wireDblClick(Txt_RightAdd, "Txt_RightAdd_DblClick", [this] { Txt_RightAdd_DblClick(); });
    wireDblClick(Txt_Cylinder_Left, "Txt_Cylinder_Left_DblClick", [this] { Txt_Cylinder_Left_DblClick(); });
    wireDblClick(Txt_Cylinder_Right, "Txt_Cylinder_Right_DblClick", [this] { Txt_Cylinder_Right_DblClick(); });
    wireChange(Txt_LeftConfidenceValue, "Txt_LeftConfidenceValue_Change", [this] { Txt_LeftConfidenceValue_Change(); });
    wireChange(Txt_RightConfidenceValue, "Txt_RightConfidenceValue_Change",
        [this] { Txt_RightConfidenceValue_Change(); });

    // Spin buttons.
    wireClick(Cmd_SphereLeftUp, "Cmd_SphereLeftUp_Click", [this] { Cmd_SphereLeftUp_Click(); });
    wireClick(Cmd_SphereLeftDown, "Cmd_SphereLeftDown_Click", [this] { Cmd_SphereLeftDown_Click(); });
    wireClick(Cmd_SphereRightUp, "Cmd_SphereRightUp_Click", [this] { Cmd_SphereRightUp_Click(); });
    wireClick(Cmd_SphereRightDown, "Cmd_SphereRightDown_Click", [this] { Cmd_SphereRightDown_Click(); });
    wireClick(Cmd_CylinderLeftUp, "Cmd_CylinderLeftUp_Click", [this] { Cmd_CylinderLeftUp_Click(); });
    wireClick(Cmd_CylinderLeftDown, "Cmd_CylinderLeftDown_Click", [this] { Cmd_CylinderLeftDown_Click(); });
    wireClick(Cmd_CylinderRightUp, "Cmd_CylinderRightUp_Click", [this] { Cmd_CylinderRightUp_Click(); });
    wireClick(Cmd_CylinderRightDown, "Cmd_CylinderRightDown_Click", [this] { Cmd_CylinderRightDown_Click(); });
    wireClick(Cmd_AddLeftUp, "Cmd_AddLeftUp_Click", [this] { Cmd_AddLeftUp_Click(); });
    wireClick(Cmd_AddLeftDown, "Cmd_AddLeftDown_Click", [this] { Cmd_AddLeftDown_Click(); });
    wireClick(Cmd_AddRightUp, "Cmd_AddRightUp_Click", [this] { Cmd_AddRightUp_Click(); });
    wireClick(Cmd_AddRightDown, "Cmd_AddRightDown_Click", [this] { Cmd_AddRightDown_Click(); });
    wireClick(Cmd_Age1Up, "Cmd_Age1Up_Click", [this] { Cmd_Age1Up_Click(); });
    wireClick(Cmd_Age1Down, "Cmd_Age1Down_Click", [this] { Cmd_Age1Down_Click(); });
    wireClick(Cmd_Age10Up, "Cmd_Age10Up_Click", [this] { Cmd_Age10Up_Click(); });
    wireClick(Cmd_Age10Down, "Cmd_Age10Down_Click", [this] { Cmd_Age10Down_Click(); });
    wireClick(Cmd_Patient1Up, "Cmd_Patient1Up_Click", [this] { StepPersonNumber(1); });
    wireClick(Cmd_Patient1Down, "Cmd_Patient1Down_Click", [this] { StepPersonNumber(-1); });
    wireClick(Cmd_Patient10Up, "Cmd_Patient10Up_Click", [this] { StepPersonNumber(10); });
    wireClick(Cmd_Patient10Down, "Cmd_Patient10Down_Click", [this] { StepPersonNumber(-10); });
    wireClick(Cmd_Patient100Up, "Cmd_Patient100Up_Click", [this] { StepPersonNumber(100); });
    wireClick(Cmd_Patient100Down, "Cmd_Patient100Down_Click", [this] { StepPersonNumber(-100); });
    wireClick(Cmd_Patient1000Up, "Cmd_Patient1000Up_Click", [this] { StepPersonNumber(1000); });
    wireClick(Cmd_Patient1000Down, "Cmd_Patient1000Down_Click", [this] { StepPersonNumber(-1000); });
    wireClick(Cmd_Patient10000Up, "Cmd_Patient10000Up_Click", [this] { StepPersonNumber(10000); });
    wireClick(Cmd_Patient10000Down, "Cmd_Patient10000Down_Click", [this] { StepPersonNumber(-10000); });
    wireClick(Cmd_LeftConfidenceUP, "Cmd_LeftConfidenceUP_Click", [this] { Cmd_LeftConfidenceUP_Click(); });
    wireClick(Cmd_LeftConfidenceDOWN, "Cmd_LeftConfidenceDOWN_Click", [this] { Cmd_LeftConfidenceDOWN_Click(); });
    wireClick(Cmd_RightConfidenceUP, "Cmd_RightConfidenceUP_Click", [this] { Cmd_RightConfidenceUP_Click(); });
    wireClick(Cmd_RightConfidenceDOWN, "Cmd_RightConfidenceDOWN_Click", [this] { Cmd_RightConfidenceDOWN_Click(); });

    // Check boxes and options.
    wireClick(Chk_BlindLeft, "Chk_BlindLeft_Click", [this] { Chk_BlindLeft_Click(); });
    wireClick(Chk_BlindRight, "Chk_BlindRight_Click", [this] { Chk_BlindRight_Click(); });
    wireClick(Chk_DominantLeft, "Chk_DominantLeft_Click", [this] { Chk_DominantLeft_Click(); });
    wireClick(Chk_DominantRight, "Chk_DominantRight_Click", [this] { Chk_DominantRight_Click(); });
    wireClick(Chk_PlusBifocals, "Chk_PlusBifocals_Click", [this] { Chk_PlusBifocals_Click(); });
    wireClick(Chk_OnlyBifocals, "Chk_OnlyBifocals_Click", [this] { Chk_OnlyBifocals_Click(); });
    wireClick(Chk_NOEquiv, "Chk_NOEquiv_Click", [this] { Chk_NOEquiv_Click(); });
    wireClick(Chk_NOEquivLeft, "Chk_NOEquivLeft_Click", [this] { Chk_NOEquivLeft_Click(); });
    wireClick(Chk_NOEquivRight, "Chk_NOEquivRight_Click", [this] { Chk_NOEquivRight_Click(); });
    wireClick(Chk_OverPlus, "Chk_OverPlus_Click", [this] { Chk_OverPlus_Click(); });
    wireClick(Chk_Overminus, "Chk_Overminus_Click", [this] { Chk_Overminus_Click(); });
    wireClick(Chk_Add_Either, "Chk_Add_Either_Click", [this] { Chk_Add_Either_Click(); });
    wireClick(Opt_Child, "Opt_Child_Click", [this] { Opt_Child_Click(); });
    wireClick(Opt_DoNotCare, "Opt_DoNotCare_Click", [this] { Opt_DoNotCare_Click(); });
    wireClick(Opt_EitherMaleFemale, "Opt_EitherMaleFemale_Click", [this] { Opt_EitherMaleFemale_Click(); });
    wireClick(Opt_Female, "Opt_Female_Click", [this] { Opt_Female_Click(); });
    wireClick(Opt_Male, "Opt_Male_Click", [this] { Opt_Male_Click(); });
    wireClick(Opt_LensDoNotCare, "Opt_LensDoNotCare_Click", [this] { Opt_LensDoNotCare_Click(); });
    wireClick(Opt_LensSingle, "Opt_LensSingle_Click", [this] { Opt_LensSingle_Click(); });
    wireClick(Opt_LensBiFocal, "Opt_LensBiFocal_Click", [this] { Opt_LensBiFocal_Click(); });
    wireClick(Opt_Progressive, "Opt_Progressive_Click", [this] { Opt_Progressive_Click(); });
    wireClick(Opt_Readers, "Opt_Readers_Click", [this] { Opt_Readers_Click(); });

    // Commands.
    wireClick(Cmd_Search, "Cmd_Search_Click", [this] { Cmd_Search_Click(); });
    op("Search_Click", [this] { Search_Click(); });
    wireClick(Cmd_CalculateDataClear, "Cmd_CalculateDataClear_Click", [this] { Cmd_CalculateDataClear_Click(); });
    wireClick(Cmd_RunAdvisor, "Cmd_RunAdvisor_Click", [this] { Cmd_RunAdvisor_Click(); });
    wireClick(Cmd_PrintList, "Cmd_PrintList_Click", [this] { Cmd_PrintList_Click(); });
    wireClick(Cmd_Flip, "Cmd_Flip_Click", [this] { Cmd_Flip_Click(); });
    op("flipleft", [this] { flipleft(); });
    wireClick(Cmd_SetAdd, "Cmd_SetAdd_Click", [this] { Cmd_SetAdd_Click(); });
    wireClick(Cmd_Sizer, "Cmd_Sizer_Click", [this] { Cmd_Sizer_Click(); });
    wireClick(Cmd_CloseProgram, "Cmd_CloseProgram_Click", [this] { Cmd_CloseProgram_Click(); });
    wireClick(Cmd_RestoreLeft, "Cmd_RestoreLeft_Click", [this] { Cmd_RestoreLeft_Click(); });
    wireClick(Cmd_RestoreRight, "Cmd_RestoreRight_Click", [this] { Cmd_RestoreRight_Click(); });
    wireClick(Cmd_ClearReload, "Cmd_ClearReload_Click", [this] { Cmd_ClearReload_Click(); });
    Lst_LeftInventory.onScroll = [this] { Lst_LeftInventory_Scroll(); };
    op("Lst_LeftInventory_Scroll", Lst_LeftInventory.onScroll);
    Lst_RightInventory.onScroll = [this] { Lst_RightInventory_Scroll(); };
    op("Lst_RightInventory_Scroll", Lst_RightInventory.onScroll);
    wireClick(Cmd_ListPersons, "Cmd_ListPersons_Click", [this] { Cmd_ListPersons_Click(); });
    wireClick(Lst_LeftSelection, "Lst_LeftSelection_Click", [this] { Lst_LeftSelection_Click(); });
    wireClick(Lst_LeftInventory, "Lst_LeftInventory_Click", [this] { Lst_LeftInventory_Click(); });
    wireClick(Lst_RightInventory, "Lst_RightInventory_Click", [this] { Lst_RightInventory_Click(); });
    wireClick(Lst_PersonsList, "Lst_PersonsList_Click", [this] { Lst_PersonsList_Click(); });
    wireChange(Txt_InventoryNr, "Txt_InventoryNr_Change", [this] { Txt_InventoryNr_Change(); });
    wireDblClick(Txt_InventoryNr, "Txt_InventoryNr_DblClick", [this] { Txt_InventoryNr_DblClick(); });
    wireClick(Cmd_ReadingGlasses, "Cmd_ReadingGlasses_Click", [this] { Cmd_ReadingGlasses_Click(); });
    wireClick(Cmd_DisplayLensFrames, "Cmd_DisplayLensFrames_Click", [this] { Cmd_DisplayLensFrames_Click(); });
    wireClick(Cmd_PrescriptionSave, "Cmd_PrescriptionSave_Click", [this] { Cmd_PrescriptionSave_Click(); });
    wireClick(AutoRefractorDataCapture, "AutoRefractorDataCapture_Click", [this] { AutoRefractorDataCapture_Click(); });
    wireClick(LoadPreviousAutorefractorMeasurements, "LoadPreviousAutorefractorMeasurements_Click",
        [this] { LoadPreviousAutorefractorMeasurements_Click(); });
    wireClick(EnableDisablePracticePlay, "EnableDisablePracticePlay_Click",
        [this] { EnableDisablePracticePlay_Click(); });
    wireClick(Img_Backwards, "Img_Backwards_Click", [this] { Img_Backwards_Click(); });
    wireClick(Img_Forward, "Img_Forward_Click", [this] { Img_Forward_Click(); });
    wireChange(Txt_Play_Person_Nr, "Txt_Play_Person_Nr_Change", [this] { Txt_Play_Person_Nr_Change(); });
    op("LoadPractice", [this] { LoadPractice(); });
    op("ShowPracticeControls", [this] { ShowPracticeControls(); });

    // Presets and cut-back.
    wireClick(Cmd_Default, "Cmd_Default_Click", [this] { Cmd_Default_Click(); });
    wireClick(Cmd_2Exact_Match, "Cmd_2Exact_Match_Click", [this] { Cmd_2Exact_Match_Click(); });
    wireClick(CMD_2DefDev2, "CMD_2DefDev2_Click", [this] { CMD_2DefDev2_Click(); });
    wireClick(CMD_2DefDev4, "CMD_2DefDev4_Click", [this] { CMD_2DefDev4_Click(); });
    wireClick(Cmd_2DefTimes2, "Cmd_2DefTimes2_Click", [this] { Cmd_2DefTimes2_Click(); });
    wireClick(Cmd_MAX, "Cmd_MAX_Click", [this] { Cmd_MAX_Click(); });
    wireClick(Cmd_LeftCutBackSearch, "Cmd_LeftCutBackSearch_Click", [this] { Cmd_LeftCutBackSearch_Click(); });
    wireClick(Cmd_RightCutBackSearch, "Cmd_RightCutBackSearch_Click", [this] { Cmd_RightCutBackSearch_Click(); });
    wireClick(Cmd_BothCutBackSearch, "Cmd_BothCutBackSearch_Click", [this] { Cmd_BothCutBackSearch_Click(); });
    wireClick(Cmd_LeftResetCutBack, "Cmd_LeftResetCutBack_Click", [this] { Cmd_LeftResetCutBack_Click(); });
    wireClick(Cmd_RightResetCutBack, "Cmd_RightResetCutBack_Click", [this] { Cmd_RightResetCutBack_Click(); });
    wireClick(Cmd_BothReset, "Cmd_BothReset_Click", [this] { Cmd_BothReset_Click(); });

    // Timers.
    Tmr_InventoryMovement.onTimer = [this] { Tmr_InventoryMovement_Timer(); };
    Tmr_SaveInventory.onTimer = [this] { Tmr_SaveInventory_Timer(); };
    Tmr_RefreshPersonList.onTimer = [this] { Tmr_RefreshPersonList_Timer(); };
    op("Tmr_InventoryMovement_Timer", Tmr_InventoryMovement.onTimer);
    op("Tmr_SaveInventory_Timer", Tmr_SaveInventory.onTimer);
    op("Tmr_RefreshPersonList_Timer", Tmr_RefreshPersonList.onTimer);

    // Operations that other screens call by name.
    op("Get_Readings", [this] { Get_Readings(); });
    op("ListInventory", [this] { ListInventory(); });
    op("ListPersons", [this] { ListPersons(); });
    op("Calculate_AMP", [this] { Calculate_AMP(); });
    op("DisplayPrescription", [this] { DisplayPrescription(); });
    op("Make_Recommendation", [this] { Make_Recommendation(); });
    op("TabIndexleft", [this] { TabIndexleft(); });
    op("TabIndexRight", [this] { TabIndexRight(); });
    op("WriteAutorefractorPrescription", [this] { WriteAutorefractorPrescription(); });
    op("Announce_Selection", [this] { Announce_Selection(); });
    op("Journal_AddRemove", [this] { Journal_AddRemove(); });
    op("JournalMeasumentData", [this] { JournalMeasumentData(); });
    op("ClearEntryValues", [this] { ClearEntryValues(); });
    op("GetAgeAdjustment", [this] { GetAgeAdjustment(); });
    op("GetReadingPower", [this] { GetReadingPower(); });
}

void Frm_Vistrel::bindRegistry()
{
    var("VistrelFlag", VistrelFlag);
    var("ProgramOptionsFlag", ProgramOptionsFlag);
    var("FirstLoad", FirstLoad);
    var("InventoryLocation", InventoryLocation);
    var("ProgramFilesLocation", ProgramFilesLocation);
    var("Max_Sphere_OverageValue", Max_Sphere_OverageValue);
    var("Max_Sphere_OverageValueDefault", Max_Sphere_OverageValueDefault);
    var("Max_Cylinder_OverageValue", Max_Cylinder_OverageValue);
    var("Max_Cylinder_OverageValueDefault", Max_Cylinder_OverageValueDefault);
    var("Axis_DeviationValue", Axis_DeviationValue);
    var("Axis_DeviationValueDefault", Axis_DeviationValueDefault);
    var("Max_CylinderValue", Max_CylinderValue);
    var("Max_CylinderValueDefault", Max_CylinderValueDefault);
    var("Min_SphereValue", Min_SphereValue);
    var("Min_SphereValueDefault", Min_SphereValueDefault);
    var("Txt_CutBackValue", Txt_CutBackValue);
    var("Txt_CutBackValueDefault", Txt_CutBackValueDefault);
    var("LeftToleranceMultiplier", LeftToleranceMultiplier);
    var("RightToleranceMultiplier", RightToleranceMultiplier);
    var("PublicMaximumEntries", PublicMaximumEntries);
    var("PublicMaximumLocations", PublicMaximumLocations);
    var("PublicSearchLength", PublicSearchLength);
    var("PublicMaxMeasSaved", PublicMaxMeasSaved);
    var("MeasurementsSaved", MeasurementsSaved);
    var("SavePrescriptionYesNo", SavePrescriptionYesNo);
    var("SavePrescriptionASK", SavePrescriptionASK);
    var("SkipSearch", SkipSearch);
    var("JumpBack", JumpBack);
    var("FlipLeftFirst", FlipLeftFirst);
    var("SaveLeftPosition", SaveLeftPosition);
    var("LeftIsCutback", LeftIsCutback);
    var("RightIsCutback", RightIsCutback);
    var("Txt_Sphere_LeftSave", Txt_Sphere_LeftSave);
    var("Txt_Cylinder_LeftSave", Txt_Cylinder_LeftSave);
    var("Txt_Sphere_RightSave", Txt_Sphere_RightSave);
    var("Txt_Cylinder_RightSave", Txt_Cylinder_RightSave);
    var("SaveLeftSphere", SaveLeftSphere);
    var("SaveLeftCylinder", SaveLeftCylinder);
    var("SaveLeftAxis", SaveLeftAxis);
    var("SaveRightSphere", SaveRightSphere);
    var("SaveRightCylinder", SaveRightCylinder);
    var("SaveRightAxis", SaveRightAxis);
    var("LeftOnlyValue", LeftOnlyValue);
    var("RightOnlyValue", RightOnlyValue);
    var("MatchBothValue", MatchBothValue);
    var("BlindLeft", BlindLeft);
    var("BlindRight", BlindRight);
    var("DominantLeft", DominantLeft);
    var("DominantRight", DominantRight);
    var("MatchReadingAlsoValue", MatchReadingAlsoValue);
    var("MatchReadingOnlyValue", MatchReadingOnlyValue);
    var("RefreshAddRemoveValue", RefreshAddRemoveValue);
    var("DiagnosticValue", DiagnosticValue);
    var("NOSphericalEquivalent", NOSphericalEquivalent);
    var("NOSphericalEquivalentLeft", NOSphericalEquivalentLeft);
    var("NOSphericalEquivalentRight", NOSphericalEquivalentRight);
    var("BothChanged", BothChanged);
    var("LeftChanged", LeftChanged);
    var("RightChanged", RightChanged);
    var("MinusBusy", MinusBusy);
    var("PlusBusy", PlusBusy);
    var("WizardFlash", WizardFlash);
    var("WizardFlashCounter", WizardFlashCounter);
    var("GlassesNeeded", GlassesNeeded);
    var("GlassesOptional", GlassesOptional);
    var("Person_Nr", Person_Nr);
    var("Practice_Loaded", Practice_Loaded);
    var("HighestInventoryNr", HighestInventoryNr);
    var("FoundCount", FoundCount);
    var("EOF_Found", EOF_Found);
    var("JournalOK", JournalOK);
    var("JournalBadPoint", JournalBadPoint);
    var("Filenum", Filenum);
    var("AutoFileNum", AutoFileNum);
    var("JournalFileNum", JournalFileNum);
    var("NetworkJournalFileNum", NetworkJournalFileNum);
    var("ReportFileNum", ReportFileNum);
    var("DeletedFileNum", DeletedFileNum);
    var("UnMatchedFileNum", UnMatchedFileNum);
    var("ReportFileName", ReportFileName);
    var("DeletedFileName", DeletedFileName);
    var("UnMatchedFileName", UnMatchedFileName);
    var("NetworkJournalOfflineCounter", NetworkJournalOfflineCounter);
    var("NetworkJournalRefreshCounter", NetworkJournalRefreshCounter);
    var("AutoRefractorType", AutoRefractorType);
    var("ComPortNumber", ComPortNumber);
    var("PrintPrescription", PrintPrescription);
    var("AutoSearch", AutoSearch);
    var("Confidence", Confidence);
    var("LeftSphereRead", LeftSphereRead);
    var("LeftCylinderRead", LeftCylinderRead);
    var("LeftReadingPower", LeftReadingPower);
    var("RightSphereRead", RightSphereRead);
    var("RightCylinderRead", RightCylinderRead);
    var("RightReadingPower", RightReadingPower);
    var("LeftSphereEqu", LeftSphereEqu);
    var("RightSphereEqu", RightSphereEqu);
    var("LeftAxisRead", LeftAxisRead);
    var("RightAxisRead", RightAxisRead);
    var("Response", Response);
    var("ReturnInventoryFlag", ReturnInventoryFlag);
    var("AutoFilename", AutoFilename);
    var("SelectedRowText", SelectedRowText);
    var("SelectedIndex", SelectedIndex);
    var("JournalAddFlag", JournalAddFlag);
    var("ChosenAddText", ChosenAddText);
    var("InventoryLoaded", InventoryLoaded);
    var("SaveInventoryCountdown", SaveInventoryCountdown);
    var("RecommendationRunning", RecommendationRunning);
    var("RecommendationBusy", RecommendationBusy);
    var("PracticePlayEnabled", PracticePlayEnabled);
    var("InventoryNrBusy", InventoryNrBusy);
    var("InventoryNrExpired", InventoryNrExpired);
    var("InventoryNrCountdown", InventoryNrCountdown);
    var("LastInventoryNrText", LastInventoryNrText);
    var("CrLf", CrLf);
    var("OptionsFileName", OptionsFileName);
    var("OptDefaultSetting", OptDefaultSetting);
    var("OptEquivalent", OptEquivalent);
    var("OptDiagnostic", OptDiagnostic);
    var("OptRefreshAddRemove", OptRefreshAddRemove);
    var("OptAutorefractorEnable", OptAutorefractorEnable);
    var("OptNoFocometer", OptNoFocometer);
    var("OptPrintGlasses", OptPrintGlasses);
    var("InventoryCount", InventoryCount);
    var("ReadingGlassesTotal", ReadingGlassesTotal);
    var("ListedCount", ListedCount);
    var("PersonsListed", PersonsListed);
    var("FoundListCount", FoundListCount);
    var("LeftMatchFlag", LeftMatchFlag);
    var("RightMatchFlag", RightMatchFlag);
    var("DiagnosticHeaderPending", DiagnosticHeaderPending);

    bindVar("AdviceLines", bind::table(AdviceLines, 0));
    bindVar("Inv_Number", bind::table(Inv_Number, 1));
    bindVar("Inv_LeftSphere", bind::table(Inv_LeftSphere, Inv_FieldsRead, 1));
    bindVar("Inv_LeftCylinder", bind::table(Inv_LeftCylinder, Inv_FieldsRead, 1));
    bindVar("Inv_LeftAxis", bind::table(Inv_LeftAxis, 1));
    bindVar("Inv_LeftAdd", bind::table(Inv_LeftAdd, 1));
    bindVar("Inv_RightSphere", bind::table(Inv_RightSphere, Inv_FieldsRead, 1));
    bindVar("Inv_RightCylinder", bind::table(Inv_RightCylinder, Inv_FieldsRead, 1));
    bindVar("Inv_RightAxis", bind::table(Inv_RightAxis, 1));
    bindVar("Inv_RightAdd", bind::table(Inv_RightAdd, 1));
    bindVar("Inv_Sunglasses", bind::table(Inv_Sunglasses, 1));
    bindVar("Inv_Reading", bind::table(Inv_Reading, 1));
    bindVar("Inv_SpareFlag", bind::table(Inv_SpareFlag, 1));
    bindVar("Inv_Progressive", bind::table(Inv_Progressive, 1));
    bindVar("Inv_Bifocal", bind::table(Inv_Bifocal, 1));
    bindVar("Inv_PD", bind::table(Inv_PD, 1));
    bindVar("Inv_Gender", bind::table(Inv_Gender, 1));
    bindVar("Inv_RejectCount", bind::table(Inv_RejectCount, 1));
    bindVar("Inv_Comment", bind::table(Inv_Comment, 1));
    bindVar("Inv_Extra1", bind::table(Inv_Extra1, 1));
    bindVar("Inv_Extra2", bind::table(Inv_Extra2, 1));
    bindVar("Inv_Removed", bind::table(Inv_Removed, 1));
    bindVar("Inv_PersonNumber", bind::table(Inv_PersonNumber, 1));
    bindVar("Inv_LocationUsed", bind::table(Inv_LocationUsed, 1));
    bindVar("Found_Number", bind::table(Found_Number, 1));
    bindVar("Found_Index", bind::table(Found_Index, 1));
    bindVar("Found_Score", bind::table(Found_Score, 1));
    bindVar("Found_Gender", bind::table(Found_Gender, 1));
    bindVar("Found_Bifocal", bind::table(Found_Bifocal, 1));
    bindVar("Found_Progressive", bind::table(Found_Progressive, 1));
    bindVar("Meas_LeftSphere", bind::table(Meas_LeftSphere, Meas_Written, 1));
    bindVar("Meas_LeftCylinder", bind::table(Meas_LeftCylinder, Meas_Written, 1));
    bindVar("Meas_LeftAxis", bind::table(Meas_LeftAxis, Meas_Written, 1));
    bindVar("Meas_LeftAdd", bind::table(Meas_LeftAdd, Meas_Written, 1));
    bindVar("Meas_LeftReadingPower", bind::table(Meas_LeftAdd, Meas_Written, 1));
    bindVar("Meas_LeftSphereEqu", bind::table(Meas_LeftSphereEqu, 1));
    bindVar("Meas_RightSphere", bind::table(Meas_RightSphere, Meas_Written, 1));
    bindVar("Meas_RightCylinder", bind::table(Meas_RightCylinder, Meas_Written, 1));
    bindVar("Meas_RightAxis", bind::table(Meas_RightAxis, Meas_Written, 1));
    bindVar("Meas_RightAdd", bind::table(Meas_RightAdd, Meas_Written, 1));
    bindVar("Meas_RightReadingPower", bind::table(Meas_RightAdd, Meas_Written, 1));
    bindVar("Meas_RightSphereEqu", bind::table(Meas_RightSphereEqu, 1));
}

}  // namespace vistrel
