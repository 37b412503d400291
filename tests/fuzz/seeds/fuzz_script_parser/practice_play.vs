# Practice play walks through earlier readings person by person, from a
# copy of the readings file made at the first use: each person's latest
# reading goes into the main screen and the capture screen, and a search
# runs, as if just measured.
start
print Frm_Vistrel.Txt_Play_Person_Nr.Visible
click Frm_Vistrel.EnableDisablePracticePlay
print Frm_Vistrel.PracticePlayEnabled
print Frm_Vistrel.EnableDisablePracticePlay.Checked
print Frm_Vistrel.Txt_Play_Person_Nr.Visible
print Frm_Vistrel.Img_Forward.Visible
print Frm_Advisor.Txt_Play_Person_Nr.Visible
print Frm_Vistrel.Txt_LeftConfidenceValue.Visible
set Frm_Vistrel.Txt_Play_Person_Nr 3
print Frm_Vistrel.Practice_Loaded
print Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.Txt_Age
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Autorefractor.Txt_AutoAxis(1)
print Frm_Vistrel.Chk_AutoBypass
print Frm_Advisor.Txt_Play_Person_Nr
# An axis of 180 goes to the capture screen as 0.
set Frm_Vistrel.Txt_Play_Person_Nr 1
print Frm_Vistrel.Txt_Axis_Right
print Frm_Autorefractor.Txt_AutoAxis(1)
# A person with no reading: empty fields.
click Frm_Vistrel.Img_Forward
print Frm_Vistrel.Txt_Play_Person_Nr
print Frm_Vistrel.Txt_PersonNumber
print Frm_Vistrel.Txt_Sphere_Right
click Frm_Vistrel.Img_Backwards
click Frm_Vistrel.Img_Backwards
click Frm_Vistrel.Img_Backwards
print Frm_Vistrel.Txt_Play_Person_Nr
print Frm_Vistrel.Person_Nr
# Held within 1 and 32000.
set Frm_Vistrel.Txt_Play_Person_Nr 0
print Frm_Vistrel.Txt_Play_Person_Nr
set Frm_Vistrel.Txt_Play_Person_Nr 40000
print Frm_Vistrel.Txt_Play_Person_Nr
print Frm_Vistrel.Txt_PersonNumber
set Frm_Vistrel.Txt_Play_Person_Nr abc
print Frm_Vistrel.Txt_Play_Person_Nr
click Frm_Vistrel.EnableDisablePracticePlay
print Frm_Vistrel.Txt_Play_Person_Nr.Visible
print Frm_Vistrel.Txt_LeftConfidenceValue.Visible
