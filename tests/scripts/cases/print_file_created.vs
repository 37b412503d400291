# With --print-to the file exists even when nothing is printed.
print Frm_Vistrel.Visible
