# An index beyond the tables ends the replay; what came before stands.
start
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
