# A Canon RK-2 sends its report a line at a time and waits for an ACK
# after each line it means; the line after the last eye releases the
# reading. The line is quiet-tested every 0.4 s (two ticks).
start
serial "CANON RK-2  Ver 1.10\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 3
print Frm_Autorefractor.LastLookSize
tick Frm_Autorefractor.Tmr_CountDataFlow
print Frm_Autorefractor.buffer
serial "VD: 12.0mm\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
serial "      SPH   CYL   AX\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
serial "R   -2.25 -0.75  180\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Autorefractor.Txt_AutoCylinder(1)
print Frm_Autorefractor.Txt_AutoAxis(1)
print Frm_Vistrel.Txt_Sphere_Right
# The eye line may come in pieces, as long as they come close together.
serial "L   +1.5"
tick Frm_Autorefractor.Tmr_CountDataFlow
serial "0 -0.50   90\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.Txt_AutoSphere(0)
serial "PD 63.5\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Txt_AutoAxis(1)
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
print Frm_Vistrel.Txt_Sphere_Equ_Right
