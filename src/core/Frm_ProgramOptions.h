#pragma once

#include "screen/Screen.h"

namespace vistrel {

// The options screen: the one place where the station's settings are
// changed. Its check boxes are the live copy of the options; its
// Cmd_Continue applies them and writes the options file.
class Frm_ProgramOptions : public Screen {
public:
    explicit Frm_ProgramOptions(Station& station);

    // ---- Tolerances ----
    Frame Frm_Tolerances{*this, "Frm_Tolerances"};
    Label Lbl_Max_Sphere_Overage{*this, "Lbl_Max_Sphere_Overage"};
    TextBox Txt_Max_Sphere_Overage{*this, "Txt_Max_Sphere_Overage"};
    Label Lbl_Max_Cylinder_Overage{*this, "Lbl_Max_Cylinder_Overage"};
    TextBox Txt_Max_Cylinder_Overage{*this, "Txt_Max_Cylinder_Overage"};
    Label Lbl_Axis_Deviation{*this, "Lbl_Axis_Deviation"};
    TextBox Txt_Axis_Deviation{*this, "Txt_Axis_Deviation"};
    Label Lbl_Max_Cylinder{*this, "Lbl_Max_Cylinder"};
    TextBox Txt_Max_Cylinder{*this, "Txt_Max_Cylinder"};
    Label Lbl_Min_Sphere{*this, "Lbl_Min_Sphere"};
    TextBox Txt_Min_Sphere{*this, "Txt_Min_Sphere"};
    Label Lbl_CutBack{*this, "Lbl_CutBack"};
    TextBox Txt_CutBack{*this, "Txt_CutBack"};
    CommandButton Cmd_RestoreDefaults{*this, "Cmd_RestoreDefaults"};
    CommandButton Cmd_ExactMatch{*this, "Cmd_ExactMatch"};
    CommandButton Cmd_DefaultsDev2{*this, "Cmd_DefaultsDev2"};
    CommandButton Cmd_DefaultsDev4{*this, "Cmd_DefaultsDev4"};
    CommandButton Cmd_DefaultsTimes2{*this, "Cmd_DefaultsTimes2"};
    CommandButton Cmd_MAX{*this, "Cmd_MAX"};

    // ---- Matching ----
    Frame Frm_Match{*this, "Frm_Match"};
    CheckBox Chk_IncludeEither{*this, "Chk_IncludeEither"};
    OptionGroup MatchGroup;
    OptionButton Opt_LeftOnly{*this, "Opt_LeftOnly", MatchGroup};
    OptionButton Opt_RightOnly{*this, "Opt_RightOnly", MatchGroup};
    OptionButton Opt_MatchBoth{*this, "Opt_MatchBoth", MatchGroup};
    CheckBox Chk_MatchReadingAlso{*this, "Chk_MatchReadingAlso"};
    CheckBox Chk_MatchReadingOnly{*this, "Chk_MatchReadingOnly"};
    CheckBox Chk_NOSpherical_Equivalent{*this, "Chk_NOSpherical_Equivalent"};

    // ---- Varn rules ----
    Frame Frm_VarnRules{*this, "Frm_VarnRules"};
    CheckBox Chk_VarnRule{*this, "Chk_VarnRule"};
    CheckBox Chk_NoOverplus{*this, "Chk_NoOverplus"};
    CheckBox Chk_NoOverCylinder{*this, "Chk_NoOverCylinder"};
    CheckBox Chk_NoOverMinus{*this, "Chk_NoOverMinus"};
    TextBox Txt_YearsOverMinus{*this, "Txt_YearsOverMinus"};
    Label Lbl_YearsOrGreater{*this, "Lbl_YearsOrGreater"};
    CheckBox Chk_UpTo50{*this, "Chk_UpTo50"};
    CommandButton Cmd_HelpWithRule{*this, "Cmd_HelpWithRule"};

    // ---- Station ----
    Frame Frm_Station{*this, "Frm_Station"};
    CheckBox Chk_Diagnostic{*this, "Chk_Diagnostic"};
    CheckBox Chk_RefreshAddRemove{*this, "Chk_RefreshAddRemove"};
    CheckBox Chk_AutoSearch{*this, "Chk_AutoSearch"};
    CheckBox Chk_AutoSearchWhenRead{*this, "Chk_AutoSearchWhenRead"};
    CheckBox Chk_ConfidenceLevel{*this, "Chk_ConfidenceLevel"};
    CheckBox Chk_PrintPrescription{*this, "Chk_PrintPrescription"};
    CheckBox Chk_PrintGlassesPrescriptions{*this, "Chk_PrintGlassesPrescriptions"};
    CheckBox Chk_ShowLevel{*this, "Chk_ShowLevel"};
    CheckBox Chk_EnableHome{*this, "Chk_EnableHome"};
    CheckBox Chk_NOFocometer{*this, "Chk_NOFocometer"};
    Frame Frm_RemoveForms{*this, "Frm_RemoveForms"};
    CheckBox Chk_ReadingGlasses{*this, "Chk_ReadingGlasses"};
    CheckBox Chk_LensFrames{*this, "Chk_LensFrames"};
    CheckBox Chk_EnableNetJournal{*this, "Chk_EnableNetJournal"};
    Frame Frm_NetworkJournalPath{*this, "Frm_NetworkJournalPath"};
    TextBox Txt_NetworkJournalPath{*this, "Txt_NetworkJournalPath"};
    Image Img_PointPath{*this, "Img_PointPath"};
    Label Lbl_HighestInventoryNumber{*this, "Lbl_HighestInventoryNumber"};
    TextBox Txt_HighestInventoryNumber{*this, "Txt_HighestInventoryNumber"};
    Label Lbl_ChoosePrinter{*this, "Lbl_ChoosePrinter"};
    ComboBox Cmb_ChoosePrinter{*this, "Cmb_ChoosePrinter"};

