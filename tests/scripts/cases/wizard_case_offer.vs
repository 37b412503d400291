# Which of the cases 1 to 4 the wizard offers an eye, and the guide text
# that comes with them for the poorer eye only.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Axis_Left 90

# The right eye stays plano (level 0), so the left one is the poorer.
# Cylinder -1.25, sphere -2.00: case 1 only.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.25
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Left_AMP
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Lbl_Switch_SE_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Lbl_Clr_Cyl_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Left.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Chk_Case1_Right.Visible
print Frm_Advisor.Chk_Case2_Right.Visible
print Frm_Advisor.Txt_GuideMe

# Cylinder -1.00: cases 1 and 2.
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Lbl_Switch_SE_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Lbl_Clr_Cyl_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Left.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Txt_GuideMe

# Cylinder -2.00 with sphere -2.00: case 3 only, with the cut-back labels.
set Frm_Vistrel.Txt_Cylinder_Left -2.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Lbl_Switch_SE_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Lbl_Clr_Cyl_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Left.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Txt_GuideMe

# Cylinder -2.00 with sphere -1.75: case 4 only ("for" in the left text).
set Frm_Vistrel.Txt_Sphere_Left -1.75
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Left.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Txt_GuideMe

# Cylinder -1.75 exactly: case 1 only.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.75
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Txt_GuideMe

# -1.76 and -1.99: no case at all, and no labels.
set Frm_Vistrel.Txt_Cylinder_Left -1.76
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Lbl_Switch_SE_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Left.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Txt_GuideMe
set Frm_Vistrel.Txt_Cylinder_Left -1.99
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case4_Left.Visible
print Frm_Advisor.Txt_GuideMe

# A small cylinder whose equivalent is 0.25 or less: case 2 without case 1.
set Frm_Vistrel.Txt_Sphere_Left 0.25
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Sphere_Equ_Left
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Txt_GuideMe
set Frm_Vistrel.Txt_Sphere_Left 0.75
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Sphere_Equ_Left
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Txt_GuideMe
set Frm_Vistrel.Txt_Cylinder_Left -0.75
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_Sphere_Equ_Left
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible

# Now the right eye is the poorer one, the left plano.
dblclick Frm_Vistrel.Txt_Sphere_Left
dblclick Frm_Vistrel.Txt_Cylinder_Left
set Frm_Vistrel.Txt_Axis_Right 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -2.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case1_Right.Visible
print Frm_Advisor.Lbl_Switch_SE_Right.Visible
print Frm_Advisor.Chk_Case2_Right.Visible
print Frm_Advisor.Lbl_Clr_Cyl_Right.Visible
print Frm_Advisor.Chk_Case3_Right.Visible
print Frm_Advisor.Chk_Case4_Right.Visible
print Frm_Advisor.Lbl_Half_Cylinder_Right.Visible
print Frm_Advisor.Lbl_Multiple_Right.Visible
print Frm_Advisor.Lbl_Multiple_Left.Visible
print Frm_Advisor.Txt_GuideMe
set Frm_Vistrel.Txt_Sphere_Right -1.75
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Chk_Case3_Right.Visible
print Frm_Advisor.Chk_Case4_Right.Visible
print Frm_Advisor.Txt_GuideMe

# Both eyes offer cases; only the poorer (right) eye's are in the guide.
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Chk_Case1_Left.Visible
print Frm_Advisor.Chk_Case2_Left.Visible
print Frm_Advisor.Chk_Case3_Right.Visible
print Frm_Advisor.Txt_GuideMe

# Equal levels: both green, the cases shown, no eye's text in the guide.
set Frm_Vistrel.Txt_Cylinder_Left -2.00
set Frm_Vistrel.GlassesNeeded True
set Frm_Vistrel.GlassesOptional False
call Frm_Advisor.Form_Activate
print Frm_Advisor.Txt_LeftWellness.BackColor
print Frm_Advisor.Txt_RightWellness.BackColor
print Frm_Advisor.Chk_Case3_Left.Visible
print Frm_Advisor.Chk_Case3_Right.Visible
print Frm_Advisor.Txt_GuideMe
