# The vacant report lists the numbers up to the highest bag that no pair
# holds, ten to a row, with the numbers of removed pairs among them (bag 2,
# given to person 40 by the journal). Marking them free lasts: bag 2 given
# back afterwards stays free in the report run again, until the next start.
start
print Frm_Vistrel.PublicMaximumLocations
print Frm_Vistrel.Inv_LocationUsed(2)
click Frm_Vistrel.VacantLocationsReport
print Frm_Vistrel.Inv_LocationUsed(2)
print Frm_Vistrel.Inv_LocationUsed(3)
answer Frm_RemoveRejectInventory.Cmd_ReturnInventory
click Frm_Vistrel.Lst_PersonsList 0
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Inv_LocationUsed(2)
click Frm_Vistrel.VacantLocationsReport