    // ---- Add chart ----
    Frame Frm_BifocalAdd{*this, "Frm_BifocalAdd"};
    Label Lbl_ChartFrom{*this, "Lbl_ChartFrom"};
    Label Lbl_ChartTo{*this, "Lbl_ChartTo"};
    Label Lbl_ChartAdd{*this, "Lbl_ChartAdd"};
    ControlArray<TextBox> Txt_From{*this, "Txt_From", 0, 7};
    ControlArray<TextBox> Txt_To{*this, "Txt_To", 0, 7};
    ControlArray<TextBox> Txt_Add{*this, "Txt_Add", 0, 7};

    // ---- Autorefractor ----
    CheckBox Chk_EnableAutorefractorDataCapture{*this, "Chk_EnableAutorefractorDataCapture"};
    Frame Frm_Autorefractors{*this, "Frm_Autorefractors"};
    OptionGroup ModelGroup;
    OptionButton Opt_NikonRetinomax{*this, "Opt_NikonRetinomax", ModelGroup};
    OptionButton Opt_NikonRetinomax2{*this, "Opt_NikonRetinomax2", ModelGroup};
    OptionButton Opt_NikonRetinomax3{*this, "Opt_NikonRetinomax3", ModelGroup};
    OptionButton Opt_Humphrey597{*this, "Opt_Humphrey597", ModelGroup};
    OptionButton Opt_WelchAllynSuresight{*this, "Opt_WelchAllynSuresight", ModelGroup};
    OptionButton Opt_MarcoNidekArk{*this, "Opt_MarcoNidekArk", ModelGroup};
    OptionButton Opt_CanonRK2{*this, "Opt_CanonRK2", ModelGroup};
    OptionButton Opt_KR_3000_7000{*this, "Opt_KR_3000_7000", ModelGroup};
    OptionButton Opt_Burton2010{*this, "Opt_Burton2010", ModelGroup};
    OptionButton Opt_ShinNippon8001{*this, "Opt_ShinNippon8001", ModelGroup};
    OptionButton Opt_Reichert_RK600{*this, "Opt_Reichert_RK600", ModelGroup};
    OptionButton Opt_NoAutorefractor{*this, "Opt_NoAutorefractor", ModelGroup};
    Label Lbl_AutorefractorType{*this, "Lbl_AutorefractorType"};
    Frame Frm_ComPort{*this, "Frm_ComPort"};
    OptionGroup ComGroup;
    ControlArray<OptionButton> Opt_Com{*this, "Opt_Com", 0, 16, ComGroup};

    CommandButton Cmd_Continue{*this, "Cmd_Continue"};
    CommandButton Cmd_SaveContinue{*this, "Cmd_SaveContinue"};

    bool Showing = false;
    bool OptionsBusy = false;    // the dialog is filling or being left
    bool SaveRequested = false;  // Cmd_Continue writes the file

    // Handlers.
    void Form_Activate();
    void Form_Load();
    void Cmd_Continue_Click();
    void Cmd_SaveContinue_Click();
    void Chk_AutoSearchWhenRead_Click();
    void Chk_IncludeEither_Click();
    void Chk_PrintPrescription_Click();
    void Chk_NoOverMinus_Click();
    void Chk_UpTo50_Click();
    void Chk_Diagnostic_Click();
    void Chk_RefreshAddRemove_Click();
    void Chk_ConfidenceLevel_Click();
    void Chk_NOSpherical_Equivalent_Click();
    void Chk_EnableHome_Click();
    void Chk_ReadingGlasses_Click();
    void Chk_LensFrames_Click();
    void Chk_NOFocometer_Click();
    void Chk_MatchReadingAlso_Click();
    void Chk_MatchReadingOnly_Click();
    void Opt_LeftOnly_Click();
    void Opt_RightOnly_Click();
    void Opt_MatchBoth_Click();
    void Chk_VarnRule_Click();
    void Chk_ShowLevel_Click();
    void Chk_EnableNetJournal_Click();
    void Chk_EnableAutorefractorDataCapture_Click();
    void Cmb_ChoosePrinter_Click();
    void Txt_YearsOverMinus_Change();
    void Cmd_HelpWithRule_Click();
    void Txt_HighestInventoryNumber_Change();
    void ToleranceTyped(TextBox& box, std::string& value, std::string& valueDefault);

    // Presets (kept in step with the main screen's buttons).
    void Cmd_RestoreDefaults_Click();
    void Cmd_ExactMatch_Click();
    void Cmd_DefaultsDev2_Click();
    void Cmd_DefaultsDev4_Click();
    void Cmd_DefaultsTimes2_Click();
    void Cmd_MAX_Click();
    void LockToleranceFields(bool lock);

    // The options line, built from the screen (applying the choice as it goes).
    std::string BuildOptionsLine(bool& restart);
    void WriteOptionsFile(const std::string& line);

private:
    void design();
};

}  // namespace vistrel
