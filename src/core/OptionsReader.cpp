// Reading "Vistrel-Options.txt" at start-up. Each setting reaches the
// screens as it is read, through the same check boxes and handlers a person
// would use.

#include "AutorefractorModels.h"
#include "Frm_ProgramOptions.h"
#include "Frm_Vistrel.h"
#include "Numbers.h"
#include "Station.h"
#include "Text.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"

#include <filesystem>
#include <system_error>

namespace vistrel {

namespace {

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

}  // namespace

std::string Frm_Vistrel::Get_Record(std::int16_t handle)
{
    bool atEnd = false;
    std::string field = station().files().readField(handle, atEnd);
    if (atEnd) {
        station().files().close(handle);
        EOF_Found = true;
    }
    return field;
}

void Frm_Vistrel::ReadOptionsFile()
{
    Frm_ProgramOptions& opt = options();
    FileHandles& files = station().files();
    bool shownDialog = false;

    for (;;) {
        // 16.
        Filenum = static_cast<std::int16_t>(files.freeFile());
        const std::string folder = OptionsFolder();
        if (!DirectoryExists(folder)) {
            std::error_code ec;
            std::filesystem::create_directories(FsPath(platform().nativePath(folder)), ec);
        }
        const std::string sep(1, platform().pathSeparator());
        OptionsFileName = folder + sep + "Vistrel-Options.txt";
        replaceAll(OptionsFileName, sep + sep, sep);
        OptDefaultSetting = "Default";

        // 17.
        EOF_Found = false;
        if (files.open(Filenum, platform().nativePath(OptionsFileName), FileHandles::Mode::Input))
            break;

        // The failure path: the options screen comes up first, as on a new
        // machine, writes the file, and the reading starts over. A second
        // failure (a folder that can't be written) goes on without the file.
        files.close(Filenum);
        if (shownDialog) {
            JumpBack = false;
            return;
        }
        shownDialog = true;
        hide();
        opt.show(true);
        FirstLoad = false;
        files.close(Filenum);
    }

    auto fail = [&](const std::string& text) {
        platform().messageBox("Options File Error!", text, MsgIcon::Critical);
        files.close(Filenum);
        platform().endProcess();
    };
    auto next = [&] { return Get_Record(Filenum); };
    auto yes = [](const std::string& v) { return v == "YES" ? 1 : 0; };

    // Record 1: the tolerance preset.
    OptDefaultSetting = next();
    const std::string preset = UCase(OptDefaultSetting);
    if (preset == "EXACT-MATCH")
        Cmd_2Exact_Match_Click();
    else if (preset == "DEFAULT/4")
        CMD_2DefDev4_Click();
    else if (preset == "DEFAULT/2")
        CMD_2DefDev2_Click();
    else if (preset == "DEFAULT")
        Cmd_Default_Click();
    else if (preset == "DEFAULT*2")
        Cmd_2DefTimes2_Click();
    else if (preset == "MAX")
        Cmd_MAX_Click();
    else
        fail("Unsupported default setting was selected in options file! -- Exiting");

    // Record 2: which eyes are matched.
    const std::string match = UCase(next());
    if (match == "LEFT-ONLY")
        opt.Opt_LeftOnly.select();
    else if (match == "RIGHT-ONLY")
        opt.Opt_RightOnly.select();
    else if (match == "BOTH-EQUALLY")
        opt.Opt_MatchBoth.select();
    else
        fail("Unsupported match option was selected in options file! -- Exiting");

    // Record 3: the reading power.
    const std::string reading = UCase(next());
    if (reading == "READING-ALSO") {
        Chk_PlusBifocals.setValue(1);
    } else if (reading == "READING-ONLY") {
        Chk_OnlyBifocals.setValue(1);
    } else if (reading == "NONE") {
        Chk_PlusBifocals.setValue(0);
        Chk_OnlyBifocals.setValue(0);
    } else {
        fail("Unsupported Reading Only/Also setting was selected in options file! -- Exiting");
    }

    // Records 4 to 7.
    OptEquivalent = UCase(next());
    Chk_NOEquiv.setValue(OptEquivalent == "YES" ? 0 : 1);
    OptDiagnostic = UCase(next());
    opt.Chk_Diagnostic.setValue(yes(OptDiagnostic));
    OptRefreshAddRemove = UCase(next());
    opt.Chk_RefreshAddRemove.setValue(yes(OptRefreshAddRemove));
    OptAutorefractorEnable = UCase(next());
    opt.Chk_EnableAutorefractorDataCapture.setValue(yes(OptAutorefractorEnable));

    // Record 8: the autorefractor.
    AutoRefractorType = UCase(next());
    ConfidenceVisibility(false);
    const AutorefractorModel* model = findAutorefractorModel(AutoRefractorType);
    if (!model)
        fail("Unsupported Reading Only/Also setting was selected in options file! -- Exiting");
    ApplyAutorefractorType(AutoRefractorType);

    // Record 9: the port; a bad number is told and the station goes on.
    ComPortNumber = StrTrimmed(Val(next()));
    bool portKnown = false;
    for (int n = 0; n <= 16; ++n) {
        if (ComPortNumber == std::to_string(n)) {
            portKnown = true;
            if (n != 0)
                platform().serialPort().setCommPort(n);
            opt.Opt_Com[n].select();
        }
    }
    if (!portKnown) {
        platform().messageBox("Options File Error!",
            "Comm Port of: " + ComPortNumber + " was selected." + CrLf + "COM port must be 0-16 in options file!"
                + CrLf + "Comm port of NONE selected.",
            MsgIcon::Critical);
        opt.Opt_Com[0].select();
    }

    // Record 10: the focometer box can't be cleared; its handler runs always.
    OptNoFocometer = "NO";
    OptNoFocometer = UCase(next());
    opt.Chk_NOFocometer.setValue(yes(OptNoFocometer));
    opt.Chk_NOFocometer_Click();

    // Records 11 to 34: the Add chart, where the file has a value.
    for (int i = 0; i <= 7; ++i) {
        for (TextBox* box : {&opt.Txt_From[i], &opt.Txt_To[i], &opt.Txt_Add[i]}) {
            const std::string v = next();
            if (!v.empty())
                box->setText(v);
        }
    }

    // Records 35 to 40; a record missing from an older file reads empty.
    PrintPrescription = "YES";
    PrintPrescription = UCase(next());
    opt.Chk_PrintPrescription.setValue(yes(PrintPrescription));
    AutoSearch = "YES";
    AutoSearch = UCase(next());
    opt.Chk_AutoSearch.setValue(yes(AutoSearch));
    opt.Chk_ConfidenceLevel.setValue(0);
    Confidence = UCase(next());
    opt.Chk_ConfidenceLevel.setValue(yes(Confidence));
    ConfidenceVisibility(Confidence == "YES");
    AutoSearch = "YES";
    AutoSearch = UCase(next());
    opt.Chk_AutoSearchWhenRead.setValue(yes(AutoSearch));
    OptPrintGlasses = "YES";
    OptPrintGlasses = UCase(next());
    opt.Chk_PrintGlassesPrescriptions.setValue(yes(OptPrintGlasses));
    opt.Chk_VarnRule.setValue(yes(UCase(next())));

    // Record 41: the age from which no over-minus is given.
    opt.Txt_YearsOverMinus.setText("35");
    const std::string years = next();
    if (IsNumeric(years) && Val(years) > 0)
        opt.Txt_YearsOverMinus.setText(years);

    // Records 42 to 49 are compared as written.
    opt.Chk_ReadingGlasses.setValue(yes(next()));
    opt.Chk_LensFrames.setValue(yes(next()));
    const std::string either = next();
    opt.Chk_IncludeEither.setValue(either == "YES" || either.empty() ? 1 : 0);
    opt.Chk_EnableNetJournal.setValue(yes(next()));
    const std::string path = next();
    opt.Txt_NetworkJournalPath.setText(path.empty() ? "C:\\NetworkJournal" : path);
    const std::string upTo50 = next();
    opt.Chk_UpTo50.setValue(upTo50 == "1" || upTo50.empty() ? 1 : 0);
    const std::string printer = next();
    if (!printer.empty()) {
        opt.Cmb_ChoosePrinter.setText(printer);
        opt.Cmb_ChoosePrinter_Click();
    }
    opt.Chk_ShowLevel.setValue(next() == "1" ? 1 : 0);

    // Record 50: the highest bag number; the command line wins.
    opt.Txt_HighestInventoryNumber.setText(next());
    if (Val(opt.Txt_HighestInventoryNumber.text()) <= 1)
        opt.Txt_HighestInventoryNumber.setText("32000");
    const std::string commandLine = platform().commandLine();
    if (!commandLine.empty())
        opt.Txt_HighestInventoryNumber.setText(commandLine);

    // 18.
    JumpBack = false;
    files.close(Filenum);
}

// The reader's side of the autorefractor table: line settings, the reading
// field, the caption and the option of the model.
void Frm_Vistrel::ApplyAutorefractorType(const std::string& keyword)
{
    const AutorefractorModel* model = findAutorefractorModel(keyword);
    if (!model)
        return;
    Frm_ProgramOptions& opt = options();
    // NONE has no line settings and leaves the caption alone, but its option
    // is marked like any model's, over the one the capture box chose.
    if (model->isNone) {
        if (OptionButton* option = modelOption(opt, *model))
            option->select();
        return;
    }
    SerialPort& port = platform().serialPort();
    port.setSettings(model->settings);
    if (model->readingFieldAtRead != ReadingField::Unchanged) {
        const bool shown = model->readingFieldAtRead == ReadingField::Shown;
        Lbl_ReadingNr.setVisible(shown);
        Txt_ReadingNr.setVisible(shown);
    }
    if (model->raisesSignal)
        port.setDTREnable(true);
    opt.Lbl_AutorefractorType.setCaption(model->captionAtRead);
    opt.Lbl_AutorefractorType.setVisible(true);
    if (OptionButton* option = modelOption(opt, *model))
        option->select();
    if (model->confidence)
        ConfidenceVisibility(true);
}

}  // namespace vistrel
