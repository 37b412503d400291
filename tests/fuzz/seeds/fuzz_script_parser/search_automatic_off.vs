start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# Automatic search off: a new gender keeps the old list until a search is
# asked for.
set Frm_Vistrel.Txt_Status no search
select Frm_Vistrel.Opt_Male
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
click Frm_Vistrel.Cmd_2DefTimes2
print Frm_Vistrel.Txt_Status
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
