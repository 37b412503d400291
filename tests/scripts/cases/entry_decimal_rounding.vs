# The patterns round half away from zero on the decimal value: 1.005 is
# 1.01 and 2.675 is 2.68, although neither is stored exactly in binary.
start
set Frm_Vistrel.Txt_Sphere_Left 1.005
print Frm_Vistrel.Txt_Sphere_Equ_Left
print Frm_Vistrel.Txt_LeftReadingPower
click Frm_Vistrel.Cmd_SphereLeftUp
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Lbl_Left_Prescription
set Frm_Vistrel.Txt_Sphere_Right 2.675
print Frm_Vistrel.Txt_Sphere_Equ_Right
set Frm_Vistrel.Txt_Cylinder_Right -0.01
print Frm_Vistrel.Txt_Sphere_Equ_Right
print Frm_Vistrel.Lbl_Right_Prescription
