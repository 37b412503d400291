# Reading glasses by power. A click on a locked cell takes one pair away
# (no floor at 0) and marks it yellow; a save writes the yellow cells to
# the grid journal at C:\JournalFile.txt and locks them again. A count
# typed into an unlocked cell carries no mark and is never journalled.
start
print Frm_ReadingGlasses.Txt_NNN(0)
print Frm_ReadingGlasses.Txt_NNN(4)
print Frm_ReadingGlasses.Txt_NNN(19)
print Frm_ReadingGlasses.Txt_Total
print Frm_ReadingGlasses.Txt_NNN(4).ToolTipText
click Frm_Vistrel.Cmd_ReadingGlasses
print Frm_ReadingGlasses.Showing

click Frm_ReadingGlasses.Txt_NNN(4)
click Frm_ReadingGlasses.Txt_NNN(4)
click Frm_ReadingGlasses.Txt_NNN(0)
print Frm_ReadingGlasses.Txt_NNN(4)
print Frm_ReadingGlasses.Txt_NNN(4).BackColor
print Frm_ReadingGlasses.Txt_NNN(0)
print Frm_ReadingGlasses.Txt_Total
print Frm_ReadingGlasses.Txt_Total.BackColor

# Unlocking opens every cell but the yellow ones; a click on an open cell
# does nothing, and a typed count counts in the next total only.
click Frm_ReadingGlasses.Cmd_Unlock
print Frm_ReadingGlasses.Txt_NNN(1).BackColor
print Frm_ReadingGlasses.Txt_NNN(1).Locked
print Frm_ReadingGlasses.Txt_NNN(4).BackColor
print Frm_ReadingGlasses.Txt_NNN(4).Locked
click Frm_ReadingGlasses.Txt_NNN(1)
print Frm_ReadingGlasses.Txt_NNN(1)
set Frm_ReadingGlasses.Txt_NNN(1) 12
print Frm_ReadingGlasses.Txt_Total

click Frm_ReadingGlasses.Cmd_SaveCells
print Frm_ReadingGlasses.Txt_NNN(4).BackColor
print Frm_ReadingGlasses.Txt_NNN(1).BackColor
print Frm_ReadingGlasses.Txt_NNN(1).Locked
print Frm_ReadingGlasses.Txt_Total
print Frm_ReadingGlasses.Txt_Total.BackColor

# Locking drops an unsaved mark: that change never reaches the journal.
click Frm_ReadingGlasses.Cmd_LockCells
click Frm_ReadingGlasses.Txt_NNN(19)
click Frm_ReadingGlasses.Cmd_LockCells
print Frm_ReadingGlasses.Txt_NNN(19)
print Frm_ReadingGlasses.Txt_NNN(19).BackColor
click Frm_ReadingGlasses.Cmd_SaveCells

# The main screen saves the grids every two minutes, pressed or not.
click Frm_ReadingGlasses.Txt_NNN(19)
tick Frm_Vistrel.Tmr_SaveInventory 119
print Frm_Vistrel.SaveInventoryCountdown
print Frm_ReadingGlasses.Txt_NNN(19).BackColor
tick Frm_Vistrel.Tmr_SaveInventory
print Frm_Vistrel.SaveInventoryCountdown
print Frm_ReadingGlasses.Txt_NNN(19).BackColor
