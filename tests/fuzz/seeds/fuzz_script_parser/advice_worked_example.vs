# The advice after a search: left -2.00 -0.50, right -2.25 -0.75, age 30,
# no Add, one pair found. Levels 10 and 12: glasses needed, few matches
# call for the wizard, and its button flashes.
start
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.25
set Frm_Vistrel.Txt_Cylinder_Right -0.75
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Txt_Right_AMP
print Frm_Vistrel.Lbl_Recommendation
print Frm_Vistrel.Lbl_Recommendation.Visible
print Frm_Vistrel.AdviceLines(1)
print Frm_Vistrel.AdviceLines(2)
print Frm_Vistrel.AdviceLines(3)
print Frm_Vistrel.AdviceLines(4)
print Frm_Vistrel.AdviceLines(5)
print Frm_Vistrel.AdviceLines(6)
print Frm_Vistrel.GlassesNeeded
print Frm_Vistrel.GlassesOptional
print Frm_Vistrel.WizardFlash
print Frm_Vistrel.WizardFlashCounter
print Frm_Vistrel.Cmd_RunAdvisor.BackColor
