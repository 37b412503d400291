# A networked station replays its own journal and then the shared one, so
# the shared one wins where they disagree. The shared file is read as
# "Journalfile.txt" and written as "JournalFile.txt": here one file, the
# one already in the folder. Start-up replays the shared journal three
# times (with the load, and before and after the person list's walk), and
# measurements count again on every replay.
start
print Frm_Vistrel.Inv_Removed(1)
print Frm_Vistrel.Inv_PersonNumber(1)
print Frm_Vistrel.Inv_Removed(2)
print Frm_Vistrel.Inv_Removed(3)
print Frm_Vistrel.Inv_PersonNumber(3)
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Meas_LeftSphere(1)
print Frm_Vistrel.Meas_LeftSphere(2)
print Frm_Vistrel.Meas_LeftSphere(7)
print Frm_Vistrel.Lbl_NetworkJournalDown.Visible
print Frm_Vistrel.Lst_PersonsList
print Frm_Vistrel.Lst_LeftInventory.ListCount

# A removal goes to both journals.
answer Frm_RemoveRejectInventory.Cmd_RemoveInventory
click Frm_Vistrel.Lst_LeftInventory 1
print Frm_Vistrel.Inv_Removed(4)

# The person list refreshes at the fifth minute, replaying the shared
# journal twice.
tick Frm_Vistrel.Tmr_RefreshPersonList 4
print Frm_Vistrel.NetworkJournalRefreshCounter
print Frm_Vistrel.MeasurementsSaved
tick Frm_Vistrel.Tmr_RefreshPersonList
print Frm_Vistrel.NetworkJournalRefreshCounter
print Frm_Vistrel.NetworkJournalOfflineCounter
print Frm_Vistrel.MeasurementsSaved
print Frm_Vistrel.Lst_PersonsList

# With a stock screen open the refresh is passed over and waits another
# five minutes.
set Frm_LensFrames.Showing True
tick Frm_Vistrel.Tmr_RefreshPersonList 5
print Frm_Vistrel.NetworkJournalRefreshCounter
print Frm_Vistrel.MeasurementsSaved
set Frm_LensFrames.Showing False
# Without the shared journal the timer only counts.
check Frm_ProgramOptions.Chk_EnableNetJournal 0
tick Frm_Vistrel.Tmr_RefreshPersonList 5
print Frm_Vistrel.NetworkJournalRefreshCounter
print Frm_Vistrel.MeasurementsSaved
