start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# Left +2.00, right -2.00, no cylinder, no age.
set Frm_Vistrel.Txt_Sphere_Left 2.00
set Frm_Vistrel.Txt_Sphere_Right -2.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# No over-plus: the left eye refuses a sphere above +2.00.
check Frm_ProgramOptions.Chk_NoOverplus 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# No over-cylinder: a quarter more than the person's (none) is let in,
# -0.50 is not; with "up to -.50" it is.
check Frm_ProgramOptions.Chk_NoOverCylinder 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_UpTo50 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# No over-minus: without an age it doesn't apply.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection.ListCount
# From 35 on, no pair more minus than -2.00 on the right.
set Frm_Vistrel.Txt_Age 40
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
set Frm_Vistrel.Txt_Age 35
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
# Younger than 35: up to half a dioptre more minus.
set Frm_Vistrel.Txt_Age 34
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# The right eye blind: a left-only search (the box searches by itself)
# with no veto for the blind eye. MatchBothValue stays as it was, so the
# rows keep both halves; the right score is replaced by the left one.
check Frm_Vistrel.Chk_BlindRight 1
print Frm_Vistrel.LeftOnlyValue
print Frm_Vistrel.MatchBothValue
print Frm_ProgramOptions.Opt_LeftOnly
print Frm_Vistrel.Lst_LeftSelection
check Frm_Vistrel.Chk_BlindRight 0
print Frm_Vistrel.LeftOnlyValue
print Frm_Vistrel.MatchBothValue
print Frm_Vistrel.Lst_LeftSelection

# The left eye blind: right-only, the left score replaced by the right.
check Frm_Vistrel.Chk_BlindLeft 1
print Frm_Vistrel.RightOnlyValue
print Frm_Vistrel.Lst_LeftSelection
check Frm_Vistrel.Chk_BlindLeft 0
print Frm_Vistrel.Lst_LeftSelection.ListCount
# Left only from the options screen: no eye is blind, so the right eye's
# vetoes still apply; the rows show the blind-eye text in their second half.
select Frm_ProgramOptions.Opt_LeftOnly
print Frm_Vistrel.MatchBothValue
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
select Frm_ProgramOptions.Opt_RightOnly
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
