// Leaving the options screen: the settings apply to this run, and the
// options file is written on a first start or when a save was asked for.

#include "AutorefractorModels.h"
#include "Frm_ProgramOptions.h"
#include "Frm_Vistrel.h"
#include "Numbers.h"
#include "Station.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"

#include <filesystem>
#include <system_error>

namespace vistrel {

namespace {
const char* yesNo(const CheckBox& box)
{
    return box.value() == 1 ? "YES" : "NO";
}
const char* oneZero(const CheckBox& box)
{
    return box.value() == 1 ? "1" : "0";
}
}  // namespace

void Frm_ProgramOptions::Cmd_Continue_Click()
{
    Frm_Vistrel& v = vistrel();
    // 1.
    v.Max_Sphere_OverageValue = Txt_Max_Sphere_Overage.text();
    v.Max_Cylinder_OverageValue = Txt_Max_Cylinder_Overage.text();
    v.Axis_DeviationValue = Txt_Axis_Deviation.text();
    v.Max_CylinderValue = Txt_Max_Cylinder.text();
    v.Min_SphereValue = Txt_Min_Sphere.text();
    v.Txt_CutBackValue = Txt_CutBack.text();
    v.ProgramOptionsFlag = false;

    // 2 to 5.
    bool restart = false;
    const std::string line = BuildOptionsLine(restart);

    // 6.
    if (v.FirstLoad || SaveRequested)
        WriteOptionsFile(line);
    SaveRequested = false;

    // 7.
    v.SkipSearch = false;
    OptionsBusy = false;
    hide();
}

std::string Frm_ProgramOptions::BuildOptionsLine(bool& restart)
{
    Frm_Vistrel& v = vistrel();
    std::string line;
    auto add = [&line](const std::string& field) {
        if (!line.empty())
            line += ",";
        line += field;
    };

    // 1. The preset in force is the yellow one.
    std::string preset = "DEFAULT";
    const std::pair<const CommandButton*, const char*> presets[] = {{&Cmd_ExactMatch, "EXACT-MATCH"},
        {&Cmd_DefaultsDev4, "DEFAULT/4"}, {&Cmd_DefaultsDev2, "DEFAULT/2"}, {&Cmd_RestoreDefaults, "DEFAULT"},
        {&Cmd_DefaultsTimes2, "DEFAULT*2"}, {&Cmd_MAX, "MAX"}};
    for (auto [button, word] : presets) {
        if (button->backColor() == colors::Yellow) {
            preset = word;
            break;
        }
    }
    add(preset);

    // 2.
    if (Opt_LeftOnly.value())
        add("LEFT-ONLY");
    else if (Opt_RightOnly.value())
        add("RIGHT-ONLY");
    else
        add("BOTH-EQUALLY");

    // 3. Applying the choice sets a box of the main screen, never clears it.
    if (Chk_MatchReadingAlso.value() == 1) {
        add("READING-ALSO");
        v.Chk_PlusBifocals.setValue(1);
    } else if (Chk_MatchReadingOnly.value() == 1) {
        add("READING-ONLY");
        v.Chk_OnlyBifocals.setValue(1);
    } else {
        add("NONE");
    }

    // 4 to 7.
    add(Chk_NOSpherical_Equivalent.value() == 1 ? "NO" : "YES");
    v.Chk_NOEquiv.setValue(Chk_NOSpherical_Equivalent.value() == 1 ? 1 : 0);
    add(yesNo(Chk_Diagnostic));
    add(yesNo(Chk_RefreshAddRemove));
    add(yesNo(Chk_EnableAutorefractorDataCapture));

    // 8. The model; the two Retinomax keywords are padded as they always were.
    const AutorefractorModel* model = nullptr;
    if (Chk_EnableAutorefractorDataCapture.value() == 1)
        model = selectedAutorefractorModel(*this);
    if (!model)
        model = findAutorefractorModel("NONE");
    std::string keyword = model->keyword;
    if (keyword == "NIKON RETINOMAX2" || keyword == "NIKON RETINOMAX3")
        add(keyword + std::string(26, ' '));
    else
        add(keyword);
    if (keyword != v.AutoRefractorType)
        restart = true;
    v.AutoRefractorType = keyword;
    if (model->readingFieldAtWrite != ReadingField::Unchanged) {
        const bool shown = model->readingFieldAtWrite == ReadingField::Shown;
        v.Lbl_ReadingNr.setVisible(shown);
        v.Txt_ReadingNr.setVisible(shown);
    }
    Lbl_AutorefractorType.setCaption(model->captionAtWrite);

    // 9. The port; with "None" no field at all is written.
    for (int n = 1; n <= 16; ++n) {
        if (!Opt_Com[n].value())
            continue;
        add(" " + std::to_string(n));
        if (n != Val(v.ComPortNumber))
            restart = true;
        SerialPort& port = platform().serialPort();
        if (!port.portOpen())
            port.setCommPort(n);
    }

    // 10 to 34.
    add(yesNo(Chk_NOFocometer));
    for (int i = 0; i <= 7; ++i) {
        add(Txt_From[i].text());
        add(Txt_To[i].text());
        add(Txt_Add[i].text());
    }

    // 35, 36, and the restart question once 36 is in.
    add(yesNo(Chk_PrintPrescription));
    add(yesNo(Chk_AutoSearch));
    if (restart && !v.FirstLoad) {
        platform().messageBox("Program Restart is required!",
            "  You must exit and restart the program" + v.CrLf + "when you change the autorefractor type OR"
                + v.CrLf + "     the communications port number." + v.CrLf + "   This change is being saved to file.",
            MsgIcon::Exclamation);
        SaveRequested = true;
    }

    // 37 to 40.
    add(yesNo(Chk_ConfidenceLevel));
    v.ConfidenceVisibility(Chk_ConfidenceLevel.value() == 1);
    add(yesNo(Chk_AutoSearchWhenRead));
    autorefractor().Chk_AutoEnableAutoSearch.setValue(Chk_AutoSearchWhenRead.value() == 1 ? 1 : 0);
    add(yesNo(Chk_PrintGlassesPrescriptions));
    add(yesNo(Chk_VarnRule));

    // 41. Below 35 the text gets a parenthesis, which the reader refuses.
    std::string years = "35";
    if (IsNumeric(Txt_YearsOverMinus.text()))
        years = Val(Txt_YearsOverMinus.text()) < 35 ? "35)" : Txt_YearsOverMinus.text();
    add(years);

    // 42 to 50.
    add(yesNo(Chk_ReadingGlasses));
    add(yesNo(Chk_LensFrames));
    add(yesNo(Chk_IncludeEither));
    add(yesNo(Chk_EnableNetJournal));
    Chk_EnableNetJournal_Click();
    add(Txt_NetworkJournalPath.text());
    add(oneZero(Chk_UpTo50));
    add(Cmb_ChoosePrinter.text());
    add(oneZero(Chk_ShowLevel));
    add(Txt_HighestInventoryNumber.text());
    return line;
}

void Frm_ProgramOptions::WriteOptionsFile(const std::string& line)
{
    Frm_Vistrel& v = vistrel();
    FileHandles& files = station().files();
    const int handle = files.freeFile();
    const std::string folder = v.OptionsFolder();
    std::error_code ec;
    if (!v.DirectoryExists(folder))
        std::filesystem::create_directories(FsPath(platform().nativePath(folder)), ec);
    const std::string file = folder + platform().pathSeparator() + "Vistrel-Options.txt";
    const std::string native = platform().nativePath(file);
    platform().setFileAttributes(native, 0);
    std::filesystem::remove(FsPath(native), ec);
    if (files.open(handle, native, FileHandles::Mode::Output)) {
        files.printLine(handle, line);
        files.close(handle);
    }
    platform().setFileAttributes(native, 3);
}

}  // namespace vistrel
