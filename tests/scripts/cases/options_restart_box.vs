# Leaving the options screen with another port than the one in force asks
# for a restart and saves; the settings are applied on the way.
start
select Frm_ProgramOptions.Opt_Com(5)
check Frm_ProgramOptions.Chk_NOSpherical_Equivalent 1
click Frm_Vistrel.SetOptions
print Frm_Vistrel.ProgramOptionsFlag
print Frm_Vistrel.SkipSearch
print Frm_Vistrel.Chk_NOEquiv
print Frm_ProgramOptions.Visible
# ComPortNumber keeps what was read at the start, so the port still
# differs and the box comes again.
click Frm_Vistrel.SetOptions
print Frm_Vistrel.ComPortNumber
