// The stock lists of the main screen, left and right eye side by side, and
// the list of persons who received a pair.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Platform.h"

namespace vistrel {

namespace {

// Rows are built by appending to one buffer kept for the whole fill: a
// fill makes tens of thousands of them.

void appendSigned(std::string& row, double v)
{
    if (v >= 0)
        row += '+';
    AppendFormat(row, v, "#0.00");
}

// One eye's columns: sphere, cylinder, axis, add, and in brackets the add
// on the spherical equivalent.
void appendEye(std::string& row, double sphere, double cylinder, std::int16_t axis, double add)
{
    const double power = add + sphere + cylinder / 2;
    appendSigned(row, sphere);
    row += ' ';
    appendSigned(row, cylinder);
    row += ' ';
    AppendFormat(row, axis, "000");
    row += ' ';
    appendSigned(row, add);
    row += power >= 0 ? "(+" : "(";
    AppendFormat(row, power, "#0.00");
    row += ')';
}

const char* genderText(std::int16_t code)
{
    switch (code) {
    case 1:
        return " F";
    case 2:
        return " M";
    case 3:
        return " C";
    default:
        return " E";
    }
}

// The left list's row of table row r: bag number, the left eye, the
// pupillary distance and the rejections.
const std::string& leftRow(std::string& row, const Frm_Vistrel& v, size_t r)
{
    row.clear();
    AppendFormat(row, v.Inv_Number[r], "00000");
    row += ' ';
    appendEye(row, v.Inv_LeftSphere[r], v.Inv_LeftCylinder[r], v.Inv_LeftAxis[r], v.Inv_LeftAdd[r]);
    row.append("    ").append(v.Inv_PD[r]).append(" ").append(Str(v.Inv_RejectCount[r]));
    return row;
}

// The right list's row: bag number, the right eye, the letters of the
// flags, the gender and the comment.
const std::string& rightRow(std::string& row, const Frm_Vistrel& v, size_t r)
{
    row.clear();
    AppendFormat(row, v.Inv_Number[r], "00000");
    row += ' ';
    appendEye(row, v.Inv_RightSphere[r], v.Inv_RightCylinder[r], v.Inv_RightAxis[r], v.Inv_RightAdd[r]);
    row.append(" (")
        .append(TrueFalse(v.Inv_Sunglasses[r], "S"))
        .append(TrueFalse(v.Inv_Reading[r], "R"))
        .append(TrueFalse(v.Inv_Progressive[r], "P"))
        .append(TrueFalse(v.Inv_Bifocal[r], "B"))
        .append(")")
        .append(genderText(v.Inv_Gender[r]))
        .append(" ")
        .append(v.Inv_Comment[r]);
    return row;
}

// The person list's row: who received the pair, and its bag number.
const std::string& personRow(std::string& row, const Frm_Vistrel& v, size_t r)
{
    row.clear();
    AppendFormat(row, v.Inv_PersonNumber[r], " 000000");
    row += "        ";
    AppendFormat(row, v.Inv_Number[r], "00000");
    return row;
}

}  // namespace

void Frm_Vistrel::ListInventory()
{
    // 1, 2.
    const unsigned listing = ++inventoryListings_;
    Lst_LeftInventory.clear();
    Lst_RightInventory.clear();
    HighestInventoryNr = 0;
    std::int16_t used = 0;
    Txt_Used.setText(Format(used, "0000"));
    if (!InventoryLoaded) {
        Lst_LeftInventory.clear();
        Lst_RightInventory.clear();
        Get_Readings();
    } else {
        Txt_Status.setText(" Loaded: " + Str(InventoryCount.number()));
    }
    // 3.
    if (Lst_LeftInventory.listCount() > 0)
        return;

    // 4 to 7.
    ListedCount = 0;
    std::string status, row;
    const int count = static_cast<int>(InventoryCount.number());
    for (int i = 1; i <= count && i <= InventoryRows; ++i) {
        const auto r = static_cast<size_t>(i - 1);
        if (Inv_Number[r] == 0)
            continue;
        platform().doEvents();
        if (listing != inventoryListings_)
            return;  // a click meanwhile listed the stock anew
        show();
        Txt_Status.setText(" Loading.. 00000");
        if (!Inv_Removed[r]) {
            ++ListedCount;
            if (Inv_Number[r] > HighestInventoryNr)
                HighestInventoryNr = Inv_Number[r];
            Txt_Status.setText(JoinInto(status, " Listing.. ", Format(ListedCount, "00000")));
            Lst_LeftInventory.addItem(leftRow(row, *this, r), i);
            Lst_RightInventory.addItem(rightRow(row, *this, r), i);
        } else {
            ++used;
            Txt_Used.setText(Format(used, "0000"));
        }
        Txt_Status.setText(JoinInto(status, " Listed... ", Format(ListedCount, "0000")));
    }
}

// The two lists keep the same row at the same height.
void Frm_Vistrel::Lst_LeftInventory_Scroll()
{
    Lst_RightInventory.setTopIndex(Lst_LeftInventory.topIndex());
}

void Frm_Vistrel::Lst_RightInventory_Scroll()
{
    Lst_LeftInventory.setTopIndex(Lst_RightInventory.topIndex());
}

void Frm_Vistrel::ListPersons()
{
    // 1.
    if (!InventoryLoaded)
        Get_Readings();
    else
        Txt_Status.setText(" Loaded: " + Str(InventoryCount.number()));
    // 2.
    const bool networked = options().Chk_EnableNetJournal.value() == 1;
    if (networked)
        LoadJournalFile("NETWORK");
    // 3, 4.
    const unsigned listing = ++personListings_;
    Lst_PersonsList.clear();
    PersonsListed = 0;
    std::string status, row;
    const int count = static_cast<int>(InventoryCount.number());
    for (int i = 1; i <= count && i <= InventoryRows; ++i) {
        const auto r = static_cast<size_t>(i - 1);
        if (!Inv_Removed[r])
            continue;
        platform().doEvents();
        if (listing != personListings_)
            return;  // a click meanwhile listed the persons anew
        show();
        ++PersonsListed;
        Txt_Used.setText(Format(PersonsListed, "0000"));
        Lst_PersonsList.addItem(personRow(row, *this, r), i);
        Txt_Status.setText(JoinInto(status, " Persons.. ", Format(PersonsListed, "0000")));
    }
    // 5.
    if (networked)
        LoadJournalFile("NETWORK");
}

void Frm_Vistrel::ClearEntryValues()
{
    Txt_Sphere_Left.setText("");
    Txt_Cylinder_Left.setText("");
    Txt_Axis_Left.setText("");
    Txt_Sphere_Equ_Left.setText("");
    Txt_LeftReadingPower.setText("");
    Txt_LeftAdd.setText("");
    Lbl_Left_Prescription.setCaption("");
    LeftSphereRead = Variant(0);
    LeftCylinderRead = Variant(0);
    LeftReadingPower = Variant(0);
    LeftSphereEqu = 0;
    LeftAxisRead = 0;
    Txt_Sphere_Right.setText("");
    Txt_Cylinder_Right.setText("");
    Txt_Axis_Right.setText("");
    Txt_Sphere_Equ_Right.setText("");
    Txt_RightReadingPower.setText("");
    Txt_RightAdd.setText("");
    Lbl_Right_Prescription.setCaption("");
    RightSphereRead = Variant(0);
    RightCylinderRead = Variant(0);
    RightReadingPower = Variant(0);
    RightSphereEqu = 0;
    RightAxisRead = 0;
}

}  // namespace vistrel
