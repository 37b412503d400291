# A blank line in the middle is skipped; a short record at the end takes
# empty fields, so its pair is removed for person 0.
start
print Frm_Vistrel.Inv_Removed(3)
print Frm_Vistrel.Inv_PersonNumber(3)
print Frm_Vistrel.Inv_Removed(4)
print Frm_Vistrel.Inv_PersonNumber(4)
print Frm_Vistrel.Inv_RejectCount(4)
print Frm_Vistrel.JournalBadPoint
