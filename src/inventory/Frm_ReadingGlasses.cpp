#include "Frm_ReadingGlasses.h"

#include "CellLook.h"
#include "StockGridJournal.h"
#include "core/Numbers.h"
#include "core/Station.h"

namespace vistrel {

using cell_look::Changed;
using cell_look::Locked;
using cell_look::Open;

Frm_ReadingGlasses::Frm_ReadingGlasses(Station& station) : Screen(station, "Frm_ReadingGlasses")
{
    design();
    for (int i = 0; i <= 19; ++i)
        Txt_NNN[i].onClick = [this, i] { Txt_NNN_Click(i); };
    wireClick(Cmd_LockCells, "Cmd_LockCells_Click", [this] { Cmd_LockCells_Click(); });
    wireClick(Cmd_Unlock, "Cmd_Unlock_Click", [this] { Cmd_Unlock_Click(); });
    wireClick(Cmd_SaveCells, "Cmd_SaveCells_Click", [this] { Cmd_SaveCells_Click(); });
    wireClick(Cmd_HideReading, "Cmd_HideReading_Click", [this] { Cmd_HideReading_Click(); });
    onCloseBox = [this] { Cmd_HideReading_Click(); };
    var("Showing", Showing);
    op("ComputeTotalReading", [this] {
        std::int16_t result = 0;
        ComputeTotalReading(result);
    });
}

void Frm_ReadingGlasses::Txt_NNN_Click(int index)
{
    TextBox& cell = Txt_NNN[index];
    if (!cell.locked())
        return;
    // No floor: a count of 0 goes to minus 1.
    const auto count = ToInteger(Val(cell.text()) - 1);
    if (!count)
        return;
    cell.setText(Format(*count, "000"));
    cell.setBackColor(Changed);
    Txt_Total.setBackColor(Changed);
    std::int16_t result = 0;
    ComputeTotalReading(result);
}

void Frm_ReadingGlasses::ComputeTotalReading(std::int16_t& result)
{
    result = 0;
    double sum = 0;
    for (int i = 0; i <= 19; ++i)
        sum += Val(Txt_NNN[i].text());
    Txt_Total.setText(Format(ToIntegerOr(sum, sum < 0 ? INT16_MIN : INT16_MAX), "000"));
}

void Frm_ReadingGlasses::Cmd_SaveCells_Click()
{
    // Only clicks are journalled: a count typed into an open cell has no
    // yellow mark and stays on the screen alone. A journal that can't be
    // written leaves the marks for the next save.
    StockGridJournal journal(platform());
    if (!journal.isOpen())
        return;
    for (int i = 0; i <= 19; ++i) {
        TextBox& cell = Txt_NNN[i];
        if (cell.backColor() != Changed)
            continue;
        if (!journal.append("Reading," + Format(i * 0.25, "0.00") + "," + cell.text()))
            return;
        cell.setBackColor(Locked);
        cell.setLocked(true);
    }
    journal.close();
    Txt_Total.setBackColor(Locked);
    std::int16_t result = 0;
    ComputeTotalReading(result);
}

void Frm_ReadingGlasses::Cmd_LockCells_Click()
{
    // Yellow cells lose their mark unsaved.
    for (int i = 0; i <= 19; ++i) {
        Txt_NNN[i].setBackColor(Locked);
        Txt_NNN[i].setLocked(true);
    }
}

void Frm_ReadingGlasses::Cmd_Unlock_Click()
{
    for (int i = 0; i <= 19; ++i) {
        if (Txt_NNN[i].backColor() == Changed)
            continue;
        Txt_NNN[i].setBackColor(Open);
        Txt_NNN[i].setLocked(false);
    }
}

void Frm_ReadingGlasses::Cmd_HideReading_Click()
{
    Showing = false;
    hide();
}

}  // namespace vistrel
