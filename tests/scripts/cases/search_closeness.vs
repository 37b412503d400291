start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Left -2.00 -1.00 x 90 against -2.25 -1.00 x 100: (1 + 0 + 2) / 3 = 1,
# the right eye exact: closeness 0.5. Axes meet across 180: 5 and 175 are
# 10 apart, 5 and 165 are 20 apart (beyond 15).
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -1.50
set Frm_Vistrel.Txt_Cylinder_Right -0.75
set Frm_Vistrel.Txt_Axis_Right 5
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection

# The axis penalty grows with the person's cylinder: a quarter of the
# difference up to 2.00, a half above 2.00, all of it above 3.00; the
# halves go to the even neighbour (2.5 -> 2, 3.5 -> 4).
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Cylinder_Left -2.50
set Frm_Vistrel.Txt_Sphere_Right -1.00
set Frm_Vistrel.Txt_Cylinder_Right -3.25
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
