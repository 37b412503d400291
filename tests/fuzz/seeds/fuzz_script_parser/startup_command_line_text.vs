# A command line that isn't a number gives a highest number of 1: only
# bag 1 is loaded.
start abc
print Frm_ProgramOptions.Txt_HighestInventoryNumber
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(2)
print Frm_Vistrel.Txt_Status
# Typed into the box, the highest number is held between 1 and 32000.
set Frm_ProgramOptions.Txt_HighestInventoryNumber 40000
print Frm_ProgramOptions.Txt_HighestInventoryNumber
set Frm_ProgramOptions.Txt_HighestInventoryNumber -3
print Frm_ProgramOptions.Txt_HighestInventoryNumber
