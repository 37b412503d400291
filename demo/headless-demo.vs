# Headless demo: start the station on the demo stock, type one person's
# measurement and search for close-enough glasses.
start
print Frm_Vistrel.Txt_Status

# A 45-year-old, mildly short-sighted with a little astigmatism.
set Frm_Vistrel.Txt_Age 45
set Frm_Vistrel.Txt_Sphere_Left -1.75
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -0.75
set Frm_Vistrel.Txt_Axis_Right 85

call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
