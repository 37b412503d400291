# Every kind of journal record, replayed over the loaded inventory at
# start. Records hold absolute states: the last one for a row wins.
start
print Frm_Vistrel.JournalBadPoint
# Dispensing: "true" in any case removes, "False" returns, anything else
# is the rejection count and leaves the pair where it was. Every record
# overwrites the person, a rejection's too.
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_PersonNumber(1)
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Inv_PersonNumber(2)
print Frm_Vistrel.Inv_Removed(3)
print Frm_Vistrel.Inv_RejectCount(3)
print Frm_Vistrel.Inv_PersonNumber(3)
print Frm_Vistrel.Inv_RejectCount(4)
# A frame size not in the list leaves its quantity to start the next
# record: here the removal of row 5 for person 3.
print Frm_Vistrel.Inv_Removed(5)
print Frm_Vistrel.Inv_PersonNumber(5)
# A saved measurement.
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Txt_UnmatchedCount
print Frm_Vistrel.Meas_LeftSphere(1)
print Frm_Vistrel.Meas_LeftCylinder(1)
print Frm_Vistrel.Meas_LeftAxis(1)
print Frm_Vistrel.Meas_LeftReadingPower(1)
print Frm_Vistrel.Meas_LeftSphereEqu(1)
print Frm_Vistrel.Meas_RightSphere(1)
# Stock cells: an unknown power keeps the cell of the record before; a
# lens sphere beyond 6.00 keeps the row before (row 1, of the child record)
# and lands in the grid of its own keyword.
print Frm_ReadingGlasses.Txt_NNN(4)
print Frm_ReadingGlasses.Txt_Total
print Frm_Vistrel.ReadingGlassesTotal
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(30,3)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(1,13)
print Frm_LensFrames.MSF_LensInventory(1).TextMatrix(1,1)
print Frm_LensFrames.Txt_LensTotal(0)
print Frm_LensFrames.Txt_LensTotal(1)
print Frm_LensFrames.Txt_FrameAdult67
print Frm_LensFrames.Txt_FrameChild61
print Frm_LensFrames.Txt_FrameAdultTotal
print Frm_LensFrames.Txt_FrameChildTotal
print Frm_Vistrel.Lst_PersonsList
print Frm_Vistrel.Lst_LeftInventory
