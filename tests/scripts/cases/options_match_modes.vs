start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Records 2 and 3: match the right eye only, on the reading power only.
print Frm_Vistrel.RightOnlyValue
print Frm_Vistrel.LeftOnlyValue
print Frm_Vistrel.MatchBothValue
print Frm_ProgramOptions.Opt_RightOnly
print Frm_Vistrel.Chk_OnlyBifocals
print Frm_ProgramOptions.Chk_MatchReadingOnly
print Frm_Vistrel.MatchReadingOnlyValue
print Frm_Vistrel.MatchReadingAlsoValue
# Right -1.00 with an Add of 2.00: net reading power 1.00. The left eye
# plays no part, and the rows show it as blind.
set Frm_Vistrel.Txt_Sphere_Right -1.00
set Frm_Vistrel.Txt_RightAdd 2.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
