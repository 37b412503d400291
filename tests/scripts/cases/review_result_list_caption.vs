# The frame over the result list: "Left", 68 blanks, "|  Right".
start
print Frm_Vistrel.Frm_LeftSelection.Caption
