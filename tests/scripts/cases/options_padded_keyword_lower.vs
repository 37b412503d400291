# The second padded keyword, in lower case: folded, then read as the plain one.
start
print Frm_ProgramOptions.Opt_NikonRetinomax3
print Frm_ProgramOptions.Lbl_AutorefractorType
print Frm_Vistrel.Txt_ReadingNr.Visible
