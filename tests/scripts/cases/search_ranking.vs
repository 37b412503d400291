start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# The list sorts by row text: closeness text first, bag number second.
# A closeness below 10 has a leading blank, so 9.8 lists before 10, and
# 10 before 12.5. A sphere tolerance of 10 lets far pairs in.
click Frm_Vistrel.Cmd_Default
set Frm_ProgramOptions.Txt_Max_Sphere_Overage 10
print Frm_Vistrel.Max_Sphere_OverageValue
set Frm_Vistrel.Txt_Sphere_Left -10.00
set Frm_Vistrel.Txt_Sphere_Right -10.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
