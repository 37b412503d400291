# The driver's own mechanics, before the station has started: screens are
# found by name, variables are written and read, operations run.

print Frm_Vistrel.Visible
print Frm_About.Visible
print Frm_About.Cmd_Exit.Width
   # an indented comment
set Frm_About.Showing "True"
print Frm_About.Showing
call Frm_About.Cmd_Exit_Click
print Frm_About.Showing
