# What is typed under the Default preset becomes the base of the others.
start
click Frm_Vistrel.Cmd_Default
set Frm_ProgramOptions.Txt_Max_Sphere_Overage 2
set Frm_ProgramOptions.Txt_Axis_Deviation 20
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Max_Sphere_OverageValueDefault
print Frm_Vistrel.Axis_DeviationValueDefault
click Frm_Vistrel.Cmd_2DefTimes2
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
# A locked field ignores typing.
set Frm_ProgramOptions.Txt_Max_Sphere_Overage 7
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Max_Sphere_OverageValueDefault
click Frm_Vistrel.Cmd_Default
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_ProgramOptions.Txt_Max_Sphere_Overage
print Frm_Vistrel.Axis_DeviationValue
# Text that isn't a number empties the field and the value.
set Frm_ProgramOptions.Txt_Max_Cylinder_Overage abc
print Frm_ProgramOptions.Txt_Max_Cylinder_Overage
print Frm_Vistrel.Max_Cylinder_OverageValue
print Frm_Vistrel.Max_Cylinder_OverageValueDefault
click Frm_Vistrel.CMD_2DefDev2
print Frm_Vistrel.Max_Cylinder_OverageValue
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
# The quartered maximum cylinder is held at 0.25 whatever the base.
click Frm_Vistrel.Cmd_Default
set Frm_ProgramOptions.Txt_Max_Cylinder .75
click Frm_Vistrel.CMD_2DefDev4
print Frm_Vistrel.Max_CylinderValue
click Frm_Vistrel.CMD_2DefDev2
print Frm_Vistrel.Max_CylinderValue
click Frm_Vistrel.Cmd_Default
set Frm_ProgramOptions.Txt_CutBack 0.50
print Frm_Vistrel.Txt_CutBackValue
print Frm_Vistrel.Txt_CutBackValueDefault
