# What ran before the bad statement stays on standard output.
print Frm_Vistrel.Visible

print Frm_Nowhere.Txt_Name
print Frm_Vistrel.Visible
