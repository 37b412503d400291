start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Field 16 is gender plus ten times the rejections; a quoted comment may
# hold a comma.
print Frm_Vistrel.Inv_Gender(1)
print Frm_Vistrel.Inv_RejectCount(1)
print Frm_Vistrel.Inv_Comment(1)
print Frm_Vistrel.Inv_Extra1(1)
print Frm_Vistrel.Inv_Extra2(1)
print Frm_Vistrel.Inv_Gender(2)
print Frm_Vistrel.Inv_RejectCount(2)
print Frm_Vistrel.Inv_Gender(3)
print Frm_Vistrel.Inv_RejectCount(3)
print Frm_Vistrel.Inv_PD(3)
print Frm_Vistrel.Inv_Gender(4)
print Frm_Vistrel.Inv_RejectCount(4)
print Frm_Vistrel.Inv_Number(2)
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_Vistrel.Opt_Child
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
