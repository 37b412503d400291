# No Total_Inventory.txt: no message; one empty record is counted.
start
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(1)
print Frm_Vistrel.HighestInventoryNr
print Frm_Vistrel.InventoryLoaded
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Lst_RightInventory.ListCount
print Frm_Vistrel.Txt_Status
