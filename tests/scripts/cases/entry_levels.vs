# Correction levels: (|cylinder| + |x|) / 0.25, where only a plus
# sphere is reduced by the age adjustment, never below 0.
start
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left 1.50
set Frm_Vistrel.Txt_Cylinder_Left -0.50
print Frm_Vistrel.Txt_Left_AMP
print Frm_Advisor.Txt_Left_AMP
set Frm_Vistrel.Txt_Sphere_Right 1.00
print Frm_Vistrel.Txt_Right_AMP
set Frm_Vistrel.Txt_Age 12
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Sphere_Right -2.00
print Frm_Vistrel.Txt_Right_AMP
set Frm_Vistrel.Txt_Cylinder_Right -1.00
print Frm_Vistrel.Txt_Right_AMP
print Frm_Advisor.Txt_Right_AMP

# The age adjustment, row by row, on a left sphere of +3.25 alone:
# below 3 it is 3.000, then 2.875 up to 5, 2.75 up to 10 and so on.
dblclick Frm_Vistrel.Txt_Cylinder_Left
set Frm_Vistrel.Txt_Sphere_Left 3.25
set Frm_Vistrel.Txt_Age 2.9
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 3
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 5
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 6
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 10
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 11
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 15
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 16
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 20
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 21
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 25
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 26
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 30
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 31
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 35
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 36
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 40
print Frm_Vistrel.Txt_Left_AMP
# An age under 1 is blanked, over 99 held at 99; a blank age is 0.
set Frm_Vistrel.Txt_Age 0.5
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 100
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Left_AMP
click Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Left_AMP

# Sphere 0 with no age: the cylinder alone. +1.00 with no age: 0 from the
# sphere; at 40 the whole +1.00 counts.
set Frm_Vistrel.Txt_Sphere_Left 0
set Frm_Vistrel.Txt_Cylinder_Left -0.75
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Sphere_Left 1.00
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Age 40
print Frm_Vistrel.Txt_Left_AMP
# Off the quarter grid the level is a fraction.
set Frm_Vistrel.Txt_Sphere_Left -1.13
print Frm_Vistrel.Txt_Left_AMP
set Frm_Vistrel.Txt_Cylinder_Left -0.3
print Frm_Vistrel.Txt_Left_AMP
print Frm_Advisor.Txt_Left_AMP
