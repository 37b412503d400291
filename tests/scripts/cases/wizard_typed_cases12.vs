# Cases 1 and 2 and the spin buttons on a typed prescription (left -2.00
# -1.00 x 90, right -2.00), with a cylinder tolerance of 0.50: pair 1 has
# no cylinder and meets the left eye only through its equivalent (-2.50);
# pair 2 is the prescription itself.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.Max_Cylinder_OverageValue 0.50
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
check Frm_Vistrel.Chk_AutoBypass 1
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Chk_NOEquivLeft

stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.SaveLeftSphere
print Frm_Advisor.SaveLeftCylinder
print Frm_Advisor.SaveLeftAxis
print Frm_Advisor.SaveRightSphere
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible

# Case 1 cleared: no match by the equivalent on the left, pair 1 drops.
check Frm_Advisor.Chk_Case1_Left 1
print Frm_Vistrel.Chk_NOEquivLeft
check Frm_Advisor.Chk_Case1_Left 0
print Frm_Vistrel.Chk_NOEquivLeft
print Frm_Vistrel.Chk_NOEquivRight
click Frm_Advisor.Cmd_Search
print Frm_Vistrel.FoundCount
print Frm_Advisor.Txt_Found
check Frm_Advisor.Chk_Case1_Left 1
click Frm_Advisor.Cmd_Search
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Txt_Cylinder_Left

# Case 2: the cylinder and axis go, the search is spherical, pair 2 drops.
check Frm_Advisor.Chk_Case2_Left 1
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Advisor.Txt_Cylinder_Left
print Frm_Advisor.Txt_Axis_Left
print Frm_Vistrel.FoundCount
print Frm_Advisor.WizardLeftDone
# Cleared: back to the typed prescription, not to the empty reading.
check Frm_Advisor.Chk_Case2_Left 0
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.FoundCount

# The spin buttons step the main screen and the copy follows.
click Frm_Advisor.Cmd_SphereLeftUp
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Advisor.Txt_Sphere_Left
click Frm_Advisor.Cmd_CylinderLeftDown
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Advisor.Txt_Cylinder_Left
click Frm_Advisor.Cmd_RestoreLeft
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.FoundCount

# The right Add buttons leave the wizard's copy behind; the left ones don't.
click Frm_Advisor.Cmd_AddRightUp
print Frm_Vistrel.Txt_RightAdd
print Frm_Advisor.Txt_RightAdd
click Frm_Advisor.Cmd_AddLeftUp
print Frm_Vistrel.Txt_LeftAdd
print Frm_Advisor.Txt_LeftAdd

# Typing in the copy writes the main screen and searches.
set Frm_Advisor.Txt_Sphere_Right -2.50
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.FoundCount

# Left as typed: the typed prescription differs from the (empty) reading,
# so both eyes stay marked as adjusted.
click Frm_Advisor.Cmd_Exit
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
# The reset clears the marks, but its reselection of *1 searches and
# refreshes the copies, and the emptied copies mark both eyes again.
click Frm_Vistrel.Cmd_CalculateDataClear
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
