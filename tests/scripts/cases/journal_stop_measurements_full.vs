# The table of saved measurements has 2000 rows. The 2001st measurement
# record is counted, its row can't be written, and the replay ends there:
# the removal behind it is never replayed.
start
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Txt_UnmatchedCount
print Frm_Vistrel.Meas_LeftSphere(2000)
print Frm_Vistrel.Meas_LeftAxis(2000)
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_Removed(2)
