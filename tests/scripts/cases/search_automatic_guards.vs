start
check Frm_ProgramOptions.Chk_NoOverplus 0
check Frm_ProgramOptions.Chk_NoOverCylinder 0
check Frm_ProgramOptions.Chk_NoOverMinus 0
# While SkipSearch is up (as when the options screen is open), options and
# the both-eyes equivalent box start no search; the one-eye equivalent
# boxes search all the same.
set Frm_Vistrel.SkipSearch True
set Frm_Vistrel.Txt_Status no search
select Frm_Vistrel.Opt_Male
print Frm_Vistrel.Txt_Status
check Frm_Vistrel.Chk_NOEquivLeft 1
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.NOSphericalEquivalentLeft
print Frm_Vistrel.Chk_NOEquiv
set Frm_Vistrel.Txt_Status no search
check Frm_Vistrel.Chk_NOEquiv 1
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Chk_NOEquivRight
print Frm_Vistrel.NOSphericalEquivalentRight
print Frm_Vistrel.NOSphericalEquivalent
print Frm_ProgramOptions.Chk_NOSpherical_Equivalent
# Clearing one eye's box clears the both-eyes box, whose handler then
# stands back; the left eye keeps its setting.
set Frm_Vistrel.SkipSearch False
set Frm_Vistrel.Txt_Status no search
check Frm_Vistrel.Chk_NOEquivRight 0
print Frm_Vistrel.Txt_Status
print Frm_Vistrel.Chk_NOEquiv
print Frm_Vistrel.NOSphericalEquivalent
print Frm_Vistrel.NOSphericalEquivalentRight
print Frm_Vistrel.Chk_NOEquivLeft
print Frm_Vistrel.NOSphericalEquivalentLeft
# The lens options search when SkipSearch is down.
set Frm_Vistrel.Txt_Status no search
select Frm_Vistrel.Opt_LensSingle
print Frm_Vistrel.Txt_Status
# Reading only, turned off again: back to plain matching.
check Frm_Vistrel.Chk_OnlyBifocals 1
print Frm_Vistrel.MatchReadingOnlyValue
check Frm_Vistrel.Chk_OnlyBifocals 0
print Frm_Vistrel.MatchReadingOnlyValue
print Frm_Vistrel.MatchReadingAlsoValue
print Frm_ProgramOptions.Chk_MatchReadingOnly
