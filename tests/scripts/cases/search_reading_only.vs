start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Reading only: the net reading power is the one point to earn, whatever
# the rest of the lens. Adds typed: left -1.00 + 2.00, right -1.50 + 2.00.
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_LeftAdd 2.00
set Frm_Vistrel.Txt_Sphere_Right -1.50
set Frm_Vistrel.Txt_RightAdd 2.00
check Frm_Vistrel.Chk_OnlyBifocals 1
print Frm_Vistrel.MatchReadingOnlyValue
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_ProgramOptions.Chk_MatchReadingOnly
print Frm_Vistrel.Chk_PlusBifocals
# Spherical regime: a pair with a quarter of cylinder doesn't qualify.
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# Astigmatic regime: no limit on the pair's cylinder.
set Frm_Vistrel.Txt_Cylinder_Left -0.50
print Frm_Vistrel.LeftReadingPower
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
