# The command line wins over record 50 ("100"), and the load stops at the
# first bag above it; that bag keeps its number in the row but is not
# counted, and nothing behind it is read.
start 500
print Frm_ProgramOptions.Txt_HighestInventoryNumber
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(2)
print Frm_Vistrel.Inv_Number(3)
print Frm_Vistrel.Inv_Number(4)
print Frm_Vistrel.PublicMaximumLocations
print Frm_Vistrel.HighestInventoryNr
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Txt_Status
