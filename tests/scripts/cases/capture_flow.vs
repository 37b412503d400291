# The capture screen without a device decoder ("NONE"): characters from the
# line raise the screen; a look every 10 ticks sees whether more came; two
# looks at the same size end the message; the check judges the boxes as
# they stand, a good reading moves to the main screen, and every reading,
# good or not, leaves a line in the readings file.
start
print Frm_Vistrel.AutoRefractorType
print Frm_Autorefractor.Visible
serial "x"
print Frm_Autorefractor.Showing
print Frm_Autorefractor.Visible
print Frm_Autorefractor.buffer
print Frm_Autorefractor.LastBufferSize
serial "yz"
print Frm_Autorefractor.LastBufferSize
tick Frm_Autorefractor.Tmr_CountDataFlow 9
print Frm_Autorefractor.ClockTimer
print Frm_Autorefractor.Lbl_AutoIncoming.Visible
tick Frm_Autorefractor.Tmr_CountDataFlow
print Frm_Autorefractor.ClockTimer
print Frm_Autorefractor.SecondTimer
print Frm_Autorefractor.LastLookSize
print Frm_Autorefractor.Lbl_AutoIncoming.Visible
print Frm_Autorefractor.Lbl_ErrorStatus.Visible
# The second look sees the same size: empty boxes fail the check.
tick Frm_Autorefractor.Tmr_CountDataFlow 10
print Frm_Autorefractor.Lbl_AutoIncoming.Visible
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Lbl_ErrorStatus.Visible
print Frm_Autorefractor.Lbl_ErrorStatus.BackColor
print Frm_Autorefractor.Lbl_ErrorStatus.ForeColor
print Frm_Autorefractor.Lbl_ErrorStatus.BorderStyle
print Frm_Autorefractor.EntryError
print Frm_Autorefractor.buffer
print Frm_Autorefractor.LastBufferSize
print Frm_Autorefractor.ShowTimer

# Boxes that read as numbers move over; an axis of 180 becomes 0 in the box
# and on the main screen; with an age the Add is set.
set Frm_Vistrel.Txt_PersonNumber 27
set Frm_Vistrel.Txt_Age 52
set Frm_Autorefractor.Txt_AutoSphere(0) -1.25
set Frm_Autorefractor.Txt_AutoCylinder(0) -0.50
set Frm_Autorefractor.Txt_AutoAxis(0) 180
set Frm_Autorefractor.Txt_AutoSphere(1) +0.75
set Frm_Autorefractor.Txt_AutoCylinder(1) 0
set Frm_Autorefractor.Txt_AutoAxis(1) 5
check Frm_Autorefractor.Chk_AutoEnableAutoSearch 1
serial "!"
tick Frm_Autorefractor.Tmr_CountDataFlow 20
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Lbl_ErrorStatus.BackColor
print Frm_Autorefractor.Lbl_ErrorStatus.BorderStyle
print Frm_Autorefractor.EntryError
print Frm_Autorefractor.Txt_AutoAxis(0)
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_LeftConfidenceValue
print Frm_Vistrel.Txt_LeftAdd
print Frm_Autorefractor.ShowTimer
# The search comes at the tick after the countdown reached 0, and hides
# the screen.
tick Frm_Autorefractor.Tmr_CountDataFlow 15
print Frm_Autorefractor.ShowTimer
print Frm_Autorefractor.Visible
print Frm_Vistrel.FoundCount
tick Frm_Autorefractor.Tmr_CountDataFlow
print Frm_Autorefractor.ShowTimer
print Frm_Autorefractor.Visible
print Frm_Autorefractor.Showing

# A bad left eye and a good right one: "OK" stays on the label (the right
# eye's look), nothing moves, yet the search is armed.
set Frm_Autorefractor.Txt_AutoSphere(0) abc
set Frm_Autorefractor.Txt_AutoAxis(1) 90
serial "!"
tick Frm_Autorefractor.Tmr_CountDataFlow 20
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.EntryError
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Axis_Right
print Frm_Autorefractor.ShowTimer

# The buttons: clear one eye (its sphere shows a zero, and all six boxes go
# to the main screen), hide.
click Frm_Autorefractor.Cmd_AutoClearLeft
print Frm_Autorefractor.Txt_AutoSphere(0)
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Sphere_Right
click Frm_Autorefractor.Cmd_AutoClearAll
print Frm_Autorefractor.Txt_AutoReading
print Frm_Vistrel.Txt_ReadingNr
dblclick Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Vistrel.Txt_Sphere_Right
click Frm_Autorefractor.Cmd_LeftConfidenceUP
print Frm_Autorefractor.Txt_LeftConfidenceValue
click Frm_Autorefractor.Cmd_RightConfidenceDOWN
print Frm_Autorefractor.Txt_RightConfidenceValue
print Frm_Vistrel.Txt_RightConfidenceValue
click Frm_Autorefractor.Cmd_HideAutorefractorDataCaptureForm
print Frm_Autorefractor.Top
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Lbl_ErrorStatus.ForeColor
print Frm_Autorefractor.Showing

# A device type the station doesn't know ends the program when a message
# comes.
set Frm_Vistrel.AutoRefractorType NIKON
serial "?"
tick Frm_Autorefractor.Tmr_CountDataFlow 2
print Frm_Autorefractor.LastLookSize
