start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
click Frm_Vistrel.Cmd_Default
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -1.00
set Frm_Vistrel.Txt_Cylinder_Right -0.50
set Frm_Vistrel.Txt_Axis_Right 180
# Both eyes: the left step's search is skipped, the right step's runs on
# both changes.
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_BothCutBackSearch
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.SkipSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.RightCylinderRead
print Frm_Vistrel.RightSphereRead
print Frm_Vistrel.Txt_RightCutBackCount
print Frm_Vistrel.RightIsCutback

# The right step searches even while SkipSearch is up, and leaves it up;
# the left step doesn't search then, and clears it.
set Frm_Vistrel.SkipSearch True
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_RightCutBackSearch
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.SkipSearch
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.RightCylinderRead
print Frm_Vistrel.RightSphereRead
print Frm_Vistrel.Txt_RightCutBackCount
print Frm_Vistrel.RightIsCutback
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.SkipSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback

# Both resets: the entered prescription again, no search.
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_BothReset
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.RightCylinderRead
print Frm_Vistrel.RightSphereRead
print Frm_Vistrel.Txt_RightCutBackCount
print Frm_Vistrel.RightIsCutback
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Right
click Frm_Vistrel.Cmd_LeftResetCutBack
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
