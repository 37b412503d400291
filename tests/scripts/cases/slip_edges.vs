# Corners of the slip. No age, a device without a title, the confidence
# column, both ADD boxes, an empty number of lines; then no match at all
# with a blind eye; then no prescription block.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.AutoRefractorType SHIN NIPPON 8001
set Frm_Vistrel.Txt_PersonNumber 7
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.00
click Frm_Vistrel.Cmd_Search
# Pair 1 is exact: score 0, no level, never printed. Pair 2 scores 0.1
# and is the one row an empty line count lets through.
print Frm_Vistrel.Lst_LeftSelection
check Frm_ProgramOptions.Chk_ConfidenceLevel 1
set Frm_Vistrel.Txt_RightConfidenceValue 9
set Frm_Vistrel.Txt_LeftConfidenceValue 8
check Frm_Vistrel.Chk_PlusBifocals 1
check Frm_Vistrel.Chk_OnlyBifocals 1
check Frm_Vistrel.Chk_Prescription 1
set Frm_Vistrel.Txt_PrintNr 
click Frm_Vistrel.Cmd_PrintList

# A blind left eye far from every pair: the right eye matches all three,
# each scoring 0, so no row is printed and no "NO MATCH FOUND!" either.
check Frm_Vistrel.Chk_OnlyBifocals 0
check Frm_Vistrel.Chk_PlusBifocals 0
check Frm_ProgramOptions.Chk_ConfidenceLevel 0
set Frm_Vistrel.Txt_Age 30
set Frm_Vistrel.Txt_Sphere_Left -6.00
check Frm_Vistrel.Chk_BlindLeft 1
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.Lst_LeftSelection
click Frm_Vistrel.Cmd_PrintList

# Both eyes seen again: nothing found, and without the prescription block.
check Frm_Vistrel.Chk_BlindLeft 0
click Frm_Vistrel.Cmd_Search
print Frm_Vistrel.FoundListCount
check Frm_Vistrel.Chk_Prescription 0
click Frm_Vistrel.Cmd_PrintList
