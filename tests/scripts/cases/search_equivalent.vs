start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# -2.00 -1.00 x 90 in both eyes (equivalent -2.50). A pair with little
# cylinder matches the left eye through the equivalent; its score compares
# the equivalent with sphere minus half the (negative) cylinder.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# No equivalent for the left eye: the same pairs pass on sphere, cylinder
# and the axis free pass of a pair without cylinder.
check Frm_Vistrel.Chk_NOEquivLeft 1
print Frm_Vistrel.NOSphericalEquivalentLeft
print Frm_Vistrel.NOSphericalEquivalent
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
