# With the screen turned (right eye first) the no-match report puts the
# right eye's block first and says so in its heading.
start
set Frm_Vistrel.FlipLeftFirst False
call Frm_Vistrel.DisplayNoMatchMeasurements_Click
