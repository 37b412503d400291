# A click on a pair of a stock list asks whether it goes to the person or
# was refused; a click on the person list asks whether it comes back. Each
# answer changes the tables and appends one record to the journal, with the
# person's measurement as it stands. Nothing refreshes the lists here.
start
set Frm_Vistrel.Txt_PersonNumber 12
set Frm_Vistrel.Txt_Sphere_Left -1.25
set Frm_Vistrel.Txt_Cylinder_Left -0.50
set Frm_Vistrel.Txt_Axis_Left 90
set Frm_Vistrel.Txt_LeftAdd 2.00

# Remove bag 2 (the second row) for person 12.
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 1
print Frm_RemoveRejectInventory.Caption
print Frm_RemoveRejectInventory.Cmd_RemoveInventory.Visible
print Frm_RemoveRejectInventory.Cmd_RejectInventory.Visible
print Frm_RemoveRejectInventory.Cmd_ReturnInventory.Visible
print Frm_RemoveRejectInventory.Lbl_RemoveRejectMessage
print Frm_RemoveRejectInventory.Showing
print Frm_Vistrel.Response
print Frm_Vistrel.ReturnInventoryFlag
print Frm_Vistrel.SelectedIndex
print Frm_Vistrel.JournalAddFlag
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Inv_PersonNumber(2)
print Frm_Vistrel.Lst_LeftInventory.ListCount
print Frm_Vistrel.Lst_PersonsList.ListCount

# Reject bag 3 twice from the right list: its count was 1 in the file.
# The rows keep showing the old count until the lists are filled again.
answer Frm_RemoveRejectInventory.Cmd_RejectInventory
click Frm_Vistrel.Lst_RightInventory 2
print Frm_RemoveRejectInventory.Lbl_RemoveRejectMessage
print Frm_Vistrel.JournalAddFlag
answer Frm_RemoveRejectInventory.Cmd_RejectInventory
click Frm_Vistrel.Lst_RightInventory 2
print Frm_Vistrel.JournalAddFlag
print Frm_Vistrel.Inv_RejectCount(3)
print Frm_Vistrel.Inv_Removed(3)
print Frm_Vistrel.Lst_LeftInventory.List(2)

# Cancel, and the close box without an answer, change nothing.
answer Frm_RemoveRejectInventory.Cmd_Cancel
click Frm_Vistrel.Lst_LeftInventory 0
print Frm_Vistrel.Response
click Frm_Vistrel.Lst_LeftInventory 0
print Frm_Vistrel.Response
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_RejectCount(1)

# Nothing refuses a second removal of one pair.
set Frm_Vistrel.Txt_PersonNumber 7
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 4
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 4

# The person list shows what was given out, after its refresh.
click Frm_Vistrel.Cmd_ListPersons
print Frm_Vistrel.Lst_PersonsList
print Frm_Vistrel.Txt_Used
print Frm_Vistrel.Txt_Status

# A return names the person of the table, and its record carries person 0.
answer Frm_RemoveRejectInventory.Cmd_ReturnInventory
click Frm_Vistrel.Lst_PersonsList 0
print Frm_RemoveRejectInventory.Caption
print Frm_RemoveRejectInventory.Cmd_RemoveInventory.Visible
print Frm_RemoveRejectInventory.Cmd_RejectInventory.Visible
print Frm_RemoveRejectInventory.Cmd_ReturnInventory.Visible
print Frm_RemoveRejectInventory.Cmd_Cancel.Visible
print Frm_RemoveRejectInventory.Lbl_RemoveRejectMessage
print Frm_Vistrel.JournalAddFlag
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Inv_PersonNumber(2)
print Frm_Vistrel.Lst_PersonsList.ListCount
# A reject asked of the person list is no answer there.
answer Frm_RemoveRejectInventory.Cmd_RejectInventory
click Frm_Vistrel.Lst_PersonsList 1
print Frm_Vistrel.Response
print Frm_Vistrel.Inv_Removed(5)
