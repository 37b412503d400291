# The export of removed and refused pairs in the inventory file's record
# format. A refused pair still in stock has its number negative (bag 123,
# refused twice: -123, and gender 1 plus 20); a removed pair keeps it
# positive, also when it was refused before (bag 45). The old export is
# deleted first. Its copy under a dated name goes nowhere here: the date is
# set in at the first "." of the path, which is in the run's folder name.
# The site's script beside the inventory (the .sh one on this system) is
# started last.
start
click Frm_Vistrel.SaveDeletedRejectedInventory
