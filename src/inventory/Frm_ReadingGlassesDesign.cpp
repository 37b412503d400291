// How the reading-glasses screen is drawn: a cell per power, whole
// dioptres down the rows and quarter steps across.

#include "Frm_ReadingGlasses.h"

#include "core/Numbers.h"

namespace vistrel {

void Frm_ReadingGlasses::design()
{
    setCaption("Reading Glasses");
    setGeometry(0, 0, 6600, 4800);
    Frm_ReadingInventory.setCaption("Reading Glass Inventory.");
    Frm_ReadingInventory.setGeometry(120, 120, 6240, 3000);
    for (int i = 0; i <= 19; ++i) {
        TextBox& cell = Txt_NNN[i];
        cell.setContainer(&Frm_ReadingInventory);
        cell.setGeometry(1200 + (i % 4) * 1200, 600 + (i / 4) * 440, 900, 375);
        cell.setLocked(true);
        cell.setBackColor(colors::LightGrey);
        cell.setText("000");
        cell.setToolTipText("Click to decrement " + Format(i * 0.25, "0.00") + " reading glass inventory.");
    }
    Label* rows[] = {&Lbl_000, &Lbl_100, &Lbl_200, &Lbl_300, &Lbl_400};
    for (int r = 0; r < 5; ++r) {
        rows[r]->setContainer(&Frm_ReadingInventory);
        rows[r]->setCaption(Format(r, "0.00"));
        rows[r]->setGeometry(240, 660 + r * 440, 840, 255);
    }
    Label* columns[] = {&Lbl_000T, &Lbl_025T, &Lbl_050T, &Lbl_075T};
    for (int c = 0; c < 4; ++c) {
        columns[c]->setContainer(&Frm_ReadingInventory);
        columns[c]->setCaption("+" + Format(c * 0.25, "0.00"));
        columns[c]->setGeometry(1200 + c * 1200, 300, 900, 255);
    }
    Lbl_Power.setCaption("Power");
    Lbl_Power.setContainer(&Frm_ReadingInventory);
    Lbl_Power.setGeometry(120, 300, 900, 255);
    Txt_Total.setText("000");
    Txt_Total.setLocked(true);
    Txt_Total.setBackColor(colors::LightGrey);
    Txt_Total.setGeometry(1200, 3240, 900, 375);
    Lbl_Total.setCaption("Total=");
    Lbl_Total.setGeometry(240, 3300, 900, 255);
    Lbl_Instructions.setCaption(
        "Single click to decrement a reading.  Unlock Cells, save, and Lock Cells to change them.");
    Lbl_Instructions.setGeometry(2280, 3240, 4080, 480);
    Cmd_Unlock.setCaption("Unlock Cells");
    Cmd_Unlock.setToolTipText("Click to unlock cells to allow changes.");
    Cmd_Unlock.setGeometry(240, 3960, 1440, 420);
    Cmd_SaveCells.setCaption("Save Cells");
    Cmd_SaveCells.setToolTipText("Click to save cells and turn off yellow indicators.");
    Cmd_SaveCells.setGeometry(1800, 3960, 1440, 420);
    Cmd_LockCells.setCaption("Lock Cells");
    Cmd_LockCells.setToolTipText("Click to lock cells after unlocking and making changes.");
    Cmd_LockCells.setGeometry(3360, 3960, 1440, 420);
    Cmd_HideReading.setCaption("Hide");
    Cmd_HideReading.setToolTipText("Click to hide this form to enable use of main form.");
    Cmd_HideReading.setGeometry(4920, 3960, 1440, 420);
}

}  // namespace vistrel
