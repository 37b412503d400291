# Without the help documents beside the program the station names the one
# it missed and the folder it looked in, and opens nothing. The driver's own
# folder holds no guides.
start
click Frm_Vistrel.HelpFileDropdown
click Frm_Vistrel.Lbl_SearchDataEntryArea
stay Frm_HelpAreas
click Frm_Vistrel.HelpProgram
click Frm_HelpAreas.Cmd_OpenHelp(8)
print Frm_HelpAreas.Visible
click Frm_HelpAreas.Cmd_Exit
