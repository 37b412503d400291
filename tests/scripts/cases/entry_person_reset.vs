start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Txt_Age 45
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
check Frm_Vistrel.Chk_DominantLeft 1
check Frm_Vistrel.Chk_OverPlus 0
check Frm_Vistrel.Chk_Overminus 0
select Frm_Vistrel.Opt_Female
select Frm_Vistrel.Opt_LensSingle
set Frm_Vistrel.LeftToleranceMultiplier 2
set Frm_Autorefractor.Txt_AutoSphere(0) -2.00
click Frm_Vistrel.Cmd_2DefTimes2
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Lst_LeftSelection.ListCount
# The reset between persons.
call Frm_Vistrel.Cmd_CalculateDataClear_Click
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.LeftAxisRead
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.RightCylinderRead
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Lbl_Age.BackColor
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Vistrel.Chk_DominantLeft
print Frm_Vistrel.Chk_NOEquiv
print Frm_Vistrel.NOSphericalEquivalent
print Frm_Vistrel.NOSphericalEquivalentLeft
print Frm_Vistrel.NOSphericalEquivalentRight
print Frm_ProgramOptions.Chk_NOSpherical_Equivalent
print Frm_Vistrel.Chk_OverPlus
print Frm_ProgramOptions.Chk_NoOverplus
print Frm_Vistrel.Chk_Overminus
print Frm_ProgramOptions.Chk_NoOverMinus
print Frm_Vistrel.Opt_DoNotCare
print Frm_Vistrel.Opt_LensDoNotCare
print Frm_Vistrel.Lst_LeftSelection.ListCount
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_ProgramOptions.Txt_Max_Sphere_Overage
print Frm_ProgramOptions.Txt_Max_Sphere_Overage.Locked
print Frm_Vistrel.Cmd_Default.BackColor
print Frm_Vistrel.Cmd_2DefTimes2.BackColor
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.ChosenAddText
print Frm_Vistrel.SkipSearch
print Frm_Autorefractor.Txt_AutoSphere(0)
