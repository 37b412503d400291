#include "Frm_AutoReadings.h"

namespace vistrel {

Frm_AutoReadings::Frm_AutoReadings(Station& station) : Screen(station, "Frm_AutoReadings")
{
    design();
    Cmd_Exit.onClick = [this] { Cmd_Exit_Click(); };
    onCloseBox = [this] { Cmd_Exit_Click(); };
    var("Showing", Showing);
    op("Cmd_Exit_Click", [this] { Cmd_Exit_Click(); });
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
    const Font courier{"Courier New", 9, false};
    const char* tip = "Click a line to load it into the Autorefractor Readings Fields in the Main Window.";
    for (ListBox* list : {&Lst_AutorefractorReadings, &Lst_AutorefractorReadingsSorted}) {
        list->setFont(courier);
        list->setToolTipText(tip);
        list->setGeometry(240, 1560, 11400, 5160);
    }
    Lst_AutorefractorReadingsSorted.setVisible(false);
    Lbl_Information.setCaption("Click on a line below to restore this reading into the autorefractor "
                               "measurements fields in the main menu.");
    Lbl_Information.setGeometry(240, 120, 11400, 300);
    Lbl_SortType.setCaption("    Chronological Sorted Autorefractor Readings.");
    Lbl_SortType.setGeometry(240, 480, 6000, 300);
    Chk_SortPerson.setToolTipText("Click to Sort by patient or person nr.  Unclick to sort chronologically.");
    Chk_SortPerson.setCaption("Sort by person");
    Chk_SortPerson.setGeometry(6480, 480, 2400, 300);
    Lbl_Right_Left.setCaption("Person            | <---------Right-------->  |  <----------Left----------> |");
    Lbl_Right_Left.setFont(courier);
    Lbl_Right_Left.setGeometry(240, 900, 11400, 300);
    Lbl_Heading.setCaption(" Number  Age   | Sphere Cylinder Axis  |  Sphere  Cylinder  Axis |           Date          Time");
    Lbl_Heading.setFont(courier);
    Lbl_Heading.setGeometry(240, 1200, 11400, 300);
    Cmd_Exit.setCaption("&Exit");
    Cmd_Exit.setGeometry(10200, 6960, 1440, 420);
}

}  // namespace vistrel
