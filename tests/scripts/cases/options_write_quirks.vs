# The writer's odd corners: the Retinomax 3 keyword padded with 26 blanks,
# "None" for the port leaving record 9 out (every later field one place to
# the front), and years below 35 written "35)".
start
stay Frm_ProgramOptions
click Frm_Vistrel.SetOptions
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 1
print Frm_ProgramOptions.Opt_NikonRetinomax2
print Frm_ProgramOptions.Opt_Com(1)
select Frm_ProgramOptions.Opt_NikonRetinomax3
select Frm_ProgramOptions.Opt_Com(0)
set Frm_ProgramOptions.Txt_YearsOverMinus 30
print Frm_Vistrel.Txt_YearsOverMinus
# The model changed, so the box asks for a restart and the file is saved
# even by the plain Continue.
click Frm_ProgramOptions.Cmd_Continue
print Frm_Vistrel.AutoRefractorType
print Frm_Vistrel.Txt_ReadingNr.Visible
print Frm_ProgramOptions.Lbl_AutorefractorType
