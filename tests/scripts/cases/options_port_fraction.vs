# A port of 7.5 is not one of "0" to "16".
start
print Frm_Vistrel.ComPortNumber
print Frm_ProgramOptions.Opt_Com(0)
