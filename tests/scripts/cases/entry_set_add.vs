# The Add by age from the bifocal chart (default chart).
start
click Frm_Vistrel.Txt_Age
set Frm_Vistrel.Txt_Sphere_Left -3.25
set Frm_Vistrel.Txt_Sphere_Right 1.50
set Frm_Vistrel.Txt_Cylinder_Right -0.50
print Frm_Vistrel.Txt_Sphere_Equ_Right
# No age: the first row (0 to 37) gives Add 0.00.
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.Txt_RightReadingPower
print Frm_Advisor.Txt_LeftAdd
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Vistrel.Opt_LensSingle
print Frm_Vistrel.ChosenAddText
print Frm_Vistrel.Lbl_Left_Prescription
# Age 50: the row 48 to 55, Add 2.00, and the bifocal search comes on.
set Frm_Vistrel.Txt_Age 50
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.Txt_RightReadingPower
print Frm_Advisor.Txt_LeftAdd
print Frm_Advisor.Txt_RightAdd
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_ProgramOptions.Chk_MatchReadingAlso
print Frm_Vistrel.ChosenAddText
print Frm_Vistrel.Lbl_Left_Prescription
# A fractional age between two rows falls in none: nothing changes.
set Frm_Vistrel.Txt_Age 37.5
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Chk_PlusBifocals
# The chart can be edited.
set Frm_ProgramOptions.Txt_Add(3) 2.25
set Frm_Vistrel.Txt_Age 50
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.Txt_RightReadingPower
# Back to no age with the bifocal search on: Add 0.00 turns the box
# off, and its handler blanks both Add fields.
click Frm_Vistrel.Txt_Age
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.Txt_RightReadingPower
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_Vistrel.ChosenAddText
