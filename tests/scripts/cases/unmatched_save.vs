# A measurement whose glasses weren't found is saved after a question: it
# goes to the journal as the entry texts stand and into the table that the
# no-match reports read.
start
set Frm_Vistrel.Txt_Sphere_Left -1.25
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_LeftAdd 2.00
answer Frm_SavePrescription.Cmd_Yes
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_SavePrescription.Caption
print Frm_Vistrel.SavePrescriptionYesNo
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Txt_UnmatchedCount
print Frm_Vistrel.Meas_LeftSphere(1)
print Frm_Vistrel.Meas_LeftAxis(1)
print Frm_Vistrel.Meas_LeftAdd(1)
print Frm_Vistrel.Meas_LeftSphereEqu(1)
print Frm_Vistrel.Meas_RightSphere(1)
# No: nothing is saved.
answer Frm_SavePrescription.Cmd_NOSave
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_Vistrel.MeasurementsSaved
# "Don't ask again", even closing without an answer: this one isn't saved,
# every later one is, without the question.
answer Frm_SavePrescription.Chk_DoNotAsk
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_Vistrel.SavePrescriptionASK
print Frm_Vistrel.MeasurementsSaved
set Frm_Vistrel.Txt_Sphere_Right 1.00
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Meas_RightSphere(2)
# All ten fields empty: nothing saved, no word.
call Frm_Vistrel.ClearEntryValues
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_Vistrel.MeasurementsSaved
