#include "Frm_ProgramOptions.h"

#include "Frm_Vistrel.h"
#include "Numbers.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "matching/Frm_HelpVarnRule.h"
#include "platform/Platform.h"
#include "platform/Printer.h"
#include "wizard/Frm_Advisor.h"

namespace vistrel {

Frm_ProgramOptions::Frm_ProgramOptions(Station& station) : Screen(station, "Frm_ProgramOptions")
{
    design();

    wireClick(Chk_AutoSearchWhenRead, "Chk_AutoSearchWhenRead_Click", [this] { Chk_AutoSearchWhenRead_Click(); });
    wireClick(Chk_IncludeEither, "Chk_IncludeEither_Click", [this] { Chk_IncludeEither_Click(); });
    wireClick(Chk_PrintPrescription, "Chk_PrintPrescription_Click", [this] { Chk_PrintPrescription_Click(); });
    wireClick(Chk_NoOverMinus, "Chk_NoOverMinus_Click", [this] { Chk_NoOverMinus_Click(); });
    wireClick(Chk_UpTo50, "Chk_UpTo50_Click", [this] { Chk_UpTo50_Click(); });
    wireClick(Chk_Diagnostic, "Chk_Diagnostic_Click", [this] { Chk_Diagnostic_Click(); });
    wireClick(Chk_RefreshAddRemove, "Chk_RefreshAddRemove_Click", [this] { Chk_RefreshAddRemove_Click(); });
    wireClick(Chk_ConfidenceLevel, "Chk_ConfidenceLevel_Click", [this] { Chk_ConfidenceLevel_Click(); });
    wireClick(Chk_NOSpherical_Equivalent, "Chk_NOSpherical_Equivalent_Click",
        [this] { Chk_NOSpherical_Equivalent_Click(); });
    wireClick(Chk_EnableHome, "Chk_EnableHome_Click", [this] { Chk_EnableHome_Click(); });
    wireClick(Chk_ReadingGlasses, "Chk_ReadingGlasses_Click", [this] { Chk_ReadingGlasses_Click(); });
    wireClick(Chk_LensFrames, "Chk_LensFrames_Click", [this] { Chk_LensFrames_Click(); });
    wireClick(Chk_NOFocometer, "Chk_NOFocometer_Click", [this] { Chk_NOFocometer_Click(); });
    wireClick(Chk_MatchReadingAlso, "Chk_MatchReadingAlso_Click", [this] { Chk_MatchReadingAlso_Click(); });
    wireClick(Chk_MatchReadingOnly, "Chk_MatchReadingOnly_Click", [this] { Chk_MatchReadingOnly_Click(); });
    wireClick(Opt_LeftOnly, "Opt_LeftOnly_Click", [this] { Opt_LeftOnly_Click(); });
    wireClick(Opt_RightOnly, "Opt_RightOnly_Click", [this] { Opt_RightOnly_Click(); });
    wireClick(Opt_MatchBoth, "Opt_MatchBoth_Click", [this] { Opt_MatchBoth_Click(); });
    wireClick(Chk_VarnRule, "Chk_VarnRule_Click", [this] { Chk_VarnRule_Click(); });
    wireClick(Chk_ShowLevel, "Chk_ShowLevel_Click", [this] { Chk_ShowLevel_Click(); });
    wireClick(Chk_EnableNetJournal, "Chk_EnableNetJournal_Click", [this] { Chk_EnableNetJournal_Click(); });
    wireClick(Chk_EnableAutorefractorDataCapture, "Chk_EnableAutorefractorDataCapture_Click",
        [this] { Chk_EnableAutorefractorDataCapture_Click(); });
    wireClick(Cmb_ChoosePrinter, "Cmb_ChoosePrinter_Click", [this] { Cmb_ChoosePrinter_Click(); });
    wireClick(Cmd_HelpWithRule, "Cmd_HelpWithRule_Click", [this] { Cmd_HelpWithRule_Click(); });
    wireClick(Cmd_Continue, "Cmd_Continue_Click", [this] { Cmd_Continue_Click(); });
    wireClick(Cmd_SaveContinue, "Cmd_SaveContinue_Click", [this] { Cmd_SaveContinue_Click(); });
    wireClick(Cmd_RestoreDefaults, "Cmd_RestoreDefaults_Click", [this] { Cmd_RestoreDefaults_Click(); });
    wireClick(Cmd_ExactMatch, "Cmd_ExactMatch_Click", [this] { Cmd_ExactMatch_Click(); });
    wireClick(Cmd_DefaultsDev2, "Cmd_DefaultsDev2_Click", [this] { Cmd_DefaultsDev2_Click(); });
    wireClick(Cmd_DefaultsDev4, "Cmd_DefaultsDev4_Click", [this] { Cmd_DefaultsDev4_Click(); });
    wireClick(Cmd_DefaultsTimes2, "Cmd_DefaultsTimes2_Click", [this] { Cmd_DefaultsTimes2_Click(); });
    wireClick(Cmd_MAX, "Cmd_MAX_Click", [this] { Cmd_MAX_Click(); });

    Txt_YearsOverMinus.onChange = [this] { Txt_YearsOverMinus_Change(); };
    op("Txt_YearsOverMinus_Change", Txt_YearsOverMinus.onChange);
    Txt_HighestInventoryNumber.onChange = [this] { Txt_HighestInventoryNumber_Change(); };
    op("Txt_HighestInventoryNumber_Change", Txt_HighestInventoryNumber.onChange);

    // The six tolerance boxes: a typed value becomes the new base of the presets.
    Frm_Vistrel& v = vistrel();
    auto tolerance = [this](TextBox& box, std::string& value, std::string& valueDefault) {
        box.onChange = [this, &box, &value, &valueDefault] { ToleranceTyped(box, value, valueDefault); };
        op(box.name() + "_Change", box.onChange);
    };
    tolerance(Txt_Max_Sphere_Overage, v.Max_Sphere_OverageValue, v.Max_Sphere_OverageValueDefault);
    tolerance(Txt_Max_Cylinder_Overage, v.Max_Cylinder_OverageValue, v.Max_Cylinder_OverageValueDefault);
    tolerance(Txt_Axis_Deviation, v.Axis_DeviationValue, v.Axis_DeviationValueDefault);
    tolerance(Txt_Max_Cylinder, v.Max_CylinderValue, v.Max_CylinderValueDefault);
    tolerance(Txt_Min_Sphere, v.Min_SphereValue, v.Min_SphereValueDefault);
    tolerance(Txt_CutBack, v.Txt_CutBackValue, v.Txt_CutBackValueDefault);

    onActivate = [this] { Form_Activate(); };
    onCloseBox = [this] { Cmd_Continue_Click(); };
    op("Form_Activate", [this] { Form_Activate(); });
    op("Form_Load", [this] { Form_Load(); });
    op("LockToleranceFields", [this] { LockToleranceFields(true); });

    var("Showing", Showing);
    var("OptionsBusy", OptionsBusy);
    var("SaveRequested", SaveRequested);
}

void Frm_ProgramOptions::Form_Activate()
{
    vistrel().SkipSearch = true;
    Form_Load();
}

// Fills the dialog from the station's state, only when the user opened it.
void Frm_ProgramOptions::Form_Load()
{
    Frm_Vistrel& v = vistrel();
    if (!v.ProgramOptionsFlag)
        return;
    OptionsBusy = true;
    Cmb_ChoosePrinter.clear();
    for (const std::string& name : platform().printerNames())
        Cmb_ChoosePrinter.addItem(name);
    Txt_Max_Sphere_Overage.setText(v.Max_Sphere_OverageValue);
    Txt_Max_Cylinder_Overage.setText(v.Max_Cylinder_OverageValue);
    Txt_Axis_Deviation.setText(v.Axis_DeviationValue);
    Txt_Max_Cylinder.setText(v.Max_CylinderValue);
    Txt_Min_Sphere.setText(v.Min_SphereValue);
    Txt_CutBack.setText(v.Txt_CutBackValue);
    if (v.LeftOnlyValue)
        Opt_LeftOnly.select();
    if (v.RightOnlyValue)
        Opt_RightOnly.select();
    if (v.MatchBothValue)
        Opt_MatchBoth.select();
    Chk_MatchReadingAlso.setValue(v.MatchReadingAlsoValue == 1 ? 1 : 0);
    Chk_MatchReadingOnly.setValue(v.MatchReadingOnlyValue == 1 ? 1 : 0);
    Chk_RefreshAddRemove.setValue(v.RefreshAddRemoveValue == 1 ? 1 : 0);
    Chk_Diagnostic.setValue(v.DiagnosticValue == 1 ? 1 : 0);
    Cmd_RestoreDefaults.setBackColor(v.Cmd_Default.backColor());
    Cmd_ExactMatch.setBackColor(v.Cmd_2Exact_Match.backColor());
    Cmd_DefaultsDev2.setBackColor(v.CMD_2DefDev2.backColor());
    Cmd_DefaultsDev4.setBackColor(v.CMD_2DefDev4.backColor());
    Cmd_DefaultsTimes2.setBackColor(v.Cmd_2DefTimes2.backColor());
    Cmd_MAX.setBackColor(v.Cmd_MAX.backColor());
}

void Frm_ProgramOptions::Cmd_SaveContinue_Click()
{
    SaveRequested = true;
    Cmd_Continue_Click();
}

void Frm_ProgramOptions::Chk_AutoSearchWhenRead_Click()
{
    autorefractor().Chk_AutoEnableAutoSearch.setValue(Chk_AutoSearchWhenRead.value() == 1 ? 1 : 0);
}

void Frm_ProgramOptions::Chk_IncludeEither_Click()
{
    vistrel().Chk_Add_Either.setValue(Chk_IncludeEither.value() == 1 ? 1 : 0);
}

void Frm_ProgramOptions::Chk_PrintPrescription_Click()
{
    vistrel().Chk_Prescription.setValue(Chk_PrintPrescription.value() == 1 ? 1 : 0);
}

void Frm_ProgramOptions::Chk_NoOverMinus_Click()
{
    Frm_Vistrel& v = vistrel();
    v.MinusBusy = true;
    v.Chk_Overminus.setValue(Chk_NoOverMinus.value() == 1 ? 1 : 0);
    v.MinusBusy = false;
}

void Frm_ProgramOptions::Chk_UpTo50_Click()
{
    Frm_Advisor& a = advisor();
    if (a.VarnCheckRunning)
        return;
    a.VarnCheckRunning = true;
    a.Chk_VarnOverCylinder50.setValue(Chk_UpTo50.value() == 1 ? 1 : 0);
    a.VarnCheckRunning = false;
}

void Frm_ProgramOptions::Chk_Diagnostic_Click()
{
    vistrel().DiagnosticValue = static_cast<std::int16_t>(Chk_Diagnostic.value());
}

void Frm_ProgramOptions::Chk_RefreshAddRemove_Click()
{
    vistrel().RefreshAddRemoveValue = static_cast<std::int16_t>(Chk_RefreshAddRemove.value());
}

void Frm_ProgramOptions::Chk_ConfidenceLevel_Click()
{
    vistrel().ConfidenceVisibility(Chk_ConfidenceLevel.value() == 1);
}

void Frm_ProgramOptions::Chk_NOSpherical_Equivalent_Click()
{
    Frm_Vistrel& v = vistrel();
    const int on = Chk_NOSpherical_Equivalent.value() == 1 ? 1 : 0;
    v.Chk_NOEquiv.setValue(on);
    v.NOSphericalEquivalent = static_cast<std::int16_t>(on);
}

void Frm_ProgramOptions::Chk_EnableHome_Click()
{
    vistrel().Cmd_Sizer.setVisible(Chk_EnableHome.value() == 1);
}

void Frm_ProgramOptions::Chk_ReadingGlasses_Click()
{
    vistrel().Cmd_ReadingGlasses.setVisible(Chk_ReadingGlasses.value() != 1);
}

void Frm_ProgramOptions::Chk_LensFrames_Click()
{
    vistrel().Cmd_DisplayLensFrames.setVisible(Chk_LensFrames.value() != 1);
}

void Frm_ProgramOptions::Chk_NOFocometer_Click()
{
    if (Chk_NOFocometer.value() == 0)
        Chk_NOFocometer.setValue(1);
}

void Frm_ProgramOptions::Chk_MatchReadingAlso_Click()
{
    Frm_Vistrel& v = vistrel();
    if (Chk_MatchReadingAlso.value() == 1) {
        v.Chk_PlusBifocals.setValue(1);
        Chk_MatchReadingOnly.setValue(0);
        v.MatchReadingOnlyValue = 0;
        v.MatchReadingAlsoValue = 1;
    } else {
        v.Chk_PlusBifocals.setValue(0);
        if (Chk_MatchReadingOnly.value() == 1) {
            v.MatchReadingOnlyValue = 1;
            v.MatchReadingAlsoValue = 0;
        }
    }
}

void Frm_ProgramOptions::Chk_MatchReadingOnly_Click()
{
    Frm_Vistrel& v = vistrel();
    if (Chk_MatchReadingOnly.value() == 1) {
        Chk_MatchReadingAlso.setValue(0);
        v.MatchReadingOnlyValue = 1;
        v.MatchReadingAlsoValue = 0;
    } else {
        v.MatchReadingOnlyValue = 0;
        if (Chk_MatchReadingAlso.value() == 1)
            v.MatchReadingAlsoValue = 1;
    }
}

void Frm_ProgramOptions::Opt_LeftOnly_Click()
{
    Frm_Vistrel& v = vistrel();
    v.LeftOnlyValue = true;
    v.RightOnlyValue = false;
    v.MatchBothValue = false;
}

void Frm_ProgramOptions::Opt_RightOnly_Click()
{
    Frm_Vistrel& v = vistrel();
    v.LeftOnlyValue = false;
    v.RightOnlyValue = true;
    v.MatchBothValue = false;
}

void Frm_ProgramOptions::Opt_MatchBoth_Click()
{
    Frm_Vistrel& v = vistrel();
    v.LeftOnlyValue = false;
    v.RightOnlyValue = false;
    v.MatchBothValue = true;
}

void Frm_ProgramOptions::Chk_VarnRule_Click()
{
    Frm_Vistrel& v = vistrel();
    const int on = Chk_VarnRule.value() == 1 ? 1 : 0;
    v.PlusBusy = true;
    v.Chk_OverPlus.setValue(on);
    Chk_NoOverplus.setValue(on);
    Chk_NoOverCylinder.setValue(on);
    Chk_NoOverMinus.setValue(on);
    v.PlusBusy = false;
}

void Frm_ProgramOptions::Chk_ShowLevel_Click()
{
    Frm_Vistrel& v = vistrel();
    if (v.JumpBack)
        return;
    const bool shown = Chk_ShowLevel.value() == 1;
    Frm_Advisor& a = advisor();
    for (Control* c : std::initializer_list<Control*>{&v.Txt_Left_AMP, &v.Lbl_Left_Amp, &v.Txt_Right_AMP,
             &v.Lbl_Right_Amp, &a.Txt_Left_AMP, &a.Lbl_Left_Amp, &a.Txt_Right_AMP, &a.Lbl_Right_Amp})
        c->setVisible(shown);
}

void Frm_ProgramOptions::Chk_EnableNetJournal_Click()
{
    const bool shown = Chk_EnableNetJournal.value() == 1;
    Frm_NetworkJournalPath.setVisible(shown);
    Img_PointPath.setVisible(shown);
}

void Frm_ProgramOptions::Chk_EnableAutorefractorDataCapture_Click()
{
    if (Chk_EnableAutorefractorDataCapture.value() == 1) {
        setHeight(10950);
        Opt_NikonRetinomax2.select();
        Lbl_AutorefractorType.setVisible(true);
        Opt_Com[1].select();
    } else {
        setHeight(9350);
        Lbl_AutorefractorType.setVisible(false);
        Opt_Com[0].select();
    }
}

void Frm_ProgramOptions::Cmb_ChoosePrinter_Click()
{
    for (const std::string& name : platform().printerNames())
        if (name == Cmb_ChoosePrinter.text())
            platform().printer().choose(name);
}

void Frm_ProgramOptions::Txt_YearsOverMinus_Change()
{
    vistrel().Txt_YearsOverMinus.setText(Txt_YearsOverMinus.text());
}

void Frm_ProgramOptions::Cmd_HelpWithRule_Click()
{
    Frm_HelpVarnRule& help = helpVarnRule();
    help.Showing = true;
    help.show(true);
    help.Showing = false;
}

void Frm_ProgramOptions::Txt_HighestInventoryNumber_Change()
{
    TextBox& box = Txt_HighestInventoryNumber;
    if (!IsNumeric(box.text()))
        box.setText("1");
    else if (Val(box.text()) > 32000)
        box.setText("32000");
    else if (Val(box.text()) <= 0)
        box.setText("1");
}

void Frm_ProgramOptions::ToleranceTyped(TextBox& box, std::string& value, std::string& valueDefault)
{
    if (box.locked())
        return;
    if (!IsNumeric(box.text()))
        box.setText("");
    value = box.text();
    valueDefault = value;
}

}  // namespace vistrel
