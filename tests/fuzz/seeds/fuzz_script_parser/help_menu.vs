# The Help menu's guides and the result list's heading, "(Click for help)",
# open their PDF from the program's folder. The run's shared folder holds a
# stand-in of that folder with every guide in it.
start
set Frm_Vistrel.ProgramFilesLocation shared/program
click Frm_Vistrel.HelpReportsDropdown
click Frm_Vistrel.HelpFileDropdown
click Frm_Vistrel.HelpPrescriptionModificationWizard
click Frm_Vistrel.Lbl_SearchDataEntryArea

# "Help" brings up the help screen, which opens every guide, those without
# a menu entry of their own too, and stays up meanwhile.
stay Frm_HelpAreas
click Frm_Vistrel.HelpProgram
print Frm_HelpAreas.Showing
click Frm_HelpAreas.Cmd_OpenHelp(0)
click Frm_HelpAreas.Cmd_OpenHelp(1)
click Frm_HelpAreas.Cmd_OpenHelp(2)
click Frm_HelpAreas.Cmd_OpenHelp(3)
click Frm_HelpAreas.Cmd_OpenHelp(4)
click Frm_HelpAreas.Cmd_OpenHelp(5)
click Frm_HelpAreas.Cmd_OpenHelp(6)
click Frm_HelpAreas.Cmd_OpenHelp(7)
click Frm_HelpAreas.Cmd_OpenHelp(8)
print Frm_HelpAreas.Visible
click Frm_HelpAreas.Cmd_Exit
print Frm_HelpAreas.Showing
print Frm_HelpAreas.Visible
