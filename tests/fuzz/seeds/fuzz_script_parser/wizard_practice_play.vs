# Practice play from inside the wizard: its arrows step the person on the
# main screen, and the wizard comes up afresh on the new person.
start
click Frm_Vistrel.EnableDisablePracticePlay
set Frm_Vistrel.Txt_Play_Person_Nr 1
print Frm_Vistrel.Txt_Sphere_Left
stay Frm_Advisor
click Frm_Vistrel.Cmd_RunAdvisor
print Frm_Advisor.Img_Forward.Visible
print Frm_Advisor.Txt_Play_Person_Nr
print Frm_Advisor.Txt_Sphere_Left
print Frm_Advisor.Txt_Age
print Frm_Advisor.Chk_Case1_Left.Visible
check Frm_Advisor.Chk_Case2_Left 1
print Frm_Vistrel.Txt_Cylinder_Left
# Person 2 has no reading: the wizard shows the empty measurement.
click Frm_Advisor.Img_Forward
print Frm_Vistrel.Txt_Play_Person_Nr
print Frm_Advisor.Txt_Play_Person_Nr
print Frm_Advisor.Txt_Sphere_Left
print Frm_Advisor.Chk_Case2_Left
print Frm_Advisor.Chk_Case2_Left.Visible
# Person 3's latest reading (age 61): the BiFocal box is offered.
click Frm_Advisor.Img_Forward
print Frm_Advisor.Txt_Play_Person_Nr
print Frm_Advisor.Txt_Age
print Frm_Advisor.Txt_Sphere_Left
print Frm_Advisor.Txt_Sphere_Right
print Frm_Advisor.Chk_BiFocal_Remove.Visible
print Frm_Advisor.Showing
# Back to person 1, not below.
click Frm_Advisor.Img_Backwards
click Frm_Advisor.Img_Backwards
click Frm_Advisor.Img_Backwards
print Frm_Advisor.Txt_Play_Person_Nr
print Frm_Advisor.Txt_Sphere_Left
# Leaving compares with the capture screen, where the right axis of 180
# stands as 0: that eye counts as adjusted.
click Frm_Advisor.Cmd_Exit
print Frm_Autorefractor.Txt_AutoAxis(1)
print Frm_Advisor.Txt_Axis_Right
print Frm_Advisor.WizardLeftDone
print Frm_Advisor.WizardRightDone
