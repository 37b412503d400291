// Practice play: earlier autorefractor readings, person by person, put into
// the entry fields as if just measured, so a volunteer can train or review
// what a search gives without touching anyone. It reads its own copy of the
// readings file, made once.

#include "autorefractor/Frm_Autorefractor.h"
#include "autorefractor/ReadingsLine.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "core/Text.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "wizard/Frm_Advisor.h"

#include <filesystem>

namespace vistrel {

namespace {

constexpr int PracticeRows = 32000;

}  // namespace

void Frm_Vistrel::EnableDisablePracticePlay_Click()
{
    // The confidence values have no part in practice play.
    std::initializer_list<Control*> confidence = {&Lbl_LeftConfidenceValue, &Lbl_RightConfidenceValue,
        &Txt_LeftConfidenceValue, &Txt_RightConfidenceValue, &Cmd_LeftConfidenceDOWN, &Cmd_RightConfidenceDOWN,
        &Cmd_LeftConfidenceUP, &Cmd_RightConfidenceUP};
    if (PracticePlayEnabled) {
        PracticePlayEnabled = false;
        if (options().Chk_ConfidenceLevel.value() == 1)
            for (Control* c : confidence)
                c->setVisible(true);
    } else {
        PracticePlayEnabled = true;
        for (Control* c : confidence)
            c->setVisible(false);
    }
    ShowPracticeControls();
}

void Frm_Vistrel::ShowPracticeControls()
{
    Frm_Advisor& wizard = advisor();
    for (Control* c : std::initializer_list<Control*>{&Lbl_PracticePlay, &Img_Backwards, &Img_Forward,
             &Txt_Play_Person_Nr, &wizard.Img_Backwards, &wizard.Img_Forward, &wizard.Txt_Play_Person_Nr})
        c->setVisible(PracticePlayEnabled);
    EnableDisablePracticePlay.setChecked(PracticePlayEnabled);
}

void Frm_Vistrel::Img_Backwards_Click()
{
    Person_Nr = Person_Nr - 1 < 1 ? 1 : Person_Nr - 1;
    Txt_Play_Person_Nr.setText(StrTrimmed(Person_Nr));
}

void Frm_Vistrel::Img_Forward_Click()
{
    Person_Nr = Person_Nr + 1;
    Txt_Play_Person_Nr.setText(StrTrimmed(Person_Nr));
}

void Frm_Vistrel::Txt_Play_Person_Nr_Change()
{
    // 1, 2. The person, held within 1 and 32000.
    if (!Practice_Loaded)
        LoadPractice();
    if (IsNumeric(Txt_Play_Person_Nr.text())) {
        Person_Nr = Val(Txt_Play_Person_Nr.text());
        if (Person_Nr < 1) {
            Person_Nr = 1;
            Txt_Play_Person_Nr.setText(StrTrimmed(Person_Nr));
        }
        if (Person_Nr > PracticeRows) {
            Person_Nr = PracticeRows;
            Txt_Play_Person_Nr.setText(StrTrimmed(Person_Nr));
        }
    } else {
        Person_Nr = 1;
        Txt_Play_Person_Nr.setText("1");
    }

    // 3, 4. The reading as if just measured.
    Cmd_CalculateDataClear_Click();
    const auto row = static_cast<size_t>(Int(Person_Nr) - 1);
    auto tabled = [&](const std::vector<std::string>& table) {
        return row < table.size() ? table[row] : std::string();
    };
    Txt_PersonNumber.setText(StrTrimmed(Person_Nr));
    Txt_Age.setText(tabled(Practice_Age));
    Txt_Sphere_Right.setText(tabled(Practice_RightSphere));
    Txt_Cylinder_Right.setText(tabled(Practice_RightCylinder));
    Txt_Axis_Right.setText(tabled(Practice_RightAxis));
    Txt_Sphere_Left.setText(tabled(Practice_LeftSphere));
    Txt_Cylinder_Left.setText(tabled(Practice_LeftCylinder));
    Txt_Axis_Left.setText(tabled(Practice_LeftAxis));

    // 5. The capture screen too; only there an axis of 180 is 0.
    Frm_Autorefractor& capture = autorefractor();
    auto toCapture = [&](int index, const std::string& sphere, const std::string& cylinder, const std::string& axis) {
        capture.Txt_AutoSphere[index].setText(sphere);
        capture.Txt_AutoCylinder[index].setText(cylinder);
        capture.Txt_AutoAxis[index].setText(axis);
        if (Val(capture.Txt_AutoAxis[index].text()) == 180)
            capture.Txt_AutoAxis[index].setText("0");
    };
    toCapture(0, tabled(Practice_LeftSphere), tabled(Practice_LeftCylinder), tabled(Practice_LeftAxis));
    Txt_LeftConfidenceValue.setText("10");
    toCapture(1, tabled(Practice_RightSphere), tabled(Practice_RightCylinder), tabled(Practice_RightAxis));
    Txt_RightConfidenceValue.setText("10");

    // 6, 7.
    Cmd_SetAdd_Click();
    Chk_AutoBypass.setValue(1);
    Cmd_Search_Click();
    advisor().Txt_Play_Person_Nr.setText(Txt_Play_Person_Nr.text());
}

void Frm_Vistrel::LoadPractice()
{
    Practice_Loaded = true;
    // The tables grow to the highest person read; a person past their end
    // has no reading.
    const auto tables = {&Practice_Age, &Practice_RightSphere, &Practice_RightCylinder, &Practice_RightAxis,
        &Practice_LeftSphere, &Practice_LeftCylinder, &Practice_LeftAxis};
    for (auto* table : tables)
        table->clear();

    // 2, 3. The practice copy in the network folder, else in the station's
    // own; made from the readings file once, never remade.
    FileHandles& files = station().files();
    if (AutoFileNum == 0)
        AutoFileNum = static_cast<std::int16_t>(files.freeFile());
    files.close(AutoFileNum);
    auto openPracticeIn = [&](const std::string& folder) {
        namespace fs = std::filesystem;
        const std::string readings = platform().nativePath(PathIn(folder, ReadingsFileName));
        const std::string practice = platform().nativePath(PathIn(folder, PracticeReadingsFileName));
        std::error_code ignored;
        if (fs::exists(FsPath(readings), ignored) && !fs::exists(FsPath(practice), ignored))
            fs::copy_file(FsPath(readings), FsPath(practice), ignored);
        return files.open(AutoFileNum, practice, FileHandles::Mode::Input);
    };
    bool opened = false;
    if (options().Chk_EnableNetJournal.value() == 1)
        opened = openPracticeIn(options().Txt_NetworkJournalPath.text());
    if (!opened && !openPracticeIn(InventoryLocation))
        return;

    // 4, 5. Ten fields a reading; the later reading of a person wins.
    EOF_Found = false;
    while (!EOF_Found) {
        std::string person = FormatText(RemoveBlanks(Get_Record(AutoFileNum)), "00000");
        if (person.empty())
            person = "1";
        if (EOF_Found)
            break;
        auto sized = [this](int width, bool asPower) {
            const std::string field = RemoveBlanks(Get_Record(AutoFileNum));
            return SizedField(asPower ? FormatText(field, "#0.00") : field, width);
        };
        const std::string age = sized(3, false);
        const std::string rightSphere = sized(6, true);
        const std::string rightCylinder = sized(6, true);
        const std::string rightAxis = sized(3, false);
        const std::string leftSphere = sized(6, true);
        const std::string leftCylinder = sized(6, true);
        const std::string leftAxis = sized(3, false);
        Get_Record(AutoFileNum);
        Get_Record(AutoFileNum);
        // A person number outside the tables has no row to go to.
        const double number = Int(Val(person));
        if (number < 1 || number > PracticeRows)
            continue;
        const auto row = static_cast<size_t>(number - 1);
        if (row >= Practice_Age.size())
            for (auto* table : tables)
                table->resize(row + 1);
        Practice_Age[row] = age;
        Practice_RightSphere[row] = rightSphere;
        Practice_RightCylinder[row] = rightCylinder;
        Practice_RightAxis[row] = rightAxis;
        Practice_LeftSphere[row] = leftSphere;
        Practice_LeftCylinder[row] = leftCylinder;
        Practice_LeftAxis[row] = leftAxis;
    }
    files.close(AutoFileNum);
}

}  // namespace vistrel
