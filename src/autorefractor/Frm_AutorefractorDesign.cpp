// How the capture screen is drawn: the values of each eye, the reading
// number, the confidence values, the buttons and the status label.

#include "Frm_Autorefractor.h"

#include <initializer_list>

namespace vistrel {

void Frm_Autorefractor::design()
{
    setCaption("Autorefractor Data Captured.                                        Version 5.3-2");
    setGeometry(0, 8475, 9600, 4500);
    for (int i = 0; i <= 1; ++i) {
        const int x = i == 0 ? 240 : 4800;
        Frame& eye = i == 0 ? Frm_LettEyeAuto0 : Frm_LettEyeAuto1;
        // The boxes have no headings of their own: the frame names them.
        eye.setCaption(i == 0 ? "Left eye (OS):   Sphere,  Cylinder,  Axis" : "Right eye (OD):   Sphere,  Cylinder,  Axis");
        eye.setGeometry(x, 120, 4320, 1200);
        const char* tip = "It is easier to make changes of this field on the main form.";
        Txt_AutoSphere[i].setContainer(&eye);
        Txt_AutoSphere[i].setGeometry(240, 480, 1215, 375);
        Txt_AutoSphere[i].setToolTipText(tip);
        Txt_AutoCylinder[i].setContainer(&eye);
        Txt_AutoCylinder[i].setGeometry(1560, 480, 1215, 375);
        Txt_AutoCylinder[i].setToolTipText(tip);
        Txt_AutoAxis[i].setContainer(&eye);
        Txt_AutoAxis[i].setGeometry(2880, 480, 975, 375);
        Txt_AutoAxis[i].setToolTipText(tip);
    }
    Frm_AutoPerson.setCaption("Reading Number");
    Frm_AutoPerson.setGeometry(240, 1440, 1800, 780);
    Txt_AutoReading.setContainer(&Frm_AutoPerson);
    Txt_AutoReading.setGeometry(120, 300, 1500, 375);
    Txt_AutoReading.setToolTipText("Locked Field");
    Lbl_LeftConfidenceValue.setCaption("Left Confidence");
    Lbl_LeftConfidenceValue.setGeometry(2160, 1440, 1500, 255);
    Txt_LeftConfidenceValue.setGeometry(2160, 1740, 600, 375);
    Cmd_LeftConfidenceUP.setCaption("+");
    Cmd_LeftConfidenceUP.setGeometry(2820, 1740, 375, 375);
    Cmd_LeftConfidenceDOWN.setCaption("-");
    Cmd_LeftConfidenceDOWN.setGeometry(3240, 1740, 375, 375);
    Lbl_RightConfidenceValue.setCaption("Right Confidence");
    Lbl_RightConfidenceValue.setGeometry(4800, 1440, 1500, 255);
    Txt_RightConfidenceValue.setGeometry(4800, 1740, 600, 375);
    Cmd_RightConfidenceUP.setCaption("+");
    Cmd_RightConfidenceUP.setGeometry(5460, 1740, 375, 375);
    Cmd_RightConfidenceDOWN.setCaption("-");
    Cmd_RightConfidenceDOWN.setGeometry(5880, 1740, 375, 375);
    Cmd_AutoClearAll.setCaption("CLEAR ALL");
    Cmd_AutoClearAll.setToolTipText("Click to clear both left and right values from this and the main form.");
    Cmd_AutoClearAll.setGeometry(240, 2400, 1500, 420);
    Cmd_AutoClearLeft.setCaption("CLEAR LEFT");
    Cmd_AutoClearLeft.setToolTipText("Click to clear the Left Lens Data");
    Cmd_AutoClearLeft.setGeometry(1860, 2400, 1500, 420);
    Cmd_AutoClearRight.setCaption("CLEAR RIGHT");
    Cmd_AutoClearRight.setToolTipText("Click to clear the Right Lens Data");
    Cmd_AutoClearRight.setGeometry(3480, 2400, 1500, 420);
    Cmd_AutoSearch.setCaption("Search");
    Cmd_AutoSearch.setToolTipText("Click to search for glasses using main form.");
    Cmd_AutoSearch.setGeometry(5100, 2400, 1500, 420);
    Cmd_HideAutorefractorDataCaptureForm.setCaption("HIDE");
    Cmd_HideAutorefractorDataCaptureForm.setGeometry(6720, 2400, 1500, 420);
    frm_AutoSearchOptions.setCaption("Search Options");
    frm_AutoSearchOptions.setGeometry(6480, 1320, 2880, 900);
    Chk_AutoEnableAutoSearch.setContainer(&frm_AutoSearchOptions);
    Chk_AutoEnableAutoSearch.setCaption("Enable Automatic Search");
    Chk_AutoEnableAutoSearch.setToolTipText(
        "Click to cause the search to automatically occur 3 seconds after autorefractor acquisition.");
    Chk_AutoEnableAutoSearch.setGeometry(120, 360, 2640, 300);
    Lbl_AutoIncoming.setCaption("   Incoming Data....");
    Lbl_AutoIncoming.setGeometry(240, 3000, 2400, 300);
    Lbl_AutoIncoming.setVisible(false);
    Lbl_ErrorStatus.setGeometry(2760, 3000, 3600, 375);
    Lbl_ErrorStatus.setCaption("                     OK");
    Lbl_ErrorStatus.setBackColor(16776960);
    Lbl_ErrorStatus.setForeColor(0);
    Frm_Notice.setCaption(" NOTICE");
    Frm_Notice.setGeometry(6480, 2940, 2880, 960);
    Lbl_VerifyLeftRightConfidenceValues.setContainer(&Frm_Notice);
    Lbl_VerifyLeftRightConfidenceValues.setCaption(
        "Verify the above left && right \"Confidence Values\" BEFORE search.");
    Lbl_VerifyLeftRightConfidenceValues.setGeometry(120, 240, 2640, 660);
    Lbl_Describe.setCaption("Form appears when transmitting from autorefractor to P.C.");
    Lbl_Describe.setGeometry(240, 3480, 6000, 300);

    // The keyboard goes through an eye's three values before the other
    // eye's, then as the screen reads, left to right and down.
    int tab = 1;
    for (int i = 0; i <= 1; ++i)
        for (TextBox* box : {&Txt_AutoSphere[i], &Txt_AutoCylinder[i], &Txt_AutoAxis[i]})
            box->setTabIndex(tab++);
    for (Control* c : std::initializer_list<Control*>{&Txt_AutoReading, &Txt_LeftConfidenceValue,
             &Cmd_LeftConfidenceUP, &Cmd_LeftConfidenceDOWN, &Txt_RightConfidenceValue, &Cmd_RightConfidenceUP,
             &Cmd_RightConfidenceDOWN, &Chk_AutoEnableAutoSearch, &Cmd_AutoClearAll, &Cmd_AutoClearLeft,
             &Cmd_AutoClearRight, &Cmd_AutoSearch, &Cmd_HideAutorefractorDataCaptureForm})
        c->setTabIndex(tab++);
}

}  // namespace vistrel
