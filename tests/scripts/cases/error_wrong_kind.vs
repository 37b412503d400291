# A button is no check box.
check Frm_About.Cmd_Exit 1
