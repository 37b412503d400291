start
# The rules as the clinician wrote them, one line per entry.
click Frm_ProgramOptions.Cmd_HelpWithRule
print Frm_HelpVarnRule.Caption
print Frm_HelpVarnRule.Txt_HelpVarnRules
print Frm_HelpVarnRule.Txt_HelpVarnRules.Locked
# The rule box switches the four guard boxes as a whole.
check Frm_ProgramOptions.Chk_VarnRule 1
print Frm_Vistrel.Chk_OverPlus
print Frm_ProgramOptions.Chk_NoOverplus
print Frm_ProgramOptions.Chk_NoOverCylinder
print Frm_ProgramOptions.Chk_NoOverMinus
print Frm_Vistrel.Chk_Overminus
print Frm_Vistrel.PlusBusy
check Frm_ProgramOptions.Chk_VarnRule 0
print Frm_Vistrel.Chk_OverPlus
print Frm_ProgramOptions.Chk_NoOverplus
print Frm_ProgramOptions.Chk_NoOverCylinder
print Frm_ProgramOptions.Chk_NoOverMinus
print Frm_Vistrel.Chk_Overminus
