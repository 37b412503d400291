# Diagnostic mode: every candidate of a search is traced, under four head
# lines written once per search.
start
set Frm_Vistrel.Txt_Age 40
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
print Frm_Vistrel.DiagnosticValue
