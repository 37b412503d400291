// From characters on the line to a reading on the main screen: the port
// event collects them, the 200 ms tick decides that the message has ended
// (two looks in a row see the same size), the device's decoder fills the
// value boxes, the check judges them, and a good reading moves over.

#include "Decoders.h"
#include "Frm_Autorefractor.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "core/Text.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"
#include "wizard/Frm_Advisor.h"

namespace vistrel {

namespace {

const char* const GoodCaption = "                     OK";

}  // namespace

void Frm_Autorefractor::Form_Load()
{
    Frm_Vistrel& v = vistrel();
    if (v.JumpBack)
        return;
    if (options().Chk_ConfidenceLevel.value() == 1) {
        Frm_Notice.setVisible(true);
        Lbl_ErrorStatus.setVisible(false);
        Txt_LeftConfidenceValue.setText("10");
        Txt_RightConfidenceValue.setText("10");
        v.Txt_LeftConfidenceValue.setText("10");
        v.Txt_RightConfidenceValue.setText("10");
    } else {
        Frm_Notice.setVisible(false);
    }
    Frm_Advisor& wizard = advisor();
    wizard.WizardLeftDone = false;
    wizard.WizardRightDone = false;
    wizard.Opt_Left1.select();
    wizard.Opt_Right1.select();
}

void Frm_Autorefractor::MSComm1_OnComm()
{
    SerialPort& port = MSComm1();
    if (port.commEvent() != 2)
        return;
    buffer += port.input();
    LastBufferSize = Variant(static_cast<double>(buffer.size()));
    if (Showing)
        return;
    // A reading that arrives during the wizard ends it.
    Frm_Advisor& wizard = advisor();
    wizard.Showing = false;
    wizard.hide();
    wizard.WizardLeftDone = false;
    wizard.WizardRightDone = false;
    // The screen rises by itself.
    Showing = true;
    show(false);
    platform().doEvents();
}

void Frm_Autorefractor::Tmr_CountDataFlow_Timer()
{
    // 1, 2. The automatic search fires at the tick after the countdown
    // reached 0, and waits at 0 while the box is off.
    ClockTimer = Variant(ClockTimer.number() + 1);
    if (ShowTimer > 0) {
        --ShowTimer;
    } else if (ShowTimer == 0 && Chk_AutoEnableAutoSearch.value() == 1) {
        ShowTimer = -1;
        Cmd_AutoSearch_Click();
    }

    // 3 to 5. A look at the buffer every so many ticks.
    if (ClockTimer.number() < QuietLimitTicks(vistrel().AutoRefractorType))
        return;
    ClockTimer = Variant(0);
    SecondTimer = Variant(SecondTimer.number() + 2);

    // 6, 7. Two looks in a row at the same size: the message has ended.
    const double size = LastBufferSize.number();
    if (size == 0)
        return;
    if (size == LastLookSize) {
        AutoProcessBuffer();
        return;
    }

    // 8. Still flowing.
    vistrel().Chk_AutoBypass.setValue(0);
    Lbl_AutoIncoming.setVisible(true);
    advisor().Opt_Left1.select();
    advisor().Opt_Right1.select();
    Lbl_ErrorStatus.setVisible(false);
    LastLookSize = static_cast<std::int32_t>(size);
}

void Frm_Autorefractor::AutoProcessBuffer()
{
    Frm_Vistrel& v = vistrel();

    // 1.
    EntryError = false;
    Lbl_AutoIncoming.setVisible(false);

    // 2, 3. The device's decoder; two of them answer the device and end here.
    CaptureBoxes boxes;
    for (int i = 0; i <= 1; ++i) {
        boxes.sphere[static_cast<size_t>(i)] = Txt_AutoSphere[i].text();
        boxes.cylinder[static_cast<size_t>(i)] = Txt_AutoCylinder[i].text();
        boxes.axis[static_cast<size_t>(i)] = Txt_AutoAxis[i].text();
    }
    boxes.reading = Txt_AutoReading.text();
    const DecodeOutcome outcome = DecodeMessage(v.AutoRefractorType, buffer, boxes);
    if (outcome.next == DecodeOutcome::Next::UnknownDevice) {
        platform().messageBox("Options File Error!",
            "Unsupported Reading Only/Also setting was selected in options file! -- Exiting", MsgIcon::Critical);
        if (v.Filenum != 0)
            station().files().close(v.Filenum);
        platform().endProcess();
    }
    for (int i = 0; i <= 1; ++i) {
        Txt_AutoSphere[i].setText(boxes.sphere[static_cast<size_t>(i)]);
        Txt_AutoCylinder[i].setText(boxes.cylinder[static_cast<size_t>(i)]);
        Txt_AutoAxis[i].setText(boxes.axis[static_cast<size_t>(i)]);
    }
    if (outcome.readingWritten) {
        Txt_AutoReading.setText(boxes.reading);
        v.Txt_ReadingNr.setText(Txt_AutoReading.text());
    }
    if (outcome.next == DecodeOutcome::Next::ReplyAndClear) {
        MSComm1().output(outcome.reply);
        clearBuffer();
        return;
    }

    // 4. The check. The right eye's look is the one left on the label.
    const bool partialKind = UCase(v.AutoRefractorType) == "REICHERT RK600";
    for (int i = 0; i <= 1; ++i) {
        const bool good = IsNumeric(Txt_AutoSphere[i].text()) && IsNumeric(Txt_AutoCylinder[i].text())
            && IsNumeric(Txt_AutoAxis[i].text());
        showCheck(good, partialKind);
        if (good)
            continue;
        EntryError = true;
        if (partialKind) {
            for (int k = 0; k <= 1; ++k) {
                Txt_AutoSphere[k].setText("");
                Txt_AutoCylinder[k].setText("");
                Txt_AutoAxis[k].setText("");
            }
        }
    }

    // 5, 6.
    if (!EntryError)
        transferToMainScreen();
    clearBuffer();

    // 7. Armed by the label, not by the check's flag: a bad left eye and a
    // good right eye leave "OK" there.
    if (Chk_AutoEnableAutoSearch.value() == 1 && Contains(Lbl_ErrorStatus.caption(), "OK"))
        ShowTimer = 15;

    // 8. Also after a failed check, with the main screen's values as they are.
    v.WriteAutorefractorPrescription();
}

void Frm_Autorefractor::clearBuffer()
{
    buffer.clear();
    LastBufferSize = Variant(0);
    LastLookSize = 0;
}

void Frm_Autorefractor::showCheck(bool good, bool partial)
{
    if (good) {
        Lbl_ErrorStatus.setBackColor(colors::Cyan);
        Lbl_ErrorStatus.setBorderStyle(0);
        Lbl_ErrorStatus.setForeColor(colors::Black);
        Lbl_ErrorStatus.setCaption(GoodCaption);
    } else {
        Lbl_ErrorStatus.setBackColor(colors::White);
        Lbl_ErrorStatus.setBorderStyle(1);
        Lbl_ErrorStatus.setForeColor(colors::Red);
        Lbl_ErrorStatus.setCaption(partial ? "RK600 Partial Data Detected." : "ENTRY ERROR! HIDE && RETRY.");
    }
    Lbl_ErrorStatus.setVisible(true);
}

void Frm_Autorefractor::transferToMainScreen()
{
    Frm_Vistrel& v = vistrel();
    struct Eye {
        int index;
        TextBox& sphere;
        TextBox& cylinder;
        TextBox& axis;
        TextBox& confidence;
        void (Frm_Vistrel::*resetCutBack)();
        void (Frm_Vistrel::*sphereChange)();
        void (Frm_Vistrel::*cylinderChange)();
        void (Frm_Vistrel::*axisChange)();
    };
    const Eye eyes[] = {
        {0, v.Txt_Sphere_Left, v.Txt_Cylinder_Left, v.Txt_Axis_Left, v.Txt_LeftConfidenceValue,
            &Frm_Vistrel::Cmd_LeftResetCutBack_Click, &Frm_Vistrel::Txt_Sphere_Left_Change,
            &Frm_Vistrel::Txt_Cylinder_Left_Change, &Frm_Vistrel::Txt_axis_left_Change},
        {1, v.Txt_Sphere_Right, v.Txt_Cylinder_Right, v.Txt_Axis_Right, v.Txt_RightConfidenceValue,
            &Frm_Vistrel::Cmd_RightResetCutBack_Click, &Frm_Vistrel::Txt_Sphere_Right_Change,
            &Frm_Vistrel::Txt_Cylinder_Right_Change, &Frm_Vistrel::Txt_Axis_Right_Change},
    };
    for (const Eye& eye : eyes) {
        (v.*eye.resetCutBack)();
        eye.sphere.setText(Txt_AutoSphere[eye.index].text());
        eye.cylinder.setText(Txt_AutoCylinder[eye.index].text());
        // An axis of 180 is 0, in the box and on the main screen.
        if (Val(Txt_AutoAxis[eye.index].text()) == 180)
            Txt_AutoAxis[eye.index].setText("0");
        eye.axis.setText(Txt_AutoAxis[eye.index].text());
        eye.confidence.setText("10");
        (v.*eye.sphereChange)();
        (v.*eye.cylinderChange)();
        (v.*eye.axisChange)();
    }
    if (Val(v.Txt_Age.text()) != 0)
        v.Cmd_SetAdd_Click();
}

}  // namespace vistrel
