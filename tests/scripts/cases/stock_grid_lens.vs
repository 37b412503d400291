# Lens counts by sphere (rows) and cylinder (columns), adult half and
# child half, and frames by size. A click on a locked cell takes one away
# and marks it yellow; an unlocked grid is typed into through an overlay
# laid on the current cell, and a typed value is marked and saved too.
start
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(25,7)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(25,0)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(0,7)
print Frm_LensFrames.MSF_LensInventory(1).TextMatrix(33,2)
print Frm_LensFrames.Txt_LensTotal(0)
print Frm_LensFrames.Txt_LensTotal(1)
print Frm_LensFrames.Txt_FrameAdultTotal
print Frm_LensFrames.Txt_FrameChildTotal

click Frm_LensFrames.MSF_LensInventory(0) 25 7
click Frm_LensFrames.MSF_LensInventory(0) 0 3
click Frm_LensFrames.Txt_FrameAdult65
click Frm_LensFrames.MSF_LensInventory(1) 33 2
click Frm_LensFrames.Txt_FrameChild57
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(25,7)
print Frm_LensFrames.MSF_LensInventory(0).CellBackColor(25,7)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(0,3)
print Frm_LensFrames.Txt_LensTotal(0)
print Frm_LensFrames.Txt_LensTotal(0).BackColor
print Frm_LensFrames.Txt_FrameAdult65
print Frm_LensFrames.Txt_FrameAdultTotal
print Frm_LensFrames.Txt_FrameAdultTotal.BackColor

# The halves are saved apart: the child's yellow cell waits.
click Frm_LensFrames.Cmd_SaveLensChanges(0)
print Frm_LensFrames.MSF_LensInventory(0).CellBackColor(25,7)
print Frm_LensFrames.Txt_FrameAdult65.BackColor
print Frm_LensFrames.MSF_LensInventory(1).CellBackColor(33,2)

# Unlocked, a click only moves the overlay, which takes the cell's text.
# Column 8 has no cylinder text of its own: saved first, its record has
# none; saved after a cell of column 7, it carries that one's.
click Frm_LensFrames.Cmd_LensUnlock(0)
print Frm_LensFrames.MSF_GridLocked
print Frm_LensFrames.MSF_LensInventory(0).CellBackColor(10,8)
print Frm_LensFrames.Txt_FrameAdult67.Locked
click Frm_LensFrames.MSF_LensInventory(0) 10 8
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(10,8)
print Frm_LensFrames.Txt_LensOverlay(0)
print Frm_LensFrames.Txt_LensOverlay(0).Visible
print Frm_LensFrames.Txt_LensOverlay(0).Left
print Frm_LensFrames.Txt_LensOverlay(0).Top
print Frm_LensFrames.Txt_LensOverlay(0).Width
print Frm_LensFrames.Txt_LensOverlay(0).Height
set Frm_LensFrames.Txt_LensOverlay(0) 7
click Frm_LensFrames.MSF_LensInventory(0) 10 9
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(10,8)
print Frm_LensFrames.MSF_LensInventory(0).CellBackColor(10,8)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(0,0)
click Frm_LensFrames.Cmd_SaveLensChanges(0)
print Frm_LensFrames.MSF_GridLocked
print Frm_LensFrames.Txt_LensOverlay(0).Visible
print Frm_LensFrames.Txt_LensTotal(0)
click Frm_LensFrames.Cmd_LensUnlock(0)
click Frm_LensFrames.MSF_LensInventory(0) 5 7
set Frm_LensFrames.Txt_LensOverlay(0) 2
click Frm_LensFrames.MSF_LensInventory(0) 5 8
set Frm_LensFrames.Txt_LensOverlay(0) 3
click Frm_LensFrames.Cmd_SaveLensChanges(0)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(5,8)
print Frm_LensFrames.Txt_FrameAdult67.Locked
click Frm_LensFrames.Cmd_LensLock(0)
print Frm_LensFrames.Txt_FrameAdult67.Locked

click Frm_LensFrames.Cmd_SaveLensChanges(1)
print Frm_LensFrames.Txt_LensTotal(1)
print Frm_LensFrames.Txt_FrameChildTotal
