start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Txt_Age 50
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.50
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# With the bifocal search the chart's Add (2.00 at 50) comes in: the net
# reading power is a third point to earn, and the Add difference a fourth
# term of the score.
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_Vistrel.LeftReadingPower
print Frm_Vistrel.RightReadingPower
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
