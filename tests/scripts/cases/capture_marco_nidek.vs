# A Marco Nidek ARK-20/30 announces a result; the station asks for it on
# the line and hands over no reading until the result comes.
start
serial "\x01C**\x17\x04\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.buffer
print Frm_Vistrel.Txt_Sphere_Right
serial "\x01DRM\x02NO0012\x17OR-02.25-00.75180\x17OL+01.50-00.50090\x17PD63\x17\x04\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Txt_AutoReading
print Frm_Vistrel.Txt_ReadingNr
print Frm_Vistrel.Txt_Sphere_Right
print Frm_Vistrel.Txt_Cylinder_Right
print Frm_Vistrel.Txt_Axis_Right
print Frm_Vistrel.Txt_Sphere_Left
print Frm_Vistrel.Txt_Cylinder_Left
print Frm_Vistrel.Txt_Axis_Left
# An axis of 0 leaves its box empty: the reading is refused.
serial "\x01DRM\x02NO0013\x17OR-01.00-00.50000\x17OL-01.00-00.50010\x17\x04\r"
tick Frm_Autorefractor.Tmr_CountDataFlow 4
print Frm_Autorefractor.Lbl_ErrorStatus
print Frm_Autorefractor.Txt_AutoAxis(1)
print Frm_Vistrel.Txt_Sphere_Right
