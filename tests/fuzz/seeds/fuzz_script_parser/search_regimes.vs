start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Spherical regime (no cylinder in either eye): a sphere of 0 has no sign,
# so 0.00 against +0.25 or -0.25 earns nothing; the pair's cylinder must
# stay within .5 + .05, inclusive on the left, strict on the right.
set Frm_Vistrel.Txt_Sphere_Left 0.00
set Frm_Vistrel.Txt_Sphere_Right -1.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Lst_LeftSelection

# One eye with cylinder puts both eyes into the astigmatic regime: there
# 0 counts as positive, and a pair with little cylinder can pass through
# the spherical equivalent, which sets the count to 3 outright.
set Frm_Vistrel.Txt_Cylinder_Left -0.50
call Frm_Vistrel.Search_Click
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Lst_LeftSelection
