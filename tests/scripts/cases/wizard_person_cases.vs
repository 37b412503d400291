# The tools for the person: the BiFocal requirement, cases 5 and 6 (the
# doubled and the maximum presets), the Varn rule change and the blind
# boxes. None of them changes the prescription or marks an eye.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Txt_Age 50
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.Chk_BiFocal_Remove
print Frm_Advisor.Chk_BiFocal_Remove.Visible
print Frm_Advisor.Lbl_Asterisk.Visible
print Frm_Advisor.Txt_LeftAdd
print Frm_Advisor.Txt_RightAdd

# BiFocal requirement removed: no Add is asked for, readers instead.
check Frm_Advisor.Chk_BiFocal_Remove 1
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Advisor.Txt_LeftAdd
print Frm_Advisor.Txt_RightAdd
print Frm_Advisor.ChangeALSO
# Put back: the Add from the chart (2.00 from 48 to 55) and a search.
check Frm_Advisor.Chk_BiFocal_Remove 0
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Advisor.Txt_Found
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone

# Case 5 doubles the tolerances, case 6 opens them to the maximum, and
# clearing case 6 goes back to case 5's; clearing case 5 to the defaults.
check Frm_Advisor.Chk_Case5_Still_no_match 1
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
check Frm_Advisor.Chk_Case6_Desperate 1
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
check Frm_Advisor.Chk_Case6_Desperate 0
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
check Frm_Advisor.Chk_Case5_Still_no_match 0
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Axis_DeviationValue
# Case 5 checked while case 6 holds takes the doubled preset, and clearing
# it then changes nothing; clearing case 6 alone gives the defaults.
check Frm_Advisor.Chk_Case6_Desperate 1
check Frm_Advisor.Chk_Case5_Still_no_match 1
check Frm_Advisor.Chk_Case5_Still_no_match 0
print Frm_Vistrel.Max_Sphere_OverageValue
check Frm_Advisor.Chk_Case6_Desperate 0
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Advisor.Txt_Found

# The Varn rule change and the options dialog's box follow each other.
check Frm_ProgramOptions.Chk_UpTo50 0
print Frm_Advisor.Chk_VarnOverCylinder50
check Frm_Advisor.Chk_VarnOverCylinder50 1
print Frm_ProgramOptions.Chk_UpTo50
print Frm_Advisor.VarnCheckRunning
check Frm_ProgramOptions.Chk_UpTo50 0
print Frm_Advisor.Chk_VarnOverCylinder50

# A blind eye on the wizard is a blind eye on the main screen.
check Frm_Advisor.Chk_BlindLeft 1
print Frm_Vistrel.Chk_BlindLeft
print Frm_Vistrel.RightOnlyValue
check Frm_Advisor.Chk_BlindLeft 0
print Frm_Vistrel.Chk_BlindLeft
click Frm_Advisor.Cmd_Exit
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone

# Opening the wizard again clears the cases, the BiFocal box and the blind
# boxes, and copies the main screen's blind eye.
check Frm_Vistrel.Chk_BlindRight 1
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.Chk_BlindRight
print Frm_Advisor.Chk_BlindLeft
check Frm_Advisor.Chk_Case5_Still_no_match 1
check Frm_Advisor.Chk_BiFocal_Remove 1
click Frm_Advisor.Cmd_Exit
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.Chk_Case5_Still_no_match
print Frm_Advisor.Chk_BiFocal_Remove
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Chk_PlusBifocals
click Frm_Advisor.Cmd_Exit
