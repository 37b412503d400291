frobnicate Frm_Vistrel.X
set Frm_Vistrel.Txt_Sphere_Left
check Frm_ProgramOptions.Chk_NoOverplus 2
click Frm_Vistrel.Lst_LeftInventory -1
click Frm_Vistrel.Lst_LeftInventory 99999999999
tick Frm_Vistrel.Tmr_SaveInventory 0
call Frm_Vistrel.Search_Click(1)
stay Frm_Vistrel.Txt
print Frm_Vistrel
print Frm_Vistrel.Inv_Number(32001)
print Frm_Vistrel.Inv_Number(-2147483648)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(-1,99)
print Frm_LensFrames.MSF_LensInventory(9)
print Nothing.Here
set Frm_Vistrel.Txt_Sphere_Left "unclosed
set Frm_Vistrel.Txt_Sphere_Left "\x4"
print Frm_Vistrel.Lst_LeftInventory.List(0,1)
print Frm_Vistrel.Caption.Text

	# comment
