start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Whole numbers in the file round to the even neighbour on a half (bag
# 13.5 is 14, 2.5 is 2, axis 92.5 is 92); shown values round half away
# from zero on the decimal value (-1.255 shows as -1.26).
print Frm_Vistrel.Inv_Number(1)
print Frm_Vistrel.Inv_Number(2)
print Frm_Vistrel.Inv_LeftAxis(1)
print Frm_Vistrel.Inv_RightAxis(1)
print Frm_Vistrel.Inv_LeftSphere(1)
print Frm_Vistrel.Lst_LeftInventory
set Frm_Vistrel.Txt_Sphere_Left -1.25
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
