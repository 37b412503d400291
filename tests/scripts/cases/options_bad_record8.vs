# Record 8 of "ACME 9000" is not allowed: a box, and the station ends; nothing
# after the start runs.
start
print Frm_Vistrel.Txt_Status
