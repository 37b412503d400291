start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# -2.00 -1.00 x 90 in both eyes. No over-cylinder lets a quarter more than
# the person's cylinder in, "up to -.50" half a dioptre.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_NoOverCylinder 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_UpTo50 1
print Frm_Advisor.Chk_VarnOverCylinder50
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
