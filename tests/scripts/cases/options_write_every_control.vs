# Every saved control of the options screen moved away from what the file
# holds, then saved from the dialog opened by the menu: the file is one
# line in record order with each control's new value, and the two controls
# that are not saved (the HOME button, no over-minus) leave no trace in it.
start
stay Frm_ProgramOptions
click Frm_Vistrel.SetOptions
print Frm_Vistrel.SkipSearch
click Frm_ProgramOptions.Cmd_MAX
select Frm_ProgramOptions.Opt_RightOnly
check Frm_ProgramOptions.Chk_MatchReadingOnly 1
check Frm_ProgramOptions.Chk_NOSpherical_Equivalent 1
check Frm_ProgramOptions.Chk_Diagnostic 1
check Frm_ProgramOptions.Chk_RefreshAddRemove 1
check Frm_ProgramOptions.Chk_EnableAutorefractorDataCapture 1
select Frm_ProgramOptions.Opt_CanonRK2
select Frm_ProgramOptions.Opt_Com(12)
# The focometer box can't be cleared.
check Frm_ProgramOptions.Chk_NOFocometer 0
print Frm_ProgramOptions.Chk_NOFocometer
set Frm_ProgramOptions.Txt_To(0) 39
set Frm_ProgramOptions.Txt_From(1) 40
set Frm_ProgramOptions.Txt_Add(1) 1.25
set Frm_ProgramOptions.Txt_Add(7) 3.00
check Frm_ProgramOptions.Chk_PrintPrescription 0
check Frm_ProgramOptions.Chk_AutoSearch 0
check Frm_ProgramOptions.Chk_ConfidenceLevel 1
check Frm_ProgramOptions.Chk_AutoSearchWhenRead 1
check Frm_ProgramOptions.Chk_PrintGlassesPrescriptions 0
check Frm_ProgramOptions.Chk_VarnRule 1
set Frm_ProgramOptions.Txt_YearsOverMinus 42
check Frm_ProgramOptions.Chk_ReadingGlasses 1
check Frm_ProgramOptions.Chk_LensFrames 1
check Frm_ProgramOptions.Chk_IncludeEither 0
check Frm_ProgramOptions.Chk_EnableNetJournal 1
set Frm_ProgramOptions.Txt_NetworkJournalPath N:\Mission Journal
check Frm_ProgramOptions.Chk_UpTo50 0
set Frm_ProgramOptions.Cmb_ChoosePrinter Office Laser
check Frm_ProgramOptions.Chk_ShowLevel 0
set Frm_ProgramOptions.Txt_HighestInventoryNumber 900
check Frm_ProgramOptions.Chk_EnableHome 1
check Frm_ProgramOptions.Chk_NoOverMinus 0
# Another model and port: the restart box, and the file is written anyway.
click Frm_ProgramOptions.Cmd_SaveContinue
print Frm_ProgramOptions.Visible
print Frm_Vistrel.ProgramOptionsFlag
print Frm_Vistrel.SkipSearch
# What the run took over at once.
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.Cmd_MAX.BackColor
print Frm_Vistrel.RightOnlyValue
print Frm_Vistrel.MatchReadingOnlyValue
print Frm_Vistrel.Chk_OnlyBifocals
print Frm_Vistrel.Chk_NOEquiv
print Frm_Vistrel.DiagnosticValue
print Frm_Vistrel.RefreshAddRemoveValue
print Frm_Vistrel.AutoRefractorType
print Frm_Vistrel.Txt_ReadingNr.Visible
print Frm_ProgramOptions.Lbl_AutorefractorType
print Frm_Vistrel.ComPortNumber
print Frm_Vistrel.Chk_Prescription
print Frm_Autorefractor.Chk_AutoEnableAutoSearch
print Frm_Vistrel.Chk_OverPlus
print Frm_Vistrel.Chk_Overminus
print Frm_Vistrel.Txt_YearsOverMinus
print Frm_Vistrel.Cmd_ReadingGlasses.Visible
print Frm_Vistrel.Cmd_DisplayLensFrames.Visible
print Frm_Vistrel.Chk_Add_Either
print Frm_ProgramOptions.Frm_NetworkJournalPath.Visible
print Frm_Advisor.Chk_VarnOverCylinder50
print Frm_Vistrel.Txt_Left_AMP.Visible
print Frm_Vistrel.Cmd_Sizer.Visible
