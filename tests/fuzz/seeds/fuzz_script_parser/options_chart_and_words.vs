# The age chart as written in the file (an empty field keeps the chart's
# own value), the years of the over-minus rule, the prescription print
# box and the network path.
start
print Frm_ProgramOptions.Txt_Add(0)
print Frm_ProgramOptions.Txt_From(1)
print Frm_ProgramOptions.Txt_To(7)
print Frm_ProgramOptions.Chk_PrintPrescription
print Frm_Vistrel.Chk_Prescription
print Frm_ProgramOptions.Txt_YearsOverMinus
print Frm_Vistrel.Txt_YearsOverMinus
print Frm_ProgramOptions.Txt_NetworkJournalPath
click Frm_Vistrel.Txt_Age
set Frm_Vistrel.Txt_Sphere_Left -1.00
call Frm_Vistrel.Cmd_SetAdd_Click
print Frm_Vistrel.Txt_LeftAdd
print Frm_Vistrel.Chk_PlusBifocals
