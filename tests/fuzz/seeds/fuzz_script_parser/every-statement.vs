# Every kind of statement once.
start
start "-x\t\"y\"\x41"
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Comment "a, b\r\n"
set Frm_Vistrel.Inv_Comment(3) plain text
check Frm_ProgramOptions.Chk_NoOverplus 1
select Frm_Vistrel.Opt_DoNotCare
select Frm_ProgramOptions.Opt_Com(3)
click Frm_Vistrel.Cmd_Default
click Frm_Vistrel.Lst_LeftInventory 2
dblclick Frm_LensFrames.MSF_LensInventory(0) 3 4
call Frm_Vistrel.Search_Click
answer Frm_Vistrel.Cmd_Default
stay Frm_Advisor
serial "R-1.25-0.50 90\r"
serial plain
tick Frm_Vistrel.Tmr_SaveInventory 3
tick Frm_Vistrel.Tmr_RefreshPersonList
print Frm_Vistrel.Lst_LeftInventory
print Frm_Vistrel.Lst_LeftInventory.List(0)
print Frm_Vistrel.Lst_LeftInventory.ItemData( 1 )
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_LensFrames.MSF_LensInventory(1).TextMatrix(2,3)
print Frm_LensFrames.MSF_LensInventory(2).CellBackColor(0,0)
print Frm_ProgramOptions.Cmb_ChoosePrinter.List(0)
print Frm_Vistrel.Caption
print Frm_Vistrel.Inv_Number(1)
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Txt_Sphere_Left.Text
print Frm_ProgramOptions.Opt_Com(0).Value
