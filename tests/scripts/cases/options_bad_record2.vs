# Record 2 of "BOTH" is not allowed: a box, and the station ends; nothing
# after the start runs.
start
print Frm_Vistrel.Txt_Status
