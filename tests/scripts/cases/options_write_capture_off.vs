# With data capture off the model written is NONE whatever model is
# selected, the port is "None" (no record 9), and years that are no number
# are written "35".
start
stay Frm_ProgramOptions
click Frm_Vistrel.SetOptions
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 1
select Frm_ProgramOptions.Opt_Humphrey597
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 0
print Frm_ProgramOptions.Opt_Com(0)
set Frm_ProgramOptions.Txt_YearsOverMinus abc
# Nothing that needs a restart changed: no box, and only the save button
# writes the file.
click Frm_ProgramOptions.Cmd_SaveContinue
print Frm_Vistrel.AutoRefractorType
print Frm_ProgramOptions.Lbl_AutorefractorType
print Frm_ProgramOptions.Lbl_AutorefractorType.Visible
