# The rejected report lists the pairs refused at least once that are still
# in stock, eight to a row: bag number and count of rejections. Bag 123 was
# refused twice here; bags 8 and 10 to 16 carry their rejections in the
# inventory file (gender plus ten times the count). Bag 7 (refused in the
# file) and bag 45 (refused, then given out) are gone and not listed. The
# total counts pairs, not rejections.
start
print Frm_Vistrel.Inv_RejectCount(1)
print Frm_Vistrel.Inv_Gender(1)
print Frm_Vistrel.Inv_RejectCount(3)
print Frm_Vistrel.Inv_Removed(3)
click Frm_Vistrel.RejectedReport
