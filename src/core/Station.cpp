#include "Station.h"

#include "Frm_About.h"
#include "Frm_CheckForUpdates.h"
#include "Frm_HelpAreas.h"
#include "Frm_ProgramOptions.h"
#include "Frm_Vistrel.h"
#include "autorefractor/Frm_AutoReadings.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/Frm_RemoveRejectInventory.h"
#include "matching/Frm_HelpVarnRule.h"
#include "reports/Frm_SavePrescription.h"
#include "wizard/Frm_Advisor.h"

namespace vistrel {

Station::Station(Platform& platform) : platform_(&platform)
{
    vistrel_ = std::make_unique<Frm_Vistrel>(*this);
    options_ = std::make_unique<Frm_ProgramOptions>(*this);
    autorefractor_ = std::make_unique<Frm_Autorefractor>(*this);
    autoReadings_ = std::make_unique<Frm_AutoReadings>(*this);
    advisor_ = std::make_unique<Frm_Advisor>(*this);
    removeReject_ = std::make_unique<Frm_RemoveRejectInventory>(*this);
    savePrescription_ = std::make_unique<Frm_SavePrescription>(*this);
    lensFrames_ = std::make_unique<Frm_LensFrames>(*this);
    readingGlasses_ = std::make_unique<Frm_ReadingGlasses>(*this);
    helpVarnRule_ = std::make_unique<Frm_HelpVarnRule>(*this);
    helpAreas_ = std::make_unique<Frm_HelpAreas>(*this);
    about_ = std::make_unique<Frm_About>(*this);
    checkForUpdates_ = std::make_unique<Frm_CheckForUpdates>(*this);
    forms_ = {vistrel_.get(), options_.get(), autorefractor_.get(), autoReadings_.get(), advisor_.get(),
        removeReject_.get(), savePrescription_.get(), lensFrames_.get(), readingGlasses_.get(),
        helpVarnRule_.get(), helpAreas_.get(), about_.get(), checkForUpdates_.get()};
}

Station::~Station() = default;

void Station::start()
{
    vistrel_->show();
}

Form* Station::form(const std::string& name) const
{
    for (Form* f : forms_)
        if (f->name() == name)
            return f;
    return nullptr;
}

}  // namespace vistrel
