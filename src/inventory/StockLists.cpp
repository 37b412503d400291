// The stock lists of the main screen, left and right eye side by side, and
// the list of persons who received a pair.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Platform.h"

namespace vistrel {

namespace {

std::string signedValue(double v)
{
    return (v >= 0 ? "+" : "") + Format(v, "#0.00");
}

std::string genderText(std::int16_t code)
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
            Txt_Status.setText(" Listing.. " + Format(ListedCount, "00000"));
            const std::string number = Format(Inv_Number[r], "00000") + " ";
            auto eye = [&](double s, double c, std::int16_t a, double d) {
                const double power = d + s + c / 2;
                return signedValue(s) + " " + signedValue(c) + " " + Format(a, "000") + " " + signedValue(d)
                    + (power >= 0 ? "(+" : "(") + Format(power, "#0.00") + ")";
            };
            const std::string left = number
                + eye(Inv_LeftSphere[r], Inv_LeftCylinder[r], Inv_LeftAxis[r], Inv_LeftAdd[r]) + "    " + Inv_PD[r]
                + " " + Str(Inv_RejectCount[r]);
            const std::string right = number
                + eye(Inv_RightSphere[r], Inv_RightCylinder[r], Inv_RightAxis[r], Inv_RightAdd[r]) + " ("
                + TrueFalse(Inv_Sunglasses[r], "S") + TrueFalse(Inv_Reading[r], "R")
                + TrueFalse(Inv_Progressive[r], "P") + TrueFalse(Inv_Bifocal[r], "B") + ")" + genderText(Inv_Gender[r])
                + " " + Inv_Comment[r];
            Lst_LeftInventory.addItem(left, i);
            Lst_RightInventory.addItem(right, i);
        } else {
            ++used;
            Txt_Used.setText(Format(used, "0000"));
        }
        Txt_Status.setText(" Listed... " + Format(ListedCount, "0000"));
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
        Lst_PersonsList.addItem(Format(Inv_PersonNumber[r], " 000000") + "        " + Format(Inv_Number[r], "00000"), i);
        Txt_Status.setText(" Persons.. " + Format(PersonsListed, "0000"));
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
