# Record 1 picks the preset in force from the start (folded to upper case).
start
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
print Frm_Vistrel.Max_CylinderValue
print Frm_Vistrel.Txt_CutBackValue
print Frm_ProgramOptions.Txt_Max_Sphere_Overage
print Frm_ProgramOptions.Txt_Max_Sphere_Overage.Locked
print Frm_Vistrel.Cmd_2DefTimes2.BackColor
print Frm_ProgramOptions.Cmd_DefaultsTimes2.BackColor
print Frm_Vistrel.Cmd_Default.BackColor
print Frm_Vistrel.Max_Sphere_OverageValueDefault
