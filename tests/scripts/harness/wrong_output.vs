print Frm_Vistrel.Visible
