# A network folder given as a plain path with no drive letter is used as
# it stands, here relative to the working folder.
start
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
print Frm_Vistrel.Lst_PersonsList
set Frm_Vistrel.Txt_PersonNumber 45
answer Frm_RemoveRejectInventory.Cmd_RejectInventory
click Frm_Vistrel.Lst_RightInventory 0
