# Double clicks write blanks of fixed widths, not empty text.
start
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Cylinder_Left -0.75
set Frm_Vistrel.Txt_Axis_Left 180
set Frm_Vistrel.Txt_LeftAdd 1.50
dblclick Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.LeftSphereRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
dblclick Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.LeftCylinderRead
print Frm_Vistrel.LeftAxisRead
print Frm_Vistrel.Txt_Sphere_Equ_Left
dblclick Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Lbl_Left_Prescription

# A double click on the age also drops the bifocal search; the chart's
# Add stays available in ChosenAddText, the Add fields are blanked.
set Frm_Vistrel.Txt_Age 45
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.MatchReadingAlsoValue
dblclick Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Chk_PlusBifocals
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.ChosenAddText
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_ProgramOptions.Chk_MatchReadingAlso
# A single click on the age empties it.
set Frm_Vistrel.Txt_Age 30
click Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Age
