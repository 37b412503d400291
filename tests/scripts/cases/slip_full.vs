# The slip for a person of 45 with a one-digit left axis, after the wizard
# changed the left eye and the right eye was cut back once: the head, the
# device's reading beside the prescription, the settings, the cut-back,
# three pairs by score with their prescriptions, the advice, the signature.
start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
select Frm_Vistrel.Opt_DoNotCare
select Frm_Vistrel.Opt_LensDoNotCare
set Frm_Vistrel.AutoRefractorType CANON RK-2
set Frm_Vistrel.Txt_PersonNumber 12
set Frm_Vistrel.Txt_Age 45
set Frm_Vistrel.Txt_Sphere_Left -2.00
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 5
set Frm_Vistrel.Txt_Sphere_Right 1.25
set Frm_Vistrel.Txt_Cylinder_Right -0.75
set Frm_Vistrel.Txt_Axis_Right 180
set Frm_Autorefractor.Txt_AutoSphere(0) -2.25
set Frm_Autorefractor.Txt_AutoCylinder(0) -0.75
set Frm_Autorefractor.Txt_AutoAxis(0) 7
set Frm_Autorefractor.Txt_AutoSphere(1) 1.25
set Frm_Autorefractor.Txt_AutoCylinder(1) -0.75
set Frm_Autorefractor.Txt_AutoAxis(1) 0
click Frm_Vistrel.Cmd_RightCutBackSearch
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Lst_LeftSelection
print Frm_Vistrel.Lbl_Recommendation

# What the slip reports of the settings, set after the search.
click Frm_Vistrel.Cmd_2DefTimes2
check Frm_ProgramOptions.Chk_VarnRule 1
check Frm_ProgramOptions.Chk_NoOverCylinder 1
check Frm_ProgramOptions.Chk_NoOverMinus 1
check Frm_ProgramOptions.Chk_PrintGlassesPrescriptions 1
check Frm_Vistrel.Chk_PlusBifocals 1
set Frm_Advisor.WizardLeftDone True
check Frm_Vistrel.Chk_Prescription 1
set Frm_Vistrel.Txt_PrintNr 3
print Frm_Vistrel.Chk_NOEquiv
print Frm_ProgramOptions.Chk_NoOverplus
print Frm_ProgramOptions.Chk_UpTo50
# Five pairs found; after the cut-back none is exact, and the slip takes
# the first three by score.
click Frm_Vistrel.Cmd_PrintList
