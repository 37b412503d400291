# Case 4 on the right eye, measured at -1.50 -2.00 x 90: the cylinder alone
# is reduced a quarter at a time (the sphere stays, so the equivalent
# moves) until it is half of the measured one, and the eye ends on the
# earliest step that found most. Sphere and cylinder tolerances of 0.25:
#   step 0 (-2.00): pair 3        step 1 (-1.75): pairs 1, 3
#   step 2 (-1.50): pairs 1, 2    step 3 (-1.25): pairs 1, 2
#   step 4 (-1.00): pair 2
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Max_Sphere_OverageValue 0.25
set Frm_Vistrel.Max_Cylinder_OverageValue 0.25
set Frm_Autorefractor.Txt_AutoSphere(0) -1.00
set Frm_Autorefractor.Txt_AutoCylinder(0) 0.00
set Frm_Autorefractor.Txt_AutoAxis(0) 0
set Frm_Autorefractor.Txt_AutoSphere(1) -1.50
set Frm_Autorefractor.Txt_AutoCylinder(1) -2.00
set Frm_Autorefractor.Txt_AutoAxis(1) 90
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.50
set Frm_Vistrel.Txt_Cylinder_Right -2.00
set Frm_Vistrel.Txt_Axis_Right 90
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.FoundCount

stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.Chk_Case3_Right.Visible
print Frm_Advisor.Chk_Case4_Right.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Right.Visible
print Frm_Advisor.Lbl_Multiple_Right.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible

click Frm_Advisor.Chk_Case4_Right
print Frm_Advisor.Foundstart
print Frm_Vistrel.FoundCount
print Frm_Advisor.Txt_Sphere_Right
print Frm_Advisor.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.Txt_RightCutBackCount
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Advisor.WizardRightDone
print Frm_Vistrel.Lst_LeftSelection

# Unchecked: the measured prescription comes back.
click Frm_Advisor.Chk_Case4_Right
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.FoundCount

# Checked once more and left: the right eye is marked, the left isn't.
click Frm_Advisor.Chk_Case4_Right
click Frm_Advisor.Cmd_Exit
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
