# The writer pads "NIKON RETINOMAX2" with 26 blanks; the reader drops them.
start
print Frm_ProgramOptions.Opt_NikonRetinomax2
print Frm_ProgramOptions.Lbl_AutorefractorType
print Frm_ProgramOptions.Lbl_AutorefractorType.Visible
print Frm_Vistrel.Lbl_ReadingNr.Visible
print Frm_Vistrel.Txt_ReadingNr.Visible
print Frm_Vistrel.ComPortNumber
