# Case 3 on the left eye, measured by the autorefractor at -3.00 -2.00 x 90:
# the cylinder is cut back a quarter at a time with the equivalent kept,
# until it is half of the measured one (four steps here), and the eye ends
# on the earliest step that found most. Sphere and cylinder tolerances of
# 0.25 so that each step finds different pairs:
#   step 0 (-3.00 -2.00): pair 3          step 1 (-3.13 -1.75): pairs 1, 3
#   step 2 (-3.25 -1.50): pairs 1, 2      step 3 (-3.38 -1.25): pairs 1, 2
#   step 4 (-3.50 -1.00): pairs 2, 4
# Past the limit, step 5 (-3.63 -0.75) would find pairs 4, 5 and 6.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Max_Sphere_OverageValue 0.25
set Frm_Vistrel.Max_Cylinder_OverageValue 0.25
set Frm_Autorefractor.Txt_AutoSphere(0) -3.00
set Frm_Autorefractor.Txt_AutoCylinder(0) -2.00
set Frm_Autorefractor.Txt_AutoAxis(0) 90
set Frm_Autorefractor.Txt_AutoSphere(1) -1.00
set Frm_Autorefractor.Txt_AutoCylinder(1) 0.00
set Frm_Autorefractor.Txt_AutoAxis(1) 0
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -3.00
set Frm_Vistrel.Txt_Cylinder_Left -2.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -1.00
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.FoundCount

# One pair found: the wizard's button calls, changing colour every third
# tick of the 200 ms timer, until the wizard is opened.
print Frm_Vistrel.WizardFlash
tick Frm_Vistrel.Tmr_InventoryMovement 2
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
tick Frm_Vistrel.Tmr_InventoryMovement
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
tick Frm_Vistrel.Tmr_InventoryMovement 3
print Frm_Vistrel.Cmd_RunAdvisor.BackColor

stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Vistrel.WizardFlash
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
print Frm_Advisor.Showing
print Frm_Advisor.Width
print Frm_Advisor.HelpWanted
print Frm_Advisor.Cmd_Help
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Txt_Found

# The help text beside the wizard, and away again.
click Frm_Advisor.Cmd_Help
print Frm_Advisor.Width
print Frm_Advisor.Cmd_Help
print Frm_Advisor.HelpWanted
click Frm_Advisor.Cmd_Help
print Frm_Advisor.Width
print Frm_Advisor.Cmd_Help

# Steps 1 to 3 find two pairs each: the strict comparison keeps step 1.
click Frm_Advisor.Chk_Case3_Left
print Frm_Advisor.Foundstart
print Frm_Vistrel.FoundCount
print Frm_Advisor.Txt_Sphere_Left
print Frm_Advisor.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
print Frm_Vistrel.Lst_LeftSelection

# Unchecked: back to the autorefractor's reading and its single pair.
click Frm_Advisor.Chk_Case3_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.FoundCount
print Frm_Advisor.Txt_Cylinder_Left

# Leaving on the measured prescription: the eye counts as not adjusted.
click Frm_Advisor.Cmd_Exit
print Frm_Advisor.Showing
print Frm_Advisor.Visible
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
print Frm_Advisor.Frm_Left.BackColor
print Frm_Advisor.Frm_Right.BackColor

# Again, and left on the cut-back: the mark stays for the slip.
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
click Frm_Advisor.Chk_Case3_Left
click Frm_Advisor.Cmd_Exit
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
