# A blank line at the end is one more (empty) eyeglass record; the stock
# lists skip it.
start
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(3)
print Frm_Vistrel.Lst_LeftInventory
print Frm_Vistrel.Lst_RightInventory
print Frm_Vistrel.Txt_Status
