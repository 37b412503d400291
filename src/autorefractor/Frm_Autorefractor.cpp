#include "Frm_Autorefractor.h"

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"

namespace vistrel {

Frm_Autorefractor::Frm_Autorefractor(Station& station) : Screen(station, "Frm_Autorefractor")
{
    design();
    wireHandlers();

    var("buffer", buffer);
    var("LastBufferSize", LastBufferSize);
    var("LastLookSize", LastLookSize);
    var("ClockTimer", ClockTimer);
    var("SecondTimer", SecondTimer);
    var("ShowTimer", ShowTimer);
    var("Cr", Cr);
    var("Lf", Lf);
    var("NewLine", NewLine);
    var("Showing", Showing);
    var("EntryError", EntryError);
    var("Input_resp", Input_resp);
    var("CanonStep", CanonStep);
}

void Frm_Autorefractor::wireHandlers()
{
    wireClick(Cmd_AutoClearAll, "Cmd_AutoClearAll_Click", [this] { Cmd_AutoClearAll_Click(); });
    wireClick(Cmd_AutoClearLeft, "Cmd_AutoClearLeft_Click", [this] { Cmd_AutoClearLeft_Click(); });
    wireClick(Cmd_AutoClearRight, "Cmd_AutoClearRight_Click", [this] { Cmd_AutoClearRight_Click(); });
    wireClick(Cmd_AutoSearch, "Cmd_AutoSearch_Click", [this] { Cmd_AutoSearch_Click(); });
    wireClick(Cmd_HideAutorefractorDataCaptureForm, "Cmd_HideAutorefractorDataCaptureForm_Click",
        [this] { Cmd_HideAutorefractorDataCaptureForm_Click(); });
    wireClick(Cmd_LeftConfidenceUP, "Cmd_LeftConfidenceUP_Click", [this] { Cmd_LeftConfidenceUP_Click(); });
    wireClick(Cmd_LeftConfidenceDOWN, "Cmd_LeftConfidenceDOWN_Click", [this] { Cmd_LeftConfidenceDOWN_Click(); });
    wireClick(Cmd_RightConfidenceUP, "Cmd_RightConfidenceUP_Click", [this] { Cmd_RightConfidenceUP_Click(); });
    wireClick(Cmd_RightConfidenceDOWN, "Cmd_RightConfidenceDOWN_Click", [this] { Cmd_RightConfidenceDOWN_Click(); });
    wireChange(Txt_AutoReading, "Txt_AutoReading_Change", [this] { Txt_AutoReading_Change(); });
    wireChange(Txt_LeftConfidenceValue, "Txt_LeftConfidenceValue_Change", [this] { Txt_LeftConfidenceValue_Change(); });
    wireChange(Txt_RightConfidenceValue, "Txt_RightConfidenceValue_Change",
        [this] { Txt_RightConfidenceValue_Change(); });
    for (int i = 0; i <= 1; ++i)
        Txt_AutoSphere[i].onDblClick = [this, i] { Txt_AutoSphere_DblClick(i); };
    op("Clear_Eye(0)", [this] { Clear_Eye(0); });
    op("Clear_Eye(1)", [this] { Clear_Eye(1); });

    Tmr_CountDataFlow.onTimer = [this] { Tmr_CountDataFlow_Timer(); };
    op("Tmr_CountDataFlow_Timer", Tmr_CountDataFlow.onTimer);
    op("AutoProcessBuffer", [this] { AutoProcessBuffer(); });
    op("MSComm1_OnComm", [this] { MSComm1_OnComm(); });
    op("Form_Load", [this] { Form_Load(); });
    op("Form_GotFocus", [this] { Form_GotFocus(); });
    onLoad = [this] { Form_Load(); };
    onCloseBox = [this] { Cmd_HideAutorefractorDataCaptureForm_Click(); };
    MSComm1().onComm = [this] { MSComm1_OnComm(); };
}

SerialPort& Frm_Autorefractor::MSComm1() const
{
    return platform().serialPort();
}

void Frm_Autorefractor::PreparePort()
{
    buffer.clear();
    LastBufferSize = Variant(0);
    LastLookSize = 0;
    ClockTimer = Variant(0);
    Cr = "\r";
    Lf = "\n";
    NewLine = Cr + Lf;
    Showing = false;
    ShowTimer = -1;
    // The port opens before its last settings are made; a port that is
    // missing or in use is no error: the station runs on by hand.
    SerialPort& port = MSComm1();
    port.setInBufferSize(1024);
    port.setPortOpen(true);
    port.setDTREnable(true);
    port.setEOFEnable(false);
    port.setHandshaking(0);
    port.setInputMode(0);
    port.setRThreshold(1);
    port.setRTSEnable(true);
}

// ---- Buttons ----

void Frm_Autorefractor::Cmd_AutoClearAll_Click()
{
    Txt_AutoReading.setText("1");
    Clear_Eye(0);
    Clear_Eye(1);
}

void Frm_Autorefractor::Cmd_AutoSearch_Click()
{
    if (vistrel().SkipSearch)
        return;
    hide();
    Showing = false;
    vistrel().Search_Click();
}

void Frm_Autorefractor::Cmd_HideAutorefractorDataCaptureForm_Click()
{
    // The old check result isn't kept.
    setTop(7620);
    Lbl_ErrorStatus.setVisible(true);
    Lbl_ErrorStatus.setForeColor(0);
    Lbl_ErrorStatus.setCaption("                     OK");
    hide();
    Showing = false;
}

// ---- Corrections before the search ----

void Frm_Autorefractor::Clear_Eye(int index)
{
    if (index != 0 && index != 1)
        return;
    // The sphere isn't emptied: it shows a zero to be typed over.
    Txt_AutoSphere[index].setText("00.00");
    Txt_AutoCylinder[index].setText("");
    Txt_AutoAxis[index].setText("");
    Frm_Vistrel& v = vistrel();
    v.Txt_Sphere_Left.setText(Txt_AutoSphere[0].text());
    v.Txt_Cylinder_Left.setText(Txt_AutoCylinder[0].text());
    v.Txt_Axis_Left.setText(Txt_AutoAxis[0].text());
    v.Txt_Sphere_Right.setText(Txt_AutoSphere[1].text());
    v.Txt_Cylinder_Right.setText(Txt_AutoCylinder[1].text());
    v.Txt_Axis_Right.setText(Txt_AutoAxis[1].text());
    v.Txt_ReadingNr.setText(Txt_AutoReading.text());
}

void Frm_Autorefractor::Txt_AutoSphere_DblClick(int index)
{
    if (index == 0 || index == 1)
        Txt_AutoSphere[index].setText("");
}

void Frm_Autorefractor::Txt_AutoReading_Change()
{
    vistrel().Txt_ReadingNr.setText(Txt_AutoReading.text());
}

namespace {

// A confidence value is a whole number from 1 to 10; the main screen
// keeps the same value.
void keepConfidence(TextBox& box, TextBox& mainBox)
{
    if (Val(box.text()) > 10)
        box.setText("10");
    if (Val(box.text()) < 1)
        box.setText("1");
    mainBox.setText(box.text());
}

void stepConfidence(TextBox& box, double step)
{
    box.setText(Str(Val(box.text()) + step));
}

}  // namespace

void Frm_Autorefractor::Txt_LeftConfidenceValue_Change()
{
    keepConfidence(Txt_LeftConfidenceValue, vistrel().Txt_LeftConfidenceValue);
}

void Frm_Autorefractor::Txt_RightConfidenceValue_Change()
{
    keepConfidence(Txt_RightConfidenceValue, vistrel().Txt_RightConfidenceValue);
}

void Frm_Autorefractor::Cmd_LeftConfidenceUP_Click()
{
    stepConfidence(Txt_LeftConfidenceValue, 1);
}

void Frm_Autorefractor::Cmd_LeftConfidenceDOWN_Click()
{
    stepConfidence(Txt_LeftConfidenceValue, -1);
}

void Frm_Autorefractor::Cmd_RightConfidenceUP_Click()
{
    stepConfidence(Txt_RightConfidenceValue, 1);
}

void Frm_Autorefractor::Cmd_RightConfidenceDOWN_Click()
{
    stepConfidence(Txt_RightConfidenceValue, -1);
}

}  // namespace vistrel
