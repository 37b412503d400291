# The file of unmatched measurements: the row number and per eye sphere,
# cylinder, axis and |equivalent - reading power|, in plain number texts
# without their leading blank, each line ending in a comma. Saved twice,
# the second file replaces the first.
start
click Frm_Vistrel.SaveUNMatchedMeasurementsFile
call Frm_Vistrel.SaveUNMatchedMeasurementsFile_Click
