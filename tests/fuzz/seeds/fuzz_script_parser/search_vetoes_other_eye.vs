start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# The vetoes seen from the other eye: left -2.00, right +2.00.
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Sphere_Right 2.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_NoOverplus 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_NoOverCylinder 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 1
set Frm_Vistrel.Txt_Age 40
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
set Frm_Vistrel.Txt_Age 34
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
# The left eye blind: its vetoes no longer apply.
check Frm_Vistrel.Chk_BlindLeft 1
print Frm_Vistrel.Lst_LeftSelection
check Frm_Vistrel.Chk_BlindLeft 0

# The bifocal search at 40 (Add 1.00 in both eyes) with no over-plus: an
# Add above the person's is refused in either eye, and so is a right
# sphere above +2.00.
check Frm_ProgramOptions.Chk_NoOverMinus 0
check Frm_ProgramOptions.Chk_NoOverplus 1
set Frm_Vistrel.Txt_Age 40
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.LeftReadingPower
print Frm_Vistrel.RightReadingPower
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
