start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
print Frm_Vistrel.Txt_Status
# 2100 plano pairs all fit a blank measurement: all are counted, the
# first 2000 are listed.
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.FoundCount
print Frm_Vistrel.FoundListCount
print Frm_Vistrel.Lst_LeftSelection.ListCount
print Frm_Vistrel.Lst_LeftSelection.List(0)
print Frm_Vistrel.Lst_LeftSelection.ItemData(0)
print Frm_Vistrel.Lst_LeftSelection.List(1999)
print Frm_Vistrel.Lst_LeftSelection.ItemData(1999)
print Frm_Vistrel.Found_Number(2000)
