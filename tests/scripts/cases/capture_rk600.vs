# The Reichert RK600 is looked at every tick: a pause of two ticks inside
# a message ends it early, and a message cut so, or holding "M VD", is
# partial data: all six boxes are emptied and nothing moves over.
start
serial "REICHERT RK600\r\nVD=12mm  PD 63\r\n\r\nR S   -3.00  C  -1.25  A  065\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow 2
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Lbl_ErrorStatus.ForeColor
print Frm_Autorefractor.Txt_AutoSphere(1)
print Frm_Autorefractor.Txt_AutoSphere(0)
print Frm_Vistrel.Txt_Sphere_Right
serial "L S   -2.75  C  -1.00  A  115\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow 2
print Frm_Autorefractor.Lbl_ErrorStatus
# A whole message, in pieces a tick apart, passes.
serial "REICHERT RK600\r\nVD=12mm  PD 63\r\n\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow
serial "R S   -3.00  C  -1.25  A  065\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow
serial "L S   -2.75  C  -1.00  A  115\r\n\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow 2
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Axis_Left
# "M VD" anywhere drops the whole message as partial.
serial "REICHERT RK600\r\nR S   -1.00  C  -0.25  A  090\r\nL S   -1.00  C  -0.25  A  090\r\nM VD 12.0\r\n"
tick Frm_Autorefractor.Tmr_CountDataFlow 2
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Txt_AutoSphere(0)
print Frm_Vistrel.Txt_Sphere_Left
