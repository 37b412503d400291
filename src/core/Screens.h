#pragma once

// All thirteen screens, for the code that reaches across them.
#include "core/Frm_About.h"
#include "core/Frm_CheckForUpdates.h"
#include "core/Frm_HelpAreas.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "autorefractor/Frm_AutoReadings.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/Frm_RemoveRejectInventory.h"
#include "matching/Frm_HelpVarnRule.h"
#include "reports/Frm_SavePrescription.h"
#include "wizard/Frm_Advisor.h"
