#pragma once

#include "core/screen/Screen.h"

#include <cstdint>

namespace vistrel {

class SerialPort;

// The capture screen of the autorefractor: it owns the serial line, collects
// what arrives and hands a decoded reading to the main screen.
class Frm_Autorefractor : public Screen {
public:
    explicit Frm_Autorefractor(Station& station);

    Frame Frm_LettEyeAuto0{*this, "Frm_LettEyeAuto", 0};
    Frame Frm_LettEyeAuto1{*this, "Frm_LettEyeAuto", 1};
    ControlArray<TextBox> Txt_AutoSphere{*this, "Txt_AutoSphere", 0, 1};
    ControlArray<TextBox> Txt_AutoCylinder{*this, "Txt_AutoCylinder", 0, 1};
    ControlArray<TextBox> Txt_AutoAxis{*this, "Txt_AutoAxis", 0, 1};
    Frame Frm_AutoPerson{*this, "Frm_AutoPerson"};
    TextBox Txt_AutoReading{*this, "Txt_AutoReading"};
    Label Lbl_LeftConfidenceValue{*this, "Lbl_LeftConfidenceValue"};
    TextBox Txt_LeftConfidenceValue{*this, "Txt_LeftConfidenceValue"};
    CommandButton Cmd_LeftConfidenceUP{*this, "Cmd_LeftConfidenceUP"};
    CommandButton Cmd_LeftConfidenceDOWN{*this, "Cmd_LeftConfidenceDOWN"};
    Label Lbl_RightConfidenceValue{*this, "Lbl_RightConfidenceValue"};
    TextBox Txt_RightConfidenceValue{*this, "Txt_RightConfidenceValue"};
    CommandButton Cmd_RightConfidenceUP{*this, "Cmd_RightConfidenceUP"};
    CommandButton Cmd_RightConfidenceDOWN{*this, "Cmd_RightConfidenceDOWN"};
    CommandButton Cmd_AutoClearAll{*this, "Cmd_AutoClearAll"};
    CommandButton Cmd_AutoClearLeft{*this, "Cmd_AutoClearLeft"};
    CommandButton Cmd_AutoClearRight{*this, "Cmd_AutoClearRight"};
    CommandButton Cmd_AutoSearch{*this, "Cmd_AutoSearch"};
    CommandButton Cmd_HideAutorefractorDataCaptureForm{*this, "Cmd_HideAutorefractorDataCaptureForm"};
    Frame frm_AutoSearchOptions{*this, "frm_AutoSearchOptions"};
    CheckBox Chk_AutoEnableAutoSearch{*this, "Chk_AutoEnableAutoSearch"};
    Label Lbl_AutoIncoming{*this, "Lbl_AutoIncoming"};
    Label Lbl_ErrorStatus{*this, "Lbl_ErrorStatus"};
    Frame Frm_Notice{*this, "Frm_Notice"};
    Label Lbl_VerifyLeftRightConfidenceValues{*this, "Lbl_VerifyLeftRightConfidenceValues"};
    Label Lbl_Describe{*this, "Lbl_Describe"};
    Timer Tmr_CountDataFlow{*this, "Tmr_CountDataFlow", 200};

    std::string buffer;
    Variant LastBufferSize = Variant(0);
    // Wider than the 16 bits it once had: a line that floods the buffer
    // past 32767 characters must still come to rest and be processed.
    std::int32_t LastLookSize = 0;
    Variant ClockTimer = Variant(0);
    Variant SecondTimer;
    std::int32_t ShowTimer = -1;
    std::string Cr = "\r";
    std::string Lf = "\n";
    std::string NewLine = "\r\n";
    bool Showing = false;
    bool EntryError = false;
    std::string Input_resp;
    std::int16_t CanonStep = 1;

    SerialPort& MSComm1() const;

    // Prepares the line at start-up; every failure is ignored.
    void PreparePort();

    // ---- Capture ----
    void MSComm1_OnComm();
    void Tmr_CountDataFlow_Timer();
    void AutoProcessBuffer();
    void Form_Load();
    void Form_GotFocus() { Showing = true; }

    // ---- Buttons ----
    void Cmd_AutoClearAll_Click();
    void Cmd_AutoClearLeft_Click() { Clear_Eye(0); }
    void Cmd_AutoClearRight_Click() { Clear_Eye(1); }
    void Cmd_AutoSearch_Click();
    void Cmd_HideAutorefractorDataCaptureForm_Click();

    // ---- Corrections before the search ----
    void Clear_Eye(int index);
    void Txt_AutoSphere_DblClick(int index);
    void Txt_AutoReading_Change();
    void Txt_LeftConfidenceValue_Change();
    void Txt_RightConfidenceValue_Change();
    void Cmd_LeftConfidenceUP_Click();
    void Cmd_LeftConfidenceDOWN_Click();
    void Cmd_RightConfidenceUP_Click();
    void Cmd_RightConfidenceDOWN_Click();

private:
    void clearBuffer();
    // The result of the check on the label: good, an entry error, or the
    // RK600's partial data.
    void showCheck(bool good, bool partial);
    void transferToMainScreen();
    void wireHandlers();
    void design();
};

}  // namespace vistrel
