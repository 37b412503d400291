# While start-up reads the options file no handler may search. Here record 1
# (a doubled preset) and record 4 (no spherical equivalent) would search with
# automatic search on, and a search would load the inventory before record 50
# has set the highest bag number: the third bag must not be loaded.
start
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Txt_Status
# The records themselves took effect all the same.
print Frm_Vistrel.Max_Sphere_OverageValue
print Frm_Vistrel.NOSphericalEquivalent
print Frm_ProgramOptions.Chk_AutoSearch
# After start-up a search runs as usual, over the two bags loaded.
set Frm_Vistrel.Txt_Sphere_Left -1.00
set Frm_Vistrel.Txt_Sphere_Right -1.00
call Frm_Vistrel.Search_Click
print Frm_Vistrel.FoundCount
print Frm_Vistrel.Lst_LeftSelection.ListCount
