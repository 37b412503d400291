start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Astigmatic regime with the bifocal search: four points are needed; a pair
# that matched through the equivalent keeps its flag when the reading power
# adds the fourth, and its score takes the Add term undivided.
set Frm_Vistrel.Txt_Age 50
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.LeftReadingPower
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
