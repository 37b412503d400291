# Spin buttons: decimal steps through "##.00", whole steps through the
# plain number text with its leading blank.
start
click Frm_Vistrel.Cmd_SphereLeftUp
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftSphereRead
click Frm_Vistrel.Cmd_SphereLeftDown
print Frm_Vistrel.Txt_Sphere_Left
click Frm_Vistrel.Cmd_SphereLeftDown
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftSphereRead
click Frm_Vistrel.Cmd_CylinderLeftDown
click Frm_Vistrel.Cmd_CylinderLeftDown
print Frm_Vistrel.Txt_Cylinder_Left
set Frm_Vistrel.Txt_Axis_Left 90
click Frm_Vistrel.Cmd_CylinderLeftUp
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.Txt_Sphere_Equ_Left
# Stepped up past zero, the cylinder goes together with its axis.
click Frm_Vistrel.Cmd_CylinderLeftUp
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftAxisRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.Lbl_Left_Prescription
click Frm_Vistrel.Cmd_CylinderRightUp
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.RightCylinderRead
click Frm_Vistrel.Cmd_SphereRightDown
print Frm_Vistrel.Txt_Sphere_Right
# The Add has no floor at zero but nothing at all.
click Frm_Vistrel.Cmd_AddLeftUp
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_LeftReadingPower
click Frm_Vistrel.Cmd_AddLeftUp
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_LeftReadingPower
click Frm_Vistrel.Cmd_AddLeftDown
click Frm_Vistrel.Cmd_AddLeftDown
print Frm_Vistrel.Txt_LeftAdd
click Frm_Vistrel.Cmd_AddLeftDown
print Frm_Vistrel.Txt_LeftAdd

# Age steps.
set Frm_Vistrel.Txt_Age 1
click Frm_Vistrel.Cmd_Age1Down
print Frm_Vistrel.Txt_Age
click Frm_Vistrel.Cmd_Age10Up
print Frm_Vistrel.Txt_Age
click Frm_Vistrel.Cmd_Age1Up
print Frm_Vistrel.Txt_Age
click Frm_Vistrel.Cmd_Age10Down
print Frm_Vistrel.Txt_Age
set Frm_Vistrel.Txt_Age 95
click Frm_Vistrel.Cmd_Age10Up
print Frm_Vistrel.Txt_Age
click Frm_Vistrel.Cmd_Age10Down
print Frm_Vistrel.Txt_Age

# Person number steps; below 1 the field is blanked.
print Frm_Vistrel.Txt_PersonNumber
click Frm_Vistrel.Cmd_Patient1Down
print Frm_Vistrel.Txt_PersonNumber
click Frm_Vistrel.Cmd_Patient100Up
print Frm_Vistrel.Txt_PersonNumber
click Frm_Vistrel.Cmd_Patient10000Up
print Frm_Vistrel.Txt_PersonNumber
click Frm_Vistrel.Cmd_Patient1000Down
print Frm_Vistrel.Txt_PersonNumber
click Frm_Vistrel.Cmd_Patient10Down
print Frm_Vistrel.Txt_PersonNumber
dblclick Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.Txt_PersonNumber
set Frm_Vistrel.Txt_PersonNumber -5
print Frm_Vistrel.Txt_PersonNumber

# Confidence: a typed value goes to the capture screen, whose field holds
# 1 to 10 and hands its value back; the buttons hold 1 to 10 as well.
set Frm_Vistrel.Txt_LeftConfidenceValue 25
print Frm_Autorefractor.Txt_LeftConfidenceValue
print Frm_Vistrel.Txt_LeftConfidenceValue
click Frm_Vistrel.Cmd_LeftConfidenceUP
print Frm_Vistrel.Txt_LeftConfidenceValue
print Frm_Autorefractor.Txt_LeftConfidenceValue
click Frm_Vistrel.Cmd_LeftConfidenceDOWN
print Frm_Vistrel.Txt_LeftConfidenceValue
set Frm_Vistrel.Txt_RightConfidenceValue 0
click Frm_Vistrel.Cmd_RightConfidenceDOWN
print Frm_Vistrel.Txt_RightConfidenceValue
click Frm_Vistrel.Cmd_RightConfidenceUP
print Frm_Vistrel.Txt_RightConfidenceValue
print Frm_Autorefractor.Txt_RightConfidenceValue
