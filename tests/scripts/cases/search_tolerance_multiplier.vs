start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# The wizard's multiplier widens one eye's sphere tolerance; the limit on
# a pair's cylinder when the person has none is not multiplied.
set Frm_Vistrel.LeftToleranceMultiplier 2
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
