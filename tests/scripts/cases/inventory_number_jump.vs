# A typed bag number moves both stock lists there once the typing has
# paused for three ticks of the 200 ms timer. Bags: 1 2 3 5 8 13 21 34 55.
start
print Frm_Vistrel.HighestInventoryNr
set Frm_Vistrel.Txt_InventoryNr 2
print Frm_Vistrel.InventoryNrCountdown
set Frm_Vistrel.Txt_InventoryNr 21
print Frm_Vistrel.InventoryNrCountdown
tick Frm_Vistrel.Tmr_InventoryMovement 2
print Frm_Vistrel.InventoryNrCountdown
print Frm_Vistrel.Lst_LeftInventory.TopIndex
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.InventoryNrCountdown
print Frm_Vistrel.InventoryNrExpired
print Frm_Vistrel.Lst_LeftInventory.TopIndex
print Frm_Vistrel.Lst_RightInventory.TopIndex
print Frm_Vistrel.LastInventoryNrText
# Further ticks do nothing.
tick Frm_Vistrel.Tmr_InventoryMovement 5
print Frm_Vistrel.Lst_LeftInventory.TopIndex

# A number with no bag: the row before the next higher one comes to the top.
set Frm_Vistrel.Txt_InventoryNr 10
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Lst_LeftInventory.TopIndex
print Frm_Vistrel.Lst_RightInventory.TopIndex

# Past the highest bag in stock the text falls back to the last number.
set Frm_Vistrel.Txt_InventoryNr 99
print Frm_Vistrel.Txt_InventoryNr
print Frm_Vistrel.Lst_LeftInventory.TopIndex

# Typing 0021: the 0 sends the lists to the top at once, then nothing
# moves until the typing pauses.
set Frm_Vistrel.Txt_InventoryNr 0
print Frm_Vistrel.Lst_LeftInventory.TopIndex
set Frm_Vistrel.Txt_InventoryNr 00
set Frm_Vistrel.Txt_InventoryNr 002
tick Frm_Vistrel.Tmr_InventoryMovement 2
set Frm_Vistrel.Txt_InventoryNr 0021
tick Frm_Vistrel.Tmr_InventoryMovement 2
print Frm_Vistrel.Lst_LeftInventory.TopIndex
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.Lst_LeftInventory.TopIndex
print Frm_Vistrel.Lst_RightInventory.TopIndex

# A number of the first bag, and what isn't a number or is negative.
set Frm_Vistrel.Txt_InventoryNr 1
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Lst_LeftInventory.TopIndex
set Frm_Vistrel.Txt_InventoryNr 55
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Lst_LeftInventory.TopIndex
set Frm_Vistrel.Txt_InventoryNr abc
print Frm_Vistrel.Txt_InventoryNr
print Frm_Vistrel.Lst_RightInventory.TopIndex
print Frm_Vistrel.Lst_LeftInventory.TopIndex
set Frm_Vistrel.Txt_InventoryNr 34
tick Frm_Vistrel.Tmr_InventoryMovement 3
set Frm_Vistrel.Txt_InventoryNr -5
print Frm_Vistrel.Txt_InventoryNr
print Frm_Vistrel.Lst_LeftInventory.TopIndex
# A double click empties the box.
set Frm_Vistrel.Txt_InventoryNr 8
dblclick Frm_Vistrel.Txt_InventoryNr
print Frm_Vistrel.Txt_InventoryNr

# The same timer flashes the wizard's button while asked to: a change of
# colour every third tick, and green when not asked.
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
set Frm_Vistrel.WizardFlash True
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
print Frm_Vistrel.WizardFlashCounter
tick Frm_Vistrel.Tmr_InventoryMovement 2
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
set Frm_Vistrel.WizardFlash False
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
