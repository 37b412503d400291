// The jump of the stock lists to a typed bag number, which waits for the
// typing to pause, and the 200 ms timer that counts that pause down and
// flashes the wizard's button.

#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"

namespace vistrel {

void Frm_Vistrel::Txt_InventoryNr_DblClick()
{
    Txt_InventoryNr.setText("");
}

void Frm_Vistrel::Txt_InventoryNr_Change()
{
    // 1. The box's own writes below come back here and stop.
    if (InventoryNrBusy)
        return;
    InventoryNrBusy = true;

    // 2. Every keystroke starts the wait anew; the timer's last call doesn't.
    if (!InventoryNrExpired)
        InventoryNrCountdown = 3;

    // 3, 4.
    if (!IsNumeric(Txt_InventoryNr.text()) || Val(Txt_InventoryNr.text()) < 0)
        Txt_InventoryNr.setText("");
    const double typed = Val(Txt_InventoryNr.text());
    const double n = typed < 0 ? -Int(-typed) : Int(typed);

    if (n > HighestInventoryNr) {
        // 5. The number can't be typed past the top.
        Txt_InventoryNr.setText(LastInventoryNrText);
    } else {
        // 6. The list moves only once the wait has run out.
        if (typed <= 0) {
            Lst_RightInventory.setTopIndex(0);
        } else {
            for (int row = 0; row < Lst_LeftInventory.listCount(); ++row) {
                const double bag = Val(Lst_LeftInventory.row(row).text);
                if (bag == n) {
                    if (InventoryNrCountdown == 0)
                        Lst_LeftInventory.setTopIndex(row);
                    break;
                }
                if (bag > n) {
                    if (InventoryNrCountdown == 0)
                        Lst_LeftInventory.setTopIndex(row > 0 ? row - 1 : 0);
                    break;
                }
            }
        }
        // 7.
        LastInventoryNrText = Str(n);
    }

    // 8.
    Lst_RightInventory_Scroll();
    InventoryNrBusy = false;
    InventoryNrExpired = false;
}

void Frm_Vistrel::Tmr_InventoryMovement_Timer()
{
    // The wizard's button flashes, a change every third tick.
    if (WizardFlash) {
        if (--WizardFlashCounter <= 0) {
            WizardFlashCounter = 3;
            Cmd_RunAdvisor.setBackColor(Cmd_RunAdvisor.backColor() == colors::Green ? colors::PaleCyan : colors::Green);
        }
    } else {
        Cmd_RunAdvisor.setBackColor(colors::Green);
    }

    // The typed bag number: once the typing has paused, move the lists.
    if (InventoryNrCountdown != 0) {
        if (--InventoryNrCountdown <= 0) {
            InventoryNrCountdown = 0;
            InventoryNrExpired = true;
            Txt_InventoryNr_Change();
        }
    }
}

}  // namespace vistrel
