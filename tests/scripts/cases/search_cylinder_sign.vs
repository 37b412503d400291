start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection

# A plus cylinder refuses the search before anything else happens.
set Frm_Vistrel.Txt_Status untouched
set Frm_Vistrel.Txt_Cylinder_Left 0.25
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
set Frm_Vistrel.Txt_Cylinder_Right 0.50
call Frm_Vistrel.Search_Click
set Frm_Vistrel.Txt_Cylinder_Left -0.25
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
# Both negative again: the search runs.
set Frm_Vistrel.Txt_Cylinder_Right -0.25
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection
