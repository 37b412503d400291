# Highest allowed number 100: bag 100 is read, bag 101 ends the load.
start
print Frm_ProgramOptions.Txt_HighestInventoryNumber
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(2)
print Frm_Vistrel.Inv_Number(3)
print Frm_Vistrel.Inv_Number(4)
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Txt_Status
# The search walks the counted rows only: bag 101 would fit a blank
# measurement, but it isn't searched.
call Frm_Vistrel.Search_Click
print Frm_Vistrel.FoundCount
