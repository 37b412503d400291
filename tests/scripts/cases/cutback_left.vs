start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
click Frm_Vistrel.Cmd_Default
print Frm_ProgramOptions.Txt_CutBack
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -1.00
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_Sphere_Right -2.00
set Frm_Vistrel.Txt_Cylinder_Right -1.00
set Frm_Vistrel.Txt_Axis_Right 90
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# Each step takes 0.25 off the cylinder and moves the sphere so that the
# equivalent (-2.50) stays; the search that follows shows the new values
# in the caption.
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_LeftSave
print Frm_Vistrel.Txt_Sphere_LeftSave
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Lbl_Left_Prescription
print Frm_Vistrel.Lst_LeftSelection
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_LeftSave
print Frm_Vistrel.Txt_Sphere_LeftSave
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Lst_LeftSelection

# The reset brings back the prescription as entered, and doesn't search.
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_LeftResetCutBack
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_LeftSave
print Frm_Vistrel.Txt_Sphere_LeftSave
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Lst_LeftSelection.ListCount
# A cylinder of -0.25 is cut to 0.00; the next press changes nothing but
# searches again.
set Frm_Vistrel.Txt_Cylinder_Left -0.25
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_LeftSave
print Frm_Vistrel.Txt_Sphere_LeftSave
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.Txt_Status
# An amount of 0.50 against -0.25: no step, the search runs all the same.
click Frm_Vistrel.Cmd_LeftResetCutBack
set Frm_ProgramOptions.Txt_CutBack 0.50
print Frm_Vistrel.Txt_CutBackValue
set Frm_Vistrel.Txt_Status no search
click Frm_Vistrel.Cmd_LeftCutBackSearch
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftCutBackCount
print Frm_Vistrel.LeftIsCutback
print Frm_Vistrel.Txt_Cylinder_LeftSave
print Frm_Vistrel.Txt_Sphere_LeftSave
print Frm_Vistrel.Txt_Left_AMP
print Frm_Vistrel.Txt_Status
