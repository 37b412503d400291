#pragma once

#include "FileHandles.h"
#include "ScreensFwd.h"

#include <memory>
#include <string>
#include <vector>

namespace vistrel {

class Platform;
class Form;

// The whole station: its thirteen screens, created once and kept for the
// run, and the platform they talk to the outside through.
class Station {
public:
    explicit Station(Platform& platform);
    ~Station();
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;

    Platform& platform() const { return *platform_; }
    FileHandles& files() { return files_; }

    // Start-up: Form_Load of the main screen, then the screen is shown.
    void start();

    Form* form(const std::string& name) const;
    const std::vector<Form*>& forms() const { return forms_; }

    Frm_Vistrel& vistrel() const { return *vistrel_; }
    Frm_ProgramOptions& options() const { return *options_; }
    Frm_Autorefractor& autorefractor() const { return *autorefractor_; }
    Frm_AutoReadings& autoReadings() const { return *autoReadings_; }
    Frm_Advisor& advisor() const { return *advisor_; }
    Frm_RemoveRejectInventory& removeReject() const { return *removeReject_; }
    Frm_SavePrescription& savePrescription() const { return *savePrescription_; }
    Frm_LensFrames& lensFrames() const { return *lensFrames_; }
    Frm_ReadingGlasses& readingGlasses() const { return *readingGlasses_; }
    Frm_HelpVarnRule& helpVarnRule() const { return *helpVarnRule_; }
    Frm_HelpAreas& helpAreas() const { return *helpAreas_; }
    Frm_About& about() const { return *about_; }
    Frm_CheckForUpdates& checkForUpdates() const { return *checkForUpdates_; }

private:
    Platform* platform_;
    FileHandles files_;
    std::unique_ptr<Frm_Vistrel> vistrel_;
    std::unique_ptr<Frm_ProgramOptions> options_;
    std::unique_ptr<Frm_Autorefractor> autorefractor_;
    std::unique_ptr<Frm_AutoReadings> autoReadings_;
    std::unique_ptr<Frm_Advisor> advisor_;
    std::unique_ptr<Frm_RemoveRejectInventory> removeReject_;
    std::unique_ptr<Frm_SavePrescription> savePrescription_;
    std::unique_ptr<Frm_LensFrames> lensFrames_;
    std::unique_ptr<Frm_ReadingGlasses> readingGlasses_;
    std::unique_ptr<Frm_HelpVarnRule> helpVarnRule_;
    std::unique_ptr<Frm_HelpAreas> helpAreas_;
    std::unique_ptr<Frm_About> about_;
    std::unique_ptr<Frm_CheckForUpdates> checkForUpdates_;
    std::vector<Form*> forms_;
};

}  // namespace vistrel
