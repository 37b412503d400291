// Giving a pair out, taking note of a pair tried and refused, and taking a
// pair back: the operator clicks a row, the dialog asks, and the answer
// changes the tables and goes to the journal.

#include "Frm_RemoveRejectInventory.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

namespace vistrel {

void Frm_Vistrel::Lst_LeftInventory_Click()
{
    announceRow(Lst_LeftInventory, false);
}

void Frm_Vistrel::Lst_RightInventory_Click()
{
    announceRow(Lst_RightInventory, false);
}

void Frm_Vistrel::Lst_PersonsList_Click()
{
    announceRow(Lst_PersonsList, true);
}

void Frm_Vistrel::Lst_LeftSelection_Click()
{
    announceRow(Lst_LeftSelection, false);
}

// The row's text is shown in the question; its integer is the table index
// of the pair, the only way back to the record.
void Frm_Vistrel::announceRow(const ListBox& list, bool returning)
{
    const int at = list.listIndex();
    if (at < 0)
        return;
    ReturnInventoryFlag = returning;
    SelectedRowText = Variant(list.row(at).text);
    SelectedIndex = Variant(static_cast<double>(list.row(at).itemData));
    Announce_Selection();
}

void Frm_Vistrel::Announce_Selection()
{
    const auto index = ToLong(SelectedIndex.number());
    if (!index || *index < 1 || *index > InventoryRows)
        return;
    const auto i = static_cast<size_t>(*index - 1);

    // The question.
    const std::string head = ReturnInventoryFlag ? "You have selected to RETURN number: "
                                                 : "You have selected to REMOVE or REJECT number: ";
    const std::string person = ReturnInventoryFlag ? Str(Inv_PersonNumber[i]) : Txt_PersonNumber.text();
    Frm_RemoveRejectInventory& dialog = removeReject();
    dialog.Lbl_RemoveRejectMessage.setCaption(head + Str(Inv_Number[i]) + " Showing: " + CrLf + CrLf + "   [ "
        + SelectedRowText.string() + " ] " + CrLf + CrLf + " from the list for person: " + person + CrLf + CrLf
        + "            Is this OK?");
    dialog.show(true);

    // The answer. No step starts a search: the result list shows a pair
    // given out until the next search.
    if (Response == 6 && !ReturnInventoryFlag) {
        Inv_Removed[i] = true;
        JournalAddFlag = "True";
        if (const auto n = ToLong(Val(Txt_PersonNumber.text())))
            Inv_PersonNumber[i] = *n;
        Journal_AddRemove();
        if (RefreshAddRemoveValue == 1) {
            Cmd_ListPersons_Click();
            ListInventory();
        }
    } else if (Response == 6) {
        Inv_Removed[i] = false;
        JournalAddFlag = "False";
        Inv_PersonNumber[i] = 0;
        Journal_AddRemove();
        if (RefreshAddRemoveValue == 1)
            Cmd_ListPersons_Click();
    } else if (Response == 5 && !ReturnInventoryFlag) {
        if (const auto count = ToInteger(Inv_RejectCount[i] + 1.0))
            Inv_RejectCount[i] = *count;
        JournalAddFlag = Str(Inv_RejectCount[i]);
        Journal_AddRemove();
    }
}

}  // namespace vistrel
