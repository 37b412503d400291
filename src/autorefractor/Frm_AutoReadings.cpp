#include "Frm_AutoReadings.h"

#include "Frm_Autorefractor.h"
#include "ReadingsLine.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "platform/Platform.h"

namespace vistrel {

Frm_AutoReadings::Frm_AutoReadings(Station& station) : Screen(station, "Frm_AutoReadings")
{
    design();
    wireClick(Cmd_Exit, "Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
    wireClick(Chk_SortPerson, "Chk_SortPerson_Click", [this] { Chk_SortPerson_Click(); });
    wireClick(Lst_AutorefractorReadings, "Lst_AutorefractorReadings_Click",
        [this] { Lst_AutorefractorReadings_Click(); });
    wireClick(Lst_AutorefractorReadingsSorted, "Lst_AutorefractorReadingsSorted_Click",
        [this] { Lst_AutorefractorReadingsSorted_Click(); });
    onActivate = [this] { Form_Activate(); };
    op("Form_Activate", [this] { Form_Activate(); });
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
}

void Frm_AutoReadings::Form_Activate()
{
    // 1.
    Lst_AutorefractorReadings.setVisible(true);
    Lst_AutorefractorReadingsSorted.setVisible(false);
    Chk_SortPerson.setValue(0);
    Lbl_SortType.setCaption("    Chronological Sorted Autorefractor Readings.");

    // 2. The copy of the network folder on a networked station, with no
    // fall back to the other one.
    Frm_Vistrel& v = vistrel();
    const std::string folder = options().Chk_EnableNetJournal.value() == 1
        ? options().Txt_NetworkJournalPath.text()
        : v.InventoryLocation;
    FileHandles& files = station().files();
    if (v.AutoFileNum == 0)
        v.AutoFileNum = static_cast<std::int16_t>(files.freeFile());
    const std::int16_t handle = v.AutoFileNum;
    if (!files.open(handle, platform().nativePath(v.PathIn(folder, ReadingsFileName)), FileHandles::Mode::Input))
        return;

    // 3 to 6. The reader goes by fields: a short line takes the rest of
    // its fields from the next.
    Lst_AutorefractorReadings.clear();
    Lst_AutorefractorReadingsSorted.clear();
    std::int32_t number = 1;
    v.EOF_Found = false;
    while (!v.EOF_Found) {
        std::array<std::string, 10> fields;
        fields[0] = v.Get_Record(handle);
        if (v.EOF_Found)
            break;
        for (size_t i = 1; i < fields.size(); ++i)
            fields[i] = v.Get_Record(handle);
        const std::string row = ReadingsRow(fields);
        Lst_AutorefractorReadings.addItem(row, number);
        Lst_AutorefractorReadingsSorted.addItem(row, number);
        ++number;
    }
    files.close(handle);
}

void Frm_AutoReadings::Chk_SortPerson_Click()
{
    const bool byPerson = Chk_SortPerson.value() == 1;
    Lst_AutorefractorReadingsSorted.setVisible(byPerson);
    Lst_AutorefractorReadings.setVisible(!byPerson);
    Lbl_SortType.setCaption(byPerson ? "Sorted by person/patient Nr. Autorefractor Readings."
                                     : "    Chronological Sorted Autorefractor Readings.");
}

void Frm_AutoReadings::loadRow(const ListBox& list)
{
    const int at = list.listIndex();
    if (at < 0)
        return;
    const std::string row = list.row(at).text;
    Frm_Vistrel& v = vistrel();
    Frm_Autorefractor& capture = autorefractor();

    // 2, 3. The main screen takes the columns with their blanks.
    v.Cmd_CalculateDataClear_Click();
    v.Txt_PersonNumber.setText(RowPlaces(row, 1, 5));
    v.Txt_Age.setText(RowPlaces(row, 8, 3));
    v.Txt_Sphere_Right.setText(RowPlaces(row, 13, 6));
    v.Txt_Cylinder_Right.setText(RowPlaces(row, 20, 6));
    v.Txt_Axis_Right.setText(RowPlaces(row, 30, 3));
    v.Txt_Sphere_Left.setText(RowPlaces(row, 36, 6));
    v.Txt_Cylinder_Left.setText(RowPlaces(row, 43, 6));
    v.Txt_Axis_Left.setText(RowPlaces(row, 51, 3));

    // 4, 5. The capture screen too; only its axis of 180 becomes 0.
    struct Eye {
        int index;
        size_t sphere, cylinder, axis;
        TextBox& confidence;
    };
    for (const Eye& eye : {Eye{0, 36, 43, 51, v.Txt_LeftConfidenceValue}, Eye{1, 13, 20, 30, v.Txt_RightConfidenceValue}}) {
        capture.Txt_AutoSphere[eye.index].setText(RowPlaces(row, eye.sphere, 6));
        capture.Txt_AutoCylinder[eye.index].setText(RowPlaces(row, eye.cylinder, 6));
        capture.Txt_AutoAxis[eye.index].setText(RowPlaces(row, eye.axis, 3));
        if (Val(capture.Txt_AutoAxis[eye.index].text()) == 180)
            capture.Txt_AutoAxis[eye.index].setText("0");
        eye.confidence.setText("10");
    }

    // 6 to 8. The form stays open for the next reading.
    v.Cmd_SetAdd_Click();
    v.Chk_AutoBypass.setValue(1);
    v.Cmd_Search_Click();
    platform().doEvents();
}

void Frm_AutoReadings::Cmd_Exit_Click()
{
    hide();
    Showing = false;
}

void Frm_AutoReadings::design()
{
    setCaption("Autorefractor Readings.                                        Version 7.x.x");
    setGeometry(0, 0, 12000, 7800);
    // The rows are columns of characters. The headings' texts space their
    // words for characters four fifths as wide as the rows': in that size
    // of the same face each heading stands over its column.
    const Font courier{"Courier New", 10, false};
    const Font headings{"Courier New", 8, false};
    const char* tip = "Click a line to load it into the Autorefractor Readings Fields in the Main Window.";
    for (ListBox* list : {&Lst_AutorefractorReadings, &Lst_AutorefractorReadingsSorted}) {
        list->setFont(courier);
        list->setToolTipText(tip);
        list->setGeometry(240, 1560, 11400, 5040);
    }
    Lst_AutorefractorReadingsSorted.setVisible(false);
    Lbl_Information.setCaption("Click on a line below to restore this reading into the autorefractor "
                               "measurements fields in the main menu.");
    Lbl_Information.setGeometry(240, 120, 11400, 300);
    Lbl_SortType.setCaption("    Chronological Sorted Autorefractor Readings.");
    Lbl_SortType.setGeometry(240, 480, 6000, 300);
    Chk_SortPerson.setToolTipText("Click to Sort by patient or person nr.  Unclick to sort chronologically.");
    Chk_SortPerson.setCaption("Sort by person");
    Chk_SortPerson.setGeometry(6480, 435, 2400, 300);
    Lbl_Right_Left.setCaption("Person            | <---------Right-------->  |  <----------Left----------> |");
    Lbl_Right_Left.setFont(headings);
    Lbl_Right_Left.setGeometry(300, 960, 11340, 255);
    Lbl_Heading.setCaption(" Number  Age   | Sphere Cylinder Axis  |  Sphere  Cylinder  Axis |           Date          Time");
    Lbl_Heading.setFont(headings);
    Lbl_Heading.setGeometry(300, 1260, 11340, 255);
    Cmd_Exit.setCaption("&Exit");
    Cmd_Exit.setGeometry(10200, 6720, 1440, 420);
}

}  // namespace vistrel
