# A first start with the port "None": the writer leaves record 9 out, so
# on the second reading every later record stands one place to the front.
# The port takes record 10's yes/no word (numeric value 0) and the age
# chart is read shifted by one field.
select Frm_ProgramOptions.Opt_MatchBoth
check Frm_ProgramOptions.Chk_MatchReadingAlso 0
check Frm_ProgramOptions.Chk_MatchReadingOnly 0
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 0
select Frm_ProgramOptions.Opt_Com(0)
click Frm_ProgramOptions.Cmd_RestoreDefaults
start
print Frm_Vistrel.ComPortNumber
print Frm_ProgramOptions.Opt_Com(0)
print Frm_ProgramOptions.Txt_From(0)
print Frm_ProgramOptions.Txt_To(0)
print Frm_ProgramOptions.Txt_Add(0)
print Frm_ProgramOptions.Txt_From(1)
print Frm_ProgramOptions.Txt_To(1)
print Frm_ProgramOptions.Txt_Add(1)
print Frm_ProgramOptions.Txt_HighestInventoryNumber
print Frm_Vistrel.Txt_Status
