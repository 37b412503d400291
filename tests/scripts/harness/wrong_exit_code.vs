print Frm_Nowhere.Visible
