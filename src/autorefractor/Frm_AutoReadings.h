#pragma once

#include "core/screen/Screen.h"

namespace vistrel {

// The browser of stored autorefractor readings.
class Frm_AutoReadings : public Screen {
public:
    explicit Frm_AutoReadings(Station& station);

    ListBox Lst_AutorefractorReadings{*this, "Lst_AutorefractorReadings"};
    ListBox Lst_AutorefractorReadingsSorted{*this, "Lst_AutorefractorReadingsSorted", true};
    CheckBox Chk_SortPerson{*this, "Chk_SortPerson"};
    Label Lbl_SortType{*this, "Lbl_SortType"};
    Label Lbl_Information{*this, "Lbl_Information"};
    Label Lbl_Heading{*this, "Lbl_Heading"};
    Label Lbl_Right_Left{*this, "Lbl_Right_Left"};
    CommandButton Cmd_Exit{*this, "Cmd_Exit"};

    bool Showing = false;

    // Reads the readings file anew each time the browser comes up.
    void Form_Activate();
    void Chk_SortPerson_Click();
    void Lst_AutorefractorReadings_Click() { loadRow(Lst_AutorefractorReadings); }
    void Lst_AutorefractorReadingsSorted_Click() { loadRow(Lst_AutorefractorReadingsSorted); }
    void Cmd_Exit_Click();

private:
    // Brings the clicked reading back into both screens and searches.
    void loadRow(const ListBox& list);
    void design();
};

}  // namespace vistrel
