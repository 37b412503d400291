start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Plano pairs against a blank measurement: pairs 1 to 6 differ in lens
# type, 7 to 12 in gender (E, F, M, C, a code 7 shown as E, and 21: F with
# two rejections).
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Progressive
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_LensBiFocal
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
# Single vision is every pair without the bifocal flag, progressives too.
select Frm_Vistrel.Opt_LensSingle
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Readers
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

select Frm_Vistrel.Opt_LensDoNotCare
select Frm_Vistrel.Opt_EitherMaleFemale
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
# Male and female searches include "either" while Chk_Add_Either is on.
select Frm_Vistrel.Opt_Female
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Male
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_Vistrel.Chk_Add_Either 0
print Frm_ProgramOptions.Chk_IncludeEither
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Female
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Child
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
