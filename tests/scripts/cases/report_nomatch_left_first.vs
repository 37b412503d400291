# The report of measurements without a match: four saved measurements come
# from the journal, a fifth is saved here. Each line has the row number and
# both eyes, left first as the screen stands; under "Add" is the distance
# between equivalent and net reading power (row 2: |2.125 - 2.25| = .13,
# row 4's axis 7.5 shows as 8).
start
print Frm_Vistrel.MeasurementsSaved
set Frm_Vistrel.Txt_Sphere_Left -1.25
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_LeftAdd 2.00
answer Frm_SavePrescription.Cmd_Yes
click Frm_Vistrel.Cmd_PrescriptionSave
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Meas_LeftCylinder(5)
print Frm_Vistrel.Meas_LeftAdd(5)
print Frm_Vistrel.Meas_LeftSphereEqu(5)
print Frm_Vistrel.Meas_RightAdd(5)
print Frm_Vistrel.Meas_RightSphereEqu(5)
print Frm_Vistrel.FlipLeftFirst
click Frm_Vistrel.DisplayNoMatchMeasurements
