# A network folder that can't be reached (here a plain relative path with
# nothing there) shows the label and the station works on: a removal goes
# to the local journal alone, without a word. The stock grids' fixed
# journal is not replayed, since the station's folder isn't C:.
start
print Frm_Vistrel.Lbl_NetworkJournalDown
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
print Frm_ReadingGlasses.Txt_NNN(4)
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 0
click Frm_Vistrel.Cmd_ListPersons
print Frm_Vistrel.Lst_PersonsList
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
