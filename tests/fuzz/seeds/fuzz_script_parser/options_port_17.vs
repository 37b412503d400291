# Port 17 is out of range: a box, port "None", and the station goes on.
start
print Frm_Vistrel.ComPortNumber
print Frm_ProgramOptions.Opt_Com(0)
print Frm_ProgramOptions.Opt_Com(1)
print Frm_Vistrel.Txt_Status
