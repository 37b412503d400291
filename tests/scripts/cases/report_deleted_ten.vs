# The deleted report lists the bag numbers of all removed pairs, ten to a
# row, in the order of the inventory file. Nine are removed by the journal
# (one of them after a rejection; a pair given back and a pair only refused
# are not among them), a tenth here. The report run again replaces the first:
# the file holds exactly one full row, closed by the first of the two blank
# lines.
start
click Frm_Vistrel.DeletedReport
print Frm_Vistrel.Inv_Removed(10)
print Frm_Vistrel.Inv_RejectCount(11)
# Bag 112 is the third row of the stock list.
set Frm_Vistrel.Txt_PersonNumber 31
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 2
print Frm_Vistrel.Inv_Removed(12)
call Frm_Vistrel.DeletedReport_Click
