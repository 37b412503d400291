start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
print Frm_ProgramOptions.Chk_AutoSearch
# With automatic search on, a gender option searches at once.
set Frm_Vistrel.Txt_Status no search
select Frm_Vistrel.Opt_Male
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
set Frm_Vistrel.Txt_Status no search
check Frm_Vistrel.Chk_Add_Either 0
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_DoNotCare
print Frm_Vistrel.Lst_LeftSelection

# Typing a measurement doesn't search.
set Frm_Vistrel.Txt_Status no search
set Frm_Vistrel.Txt_Sphere_Left 0.50
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
# "Either" with "do not care" selected: the box changes, no search.
check Frm_Vistrel.Chk_Add_Either 1
print Frm_ProgramOptions.Chk_IncludeEither
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
# A preset button searches with automatic search on.
click Frm_Vistrel.Cmd_2DefTimes2
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
