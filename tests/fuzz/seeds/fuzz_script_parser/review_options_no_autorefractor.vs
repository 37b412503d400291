# Data capture on with the model NONE: record 7 marks Retinomax 2 as the
# capture box does, and record 8 then marks the option of NONE.
start
print Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture
print Frm_ProgramOptions.Opt_NoAutorefractor
print Frm_ProgramOptions.Opt_NikonRetinomax2
print Frm_Vistrel.AutoRefractorType
# Leaving the options screen unchanged writes NONE again: no model changed,
# so no restart is asked for and the file is not rewritten.
call Frm_Vistrel.SetOptions_Click
print Frm_Vistrel.AutoRefractorType
print Frm_ProgramOptions.Lbl_AutorefractorType
