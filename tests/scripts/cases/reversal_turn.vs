# Turning the screen for an operator who faces the person: the eyes'
# columns swap places, buttons move and take new captions, the tab order
# goes right eye first, and the lists are rebuilt when both spheres hold
# something. A second turn puts everything back.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
print Frm_Vistrel.Cmd_Flip
print Frm_Vistrel.Cmd_Flip.ToolTipText
print Frm_Vistrel.FlipLeftFirst
print Frm_Vistrel.Txt_Sphere_Left.Left
print Frm_Vistrel.Txt_Sphere_Right.Left
print Frm_Vistrel.Frm_LeftInventory.Left
print Frm_Vistrel.Frm_RightInventory.Left
print Frm_Autorefractor.Frm_LettEyeAuto(0).Left
print Frm_Autorefractor.Frm_LettEyeAuto(1).Left

# Only the left sphere holds something: no search.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right    
set Frm_Vistrel.Txt_Status untouched
click Frm_Vistrel.Cmd_Flip
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.FlipLeftFirst
print Frm_Vistrel.Cmd_LeftCutBackSearch.Left
print Frm_Vistrel.Cmd_RightCutBackSearch.Left
print Frm_Vistrel.Cmd_LeftResetCutBack.Left
print Frm_Vistrel.Cmd_RightResetCutBack.Left
print Frm_Vistrel.Chk_NOEquivLeft.Left
print Frm_Vistrel.Chk_NOEquivRight.Left
print Frm_Vistrel.Cmd_LeftResetCutBack
print Frm_Vistrel.Cmd_RightResetCutBack
print Frm_Vistrel.Frm_LeftSelection
# The old lensmeter support is gone for good (its box can't be cleared),
# and with it the heading of the eyes' frame after a turn.
print Frm_ProgramOptions.Chk_NOFocometer
print Frm_Vistrel.Frm_LeftRight
print Frm_Vistrel.Txt_Sphere_Left.Left
print Frm_Vistrel.Txt_Sphere_Right.Left
print Frm_Vistrel.Cmd_AddLeftDown.Left
print Frm_Vistrel.Cmd_AddRightDown.Left
print Frm_Vistrel.Lbl_LeftCover.Left
# The level and the prescription line go with their eye as well.
print Frm_Vistrel.Txt_Left_AMP.Left
print Frm_Vistrel.Txt_Right_AMP.Left
print Frm_Vistrel.Lbl_Left_Prescription.Left
print Frm_Vistrel.Lbl_Right_Prescription.Left
print Frm_Vistrel.Frm_LeftInventory.Left
print Frm_Vistrel.Frm_RightInventory.Left
print Frm_Autorefractor.Frm_LettEyeAuto(0).Left
print Frm_Autorefractor.Frm_LettEyeAuto(1).Left
print Frm_Vistrel.Txt_Sphere_Right.TabIndex
print Frm_Vistrel.Txt_Sphere_Left.TabIndex
print Frm_Vistrel.Txt_Sphere_Equ_Right.TabIndex
print Frm_Vistrel.Txt_LeftAdd.TabIndex
print Frm_Vistrel.SaveLeftPosition
# Each field keeps its content.
print Frm_Vistrel.Txt_Sphere_Left

# Back: every place, caption and tab index as at the start, but the
# result list's heading, which a turn back writes with 65 blanks.
click Frm_Vistrel.Cmd_Flip
print Frm_Vistrel.FlipLeftFirst
print Frm_Vistrel.Cmd_LeftCutBackSearch.Left
print Frm_Vistrel.Cmd_LeftResetCutBack
print Frm_Vistrel.Frm_LeftSelection
print Frm_Vistrel.Frm_LeftRight
print Frm_Vistrel.Txt_Sphere_Left.Left
print Frm_Vistrel.Txt_Sphere_Right.Left
print Frm_Vistrel.Txt_Left_AMP.Left
print Frm_Vistrel.Frm_LeftInventory.Left
print Frm_Vistrel.Txt_Sphere_Left.TabIndex
print Frm_Vistrel.Txt_Sphere_Right.TabIndex

# Both spheres (blanks in front count as nothing, a value as something):
# the turn searches, and the rows of the list follow the new order.
set Frm_Vistrel.Txt_Sphere_Right -3.00
click Frm_Vistrel.Cmd_Flip
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Lst_LeftSelection
click Frm_Vistrel.Cmd_Flip
print Frm_Vistrel.Lst_LeftSelection
