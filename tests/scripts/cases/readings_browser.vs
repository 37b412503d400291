# The readings browser lists every stored reading in file order and, in a
# second list, sorted by row text (so by person first). A click brings the
# reading back into the main screen and the capture screen and searches.
start
click Frm_Vistrel.LoadPreviousAutorefractorMeasurements
print Frm_AutoReadings.Showing
print Frm_AutoReadings.Lbl_SortType
print Frm_AutoReadings.Lst_AutorefractorReadings
print Frm_AutoReadings.Lst_AutorefractorReadingsSorted
print Frm_AutoReadings.Lst_AutorefractorReadings.Visible
check Frm_AutoReadings.Chk_SortPerson 1
print Frm_AutoReadings.Lbl_SortType
print Frm_AutoReadings.Lst_AutorefractorReadings.Visible
print Frm_AutoReadings.Lst_AutorefractorReadingsSorted.Visible
check Frm_AutoReadings.Chk_SortPerson 0
print Frm_AutoReadings.Lbl_SortType

# The main screen takes the columns with their blanks; only the capture
# screen's axis of 180 becomes 0.
set Frm_Vistrel.Txt_Sphere_Left -9.00
click Frm_AutoReadings.Lst_AutorefractorReadings 0
print Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Autorefractor.Txt_AutoSphere(0)
print Frm_Autorefractor.Txt_AutoAxis(0)
print Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Vistrel.Txt_LeftConfidenceValue
print Frm_Vistrel.Chk_AutoBypass
print Frm_Vistrel.Txt_LeftAdd
click Frm_AutoReadings.Lst_AutorefractorReadingsSorted 0
print Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.Txt_Sphere_Right
