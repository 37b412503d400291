# Reading glasses, loose lenses and frames stand behind the pairs. Each
# record uses up one table row. A reading power that isn't in the list
# overwrites the cell of the record before; a frame size that isn't in
# the list leaves its quantity to start the next record, here an empty
# pair with bag number 5.
start
print Frm_ReadingGlasses.Txt_NNN(0)
print Frm_ReadingGlasses.Txt_NNN(19)
print Frm_Vistrel.ReadingGlassesTotal
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(29,3)
print Frm_LensFrames.MSF_LensInventory(0).TextMatrix(1,1)
print Frm_LensFrames.MSF_LensInventory(1).TextMatrix(17,1)
print Frm_LensFrames.MSF_LensInventory(2).TextMatrix(33,2)
print Frm_LensFrames.MSF_LensInventory(2).TextMatrix(41,13)
print Frm_LensFrames.Txt_LensTotal(0)
print Frm_LensFrames.Txt_LensTotal(1)
print Frm_LensFrames.Txt_FrameAdult65
print Frm_LensFrames.Txt_FrameChild61
print Frm_Vistrel.InventoryCount
print Frm_Vistrel.Inv_Number(3)
print Frm_Vistrel.Inv_Number(12)
print Frm_Vistrel.Inv_Number(13)
print Frm_Vistrel.Lst_LeftInventory.ListCount
