# A first field that isn't a number reads as index 0: the replay stops
# there and the rest of the file is ignored without a word.
start
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.JournalBadPoint
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
print Frm_Vistrel.Lst_PersonsList
