# The guide text as the wizard comes up: what the advice made of the
# person, the age, the tolerance advice from the eye-condition panel (with
# a dominant eye overriding the levels on the wizard), the BiFocal steps.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00

# No age: the age is asked for, the BiFocal box stays hidden.
set Frm_Vistrel.Txt_Age 0
set Frm_Vistrel.GlassesNeeded False
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_GuideMe
print Frm_Advisor.Chk_BiFocal_Remove.Visible
print Frm_Advisor.Lbl_Asterisk.Visible
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor

# Past the chart's first row (38 by default): the BiFocal steps.
set Frm_Vistrel.Txt_Age 50
set Frm_Vistrel.GlassesNeeded False
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_GuideMe
print Frm_Advisor.Chk_BiFocal_Remove.Visible
print Frm_Advisor.Lbl_Asterisk.Visible

# Glasses optional, young and old.
set Frm_Vistrel.Txt_Age 38
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional True
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_GuideMe
print Frm_Advisor.Chk_BiFocal_Remove.Visible
print Frm_Advisor.Lbl_Asterisk.Visible
set Frm_Vistrel.Txt_Age 39
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional True
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_GuideMe
# Both verdicts at once (the advice never gives that): needed first.
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.GlassesNeeded False
set Frm_Vistrel.GlassesOptional True
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_GuideMe

# Levels 5 and 20: the left is the better eye.
set Frm_Vistrel.Txt_Sphere_Left -1.25
set Frm_Vistrel.Txt_Sphere_Right -5.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Frm_Left
print Frm_Advisor.Frm_Right
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Txt_GuideMe
# Left dominant: 00 and 99 on the wizard only, the right eye worst.
check Frm_Vistrel.Chk_DominantLeft 1
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Left_AMP
print Frm_Advisor.Txt_Right_AMP
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Txt_Right_AMP
print Frm_Advisor.Frm_Left
print Frm_Advisor.Frm_Right
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Txt_GuideMe
# Right dominant: the other way round, and "blind Left" with its capital.
check Frm_Vistrel.Chk_DominantRight 1
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Vistrel.Chk_DominantLeft
print Frm_Advisor.Txt_Left_AMP
print Frm_Advisor.Txt_Right_AMP
print Frm_Advisor.Frm_Left
print Frm_Advisor.Frm_Right
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Txt_GuideMe
check Frm_Vistrel.Chk_DominantRight 0

# Levels 8 and 8.4: a difference that rounds to 0 still colours and guides.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -0.10
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Right_AMP
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Txt_GuideMe

# Levels 0 and 19.5: the difference rounds to 20, the eye may be blind;
# 0 and 18.5 round to 18, and it may not.
dblclick Frm_Vistrel.Txt_Sphere_Left
dblclick Frm_Vistrel.Txt_Cylinder_Right
set Frm_Vistrel.Txt_Sphere_Right -4.875
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Right_AMP
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Txt_GuideMe
set Frm_Vistrel.Txt_Sphere_Right -4.625
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Right_AMP
print Frm_Advisor.Txt_GuideMe

# The eyes stand in the main screen's order.
set Frm_Vistrel.FlipLeftFirst False
call Frm_Advisor.Form_Load
print Frm_Advisor.Frm_Left.Left
print Frm_Advisor.Frm_Right.Left
set Frm_Vistrel.FlipLeftFirst True
call Frm_Advisor.Form_Load
print Frm_Advisor.Frm_Left.Left
print Frm_Advisor.Frm_Right.Left
