# Spherical equivalents through "0.00", net reading powers through
# "##.00" (blank when 0), and the prescription captions.
start
set Frm_Vistrel.Txt_Sphere_Left -1.25
print Frm_Vistrel.Lbl_Left_Prescription
print Frm_Vistrel.Lbl_Right_Prescription
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.Txt_LeftReadingPower
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_LeftAdd 2.00
print Frm_Vistrel.Lbl_Left_Prescription
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.LeftSphereEqu
print Frm_Vistrel.Txt_LeftReadingPower
print Frm_Vistrel.LeftReadingPower
print Frm_Vistrel.LeftAxisRead

# The stored equivalent keeps its .125 ending; the shown one is rounded
# half away from zero, and a change of the Add reads the shown one.
set Frm_Vistrel.Txt_Sphere_Right -0.50
set Frm_Vistrel.Txt_Cylinder_Right -0.25
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.RightSphereEqu
print Frm_Vistrel.Txt_RightReadingPower
set Frm_Vistrel.Txt_RightAdd 1.75
print Frm_Vistrel.Txt_RightReadingPower
# A sphere change adds the Add to the stored equivalent.
set Frm_Vistrel.Txt_Sphere_Right -0.75
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.Txt_RightReadingPower
set Frm_Vistrel.Txt_Sphere_Right 0.25
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.Txt_RightReadingPower
set Frm_Vistrel.Txt_Cylinder_Right -0.50
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.Txt_RightReadingPower
dblclick Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Txt_RightReadingPower
print Frm_Vistrel.RightReadingPower

# The stored axis rounds a half to even, the caption half away from zero.
set Frm_Vistrel.Txt_Axis_Right 92.5
print Frm_Vistrel.RightAxisRead
print Frm_Vistrel.Lbl_Right_Prescription
