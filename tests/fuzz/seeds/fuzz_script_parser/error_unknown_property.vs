print Frm_About.Cmd_Exit.Caption
print Frm_About.Cmd_Exit.Colour
