# With nothing removed the deleted report has its heads, the two closing
# blank lines and a bare 0. It replaces the rejected report run before it in
# the same file.
start
click Frm_Vistrel.RejectedReport
click Frm_Vistrel.DeletedReport
