# With "Refresh screen upon Add/Remove" on, a removal refreshes the person
# list and fills the stock lists anew; a return refreshes the person list
# only. No answer starts a search: the result list keeps the pair.
start
set Frm_Vistrel.Txt_PersonNumber 31
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftSelection 0
print Frm_Vistrel.Inv_PersonNumber(1)
print Frm_Vistrel.Lst_LeftSelection.ListCount
print Frm_Vistrel.Lst_PersonsList
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Lst_RightInventory.ListCount
print Frm_Vistrel.Txt_Used
print Frm_Vistrel.Txt_Status
answer Frm_RemoveRejectInventory.Cmd_ReturnInventory
click Frm_Vistrel.Lst_PersonsList 0
print Frm_Vistrel.Lst_PersonsList.ListCount
print Frm_Vistrel.Lst_LeftInventory.ListCount
