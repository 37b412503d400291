# The stock lists: one row per pair in stock, left eye in the one, right
# eye in the other, the table index beside each row. The walk stops at the
# count of pairs, so a stock record among the pairs leaves a hole that is
# never listed nor counted, and the last pair falls out of the lists. The
# journal (with CR, LF and CR LF line ends) has removed bag 20, the hole
# and the pair beyond the count.
start
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Lst_LeftInventory
print Frm_Vistrel.Lst_RightInventory
print Frm_Vistrel.Txt_Used
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.HighestInventoryNr
print Frm_Vistrel.ListedCount
# The person list walks the same rows, holes not skipped.
print Frm_Vistrel.Lst_PersonsList
# A reload lists the same again.
click Frm_Vistrel.Cmd_ClearReload
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Txt_Used
