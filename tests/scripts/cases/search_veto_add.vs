start
# No Varn vetoes, any gender, any lens: only what this case is about counts.
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
# A bifocal search (Add 1.00 at 40), then both Add fields emptied.
set Frm_Vistrel.Txt_Age 40
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.00
check Frm_Vistrel.Chk_PlusBifocals 1
print Frm_Vistrel.Txt_LeftAdd
dblclick Frm_Vistrel.Txt_LeftAdd
dblclick Frm_Vistrel.Txt_RightAdd
print Frm_Vistrel.Chk_PlusBifocals
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection

# No over-plus in the Add: an empty right Add refuses every pair with a
# right Add above 0; an empty left Add refuses none.
check Frm_ProgramOptions.Chk_NoOverplus 1
call Frm_Vistrel.Search_Click
print Frm_Vistrel.Lst_LeftSelection
