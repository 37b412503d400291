#include "Frm_RemoveRejectInventory.h"

#include "core/Frm_Vistrel.h"

namespace vistrel {

Frm_RemoveRejectInventory::Frm_RemoveRejectInventory(Station& station)
    : Screen(station, "Frm_RemoveRejectInventory")
{
    design();
    var("Showing", Showing);
    onLoad = [this] { Form_Load(); };
    onActivate = [this] { Form_Activate(); };
    // The close box answers nothing: the answer stays Cancel.
    onCloseBox = [this] { answer(0); };
    auto click = [this](CommandButton& button, const std::string& handler, std::function<void()> fn) {
        button.onClick = fn;
        op(handler, std::move(fn));
    };
    click(Cmd_RemoveInventory, "Cmd_RemoveInventory_Click", [this] { Cmd_RemoveInventory_Click(); });
    click(Cmd_RejectInventory, "Cmd_RejectInventory_Click", [this] { Cmd_RejectInventory_Click(); });
    click(Cmd_ReturnInventory, "Cmd_ReturnInventory_Click", [this] { Cmd_ReturnInventory_Click(); });
    click(Cmd_Cancel, "Cmd_Cancel_Click", [this] { Cmd_Cancel_Click(); });
    op("Form_Load", [this] { Form_Load(); });
    op("Form_Activate", [this] { Form_Activate(); });
}

void Frm_RemoveRejectInventory::Form_Load()
{
    Form_Activate();
}

void Frm_RemoveRejectInventory::Form_Activate()
{
    const bool returning = vistrel().ReturnInventoryFlag;
    setCaption(returning ? "Return Inventory..." : "Remove or Reject Inventory...");
    Cmd_ReturnInventory.setVisible(returning);
    Cmd_RemoveInventory.setVisible(!returning);
    Cmd_RejectInventory.setVisible(!returning);
    Cmd_Cancel.setVisible(true);
    vistrel().Response = 0;
    Showing = true;
}

void Frm_RemoveRejectInventory::answer(std::int16_t response)
{
    vistrel().Response = response;
    Showing = false;
    hide();
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
