# The tolerance multiplier of each eye widens that eye only, and the main
# screen's reset takes both back to *1. Both eyes -2.00, default sphere
# tolerance 1.00; the pairs stand off in one eye by 1.50 (pairs 2 left and
# 3 right), 2.25 (pair 4, left) and 3.75 (pair 5, right).
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Vistrel.FoundCount
print Frm_Advisor.Opt_Left1
print Frm_Advisor.Opt_Right1
print Frm_Advisor.Lbl_LeftTolerance.BackColor
print Frm_Advisor.Opt_Left4.ToolTipText
print Frm_Advisor.Opt_Right15.ToolTipText

# *2 on the left: pair 2 comes in, pair 3 doesn't.
click Frm_Advisor.Opt_Left2
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.RightToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Advisor.Txt_Found
print Frm_Advisor.Lbl_LeftTolerance.BackColor
print Frm_Advisor.Opt_Left1.BackColor
print Frm_Advisor.Opt_Left4.BackColor
print Frm_Advisor.Lbl_RightTolerance.BackColor
print Frm_Advisor.Opt_Right2.BackColor

# *4 on the right: pairs 3 and 5 as well.
click Frm_Advisor.Opt_Right4
print Frm_Vistrel.RightToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Advisor.Lbl_RightTolerance.BackColor
print Frm_Advisor.Opt_Right1.BackColor

# *2.5 on the left reaches pair 4; then *1.5 and *3 on the left.
click Frm_Advisor.Opt_Left25
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Advisor.Opt_Left3.BackColor
click Frm_Advisor.Opt_Left15
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Advisor.Opt_Left15.BackColor
click Frm_Advisor.Opt_Left3
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Advisor.Opt_Left3.BackColor

# Back to *1 on the left: only the right eye stays wide.
click Frm_Advisor.Opt_Left1
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Lst_LeftSelection
print Frm_Advisor.Lbl_LeftTolerance.BackColor
click Frm_Advisor.Cmd_Exit

# What the wizard set stays on the main screen after it is left ...
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.FoundCount
# ... until the person is cleared: both eyes back to *1, repainted.
click Frm_Vistrel.Cmd_CalculateDataClear
print Frm_Vistrel.LeftToleranceMultiplier
print Frm_Vistrel.RightToleranceMultiplier
print Frm_Advisor.Opt_Right1
print Frm_Advisor.Opt_Right4
print Frm_Advisor.Lbl_RightTolerance.BackColor
print Frm_Advisor.Opt_Right4.BackColor
