# Records 1 to 10 and 35 to 40 are folded to upper case before the test;
# from record 42 on only the writer's upper-case "YES" is true.
start
print Frm_ProgramOptions.Chk_Diagnostic
print Frm_Vistrel.DiagnosticValue
print Frm_ProgramOptions.Chk_RefreshAddRemove
print Frm_Vistrel.RefreshAddRemoveValue
print Frm_ProgramOptions.Chk_AutoSearch
print Frm_ProgramOptions.Chk_VarnRule
print Frm_Vistrel.Chk_OverPlus
print Frm_ProgramOptions.Chk_NoOverplus
print Frm_ProgramOptions.Chk_NoOverCylinder
print Frm_ProgramOptions.Chk_NoOverMinus
print Frm_Vistrel.Chk_Overminus
print Frm_Vistrel.PlusBusy
print Frm_ProgramOptions.Chk_ReadingGlasses
print Frm_ProgramOptions.Chk_LensFrames
print Frm_Vistrel.Cmd_DisplayLensFrames.Visible
print Frm_ProgramOptions.Chk_IncludeEither
print Frm_ProgramOptions.Chk_EnableNetJournal
print Frm_ProgramOptions.Chk_ShowLevel
# The port is the field's numeric value written back as text; a record 50
# of 1 or less means no limit.
print Frm_Vistrel.ComPortNumber
print Frm_ProgramOptions.Opt_Com(7)
print Frm_ProgramOptions.Txt_HighestInventoryNumber
print Frm_Vistrel.InventoryCount
