# Record 1 of "HALF" is not allowed: a box, and the station ends; nothing
# after the start runs.
start
print Frm_Vistrel.Txt_Status
