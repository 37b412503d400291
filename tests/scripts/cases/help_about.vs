# About and the update screen come up over the main screen and go again;
# Showing is True only while a screen is up.
start
click Frm_Vistrel.TellAbout
print Frm_About.Showing
print Frm_About.Visible

stay Frm_About
click Frm_Vistrel.TellAbout
print Frm_About.Showing
print Frm_About.Visible
click Frm_About.Cmd_Exit
print Frm_About.Showing
print Frm_About.Visible

stay Frm_CheckForUpdates
click Frm_Vistrel.UpdateProgram
print Frm_CheckForUpdates.Showing
print Frm_CheckForUpdates.Visible
call Frm_CheckForUpdates.Cmd_Exit_Click
print Frm_CheckForUpdates.Showing
print Frm_CheckForUpdates.Visible
