#include "Frm_RemoveRejectInventory.h"

namespace vistrel {

Frm_RemoveRejectInventory::Frm_RemoveRejectInventory(Station& station)
    : Screen(station, "Frm_RemoveRejectInventory")
{
    design();
    var("Showing", Showing);
}

void Frm_RemoveRejectInventory::design()
{
    setCaption("Remove or Reject Inventory...");
    setGeometry(0, 0, 8400, 5400);
    Lbl_RemoveRejectMessage.setGeometry(240, 240, 7800, 2400);
    Cmd_RemoveInventory.setCaption("&Remove Pair");
    Cmd_RemoveInventory.setGeometry(240, 2760, 1800, 480);
    Cmd_RejectInventory.setCaption("Reject &Pair");
    Cmd_RejectInventory.setGeometry(2220, 2760, 1800, 480);
    Cmd_ReturnInventory.setCaption("&Return Pair");
    Cmd_ReturnInventory.setGeometry(4200, 2760, 1800, 480);
    Cmd_Cancel.setCaption("&Cancel");
    Cmd_Cancel.setGeometry(6180, 2760, 1800, 480);
    Txt_Notice.setText("NOTICE");
    Txt_Notice.setLocked(true);
    Txt_Notice.setGeometry(240, 3420, 7800, 315);
    Removal_Note.setMultiLine(true);
    Removal_Note.setLocked(true);
    Removal_Note.setText(
        "After you remove or return a pair of eyeglasses, click the \r\n"
        "REFRESH PERSON LIST button on the bottom left of the \r\n"
        "screen and you will see your change listed. You will not \r\n"
        "see the change in the main inventory list unless you click \r\n"
        "the CLEAR & RELOAD ALL INVENTORY button.");
    Removal_Note.setGeometry(240, 3780, 7800, 1320);
}

}  // namespace vistrel
