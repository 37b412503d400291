# A new machine: there is no options file. The options screen comes up
# before anything is read, its Cmd_Continue writes the file, and reading
# starts over on the file just written.
# The screen's own choices for the first records are fixed here, so that
# the written line is known; a "30" for the years is written as "35)"
# and can only come back as "35" through a second reading.
select Frm_ProgramOptions.Opt_MatchBoth
check Frm_ProgramOptions.Chk_MatchReadingAlso 0
check Frm_ProgramOptions.Chk_MatchReadingOnly 0
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 0
select Frm_ProgramOptions.Opt_Com(2)
click Frm_ProgramOptions.Cmd_RestoreDefaults
set Frm_ProgramOptions.Txt_YearsOverMinus 30
print Frm_Vistrel.Txt_YearsOverMinus
start
print Frm_Vistrel.FirstLoad
print Frm_Vistrel.OptDefaultSetting
print Frm_Vistrel.ComPortNumber
print Frm_ProgramOptions.Opt_Com(2)
print Frm_ProgramOptions.Opt_Com(0)
print Frm_ProgramOptions.Txt_YearsOverMinus
print Frm_Vistrel.Txt_YearsOverMinus
print Frm_Vistrel.MatchBothValue
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Visible
# Form_Load runs once: a second call changes nothing.
set Frm_Vistrel.Txt_PersonNumber 5
call Frm_Vistrel.Form_Load
print Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.InventoryCount
