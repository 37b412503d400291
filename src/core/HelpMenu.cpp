// The Help menu and the main screen's help label: the help documents open in
// the desktop's viewer, the help, about and update screens come up.

#include "Frm_About.h"
#include "Frm_CheckForUpdates.h"
#include "Frm_HelpAreas.h"
#include "Frm_Vistrel.h"
#include "HelpDocuments.h"
#include "platform/Platform.h"

namespace vistrel {

void Frm_Vistrel::wireHelp()
{
    wireClick(HelpProgram, "HelpProgram_Click", [this] { HelpProgram_Click(); });
    wireClick(HelpReportsDropdown, "HelpReportsDropdown_Click", [this] { HelpReportsDropdown_Click(); });
    wireClick(HelpFileDropdown, "HelpFileDropdown_Click", [this] { HelpFileDropdown_Click(); });
    wireClick(HelpPrescriptionModificationWizard, "HelpPrescriptionModificationWizard_Click",
        [this] { HelpPrescriptionModificationWizard_Click(); });
    wireClick(TellAbout, "TellAbout_Click", [this] { TellAbout_Click(); });
    wireClick(UpdateProgram, "UpdateProgram_Click", [this] { UpdateProgram_Click(); });
    wireClick(Lbl_SearchDataEntryArea, "Lbl_SearchDataEntryArea_Click", [this] { Lbl_SearchDataEntryArea_Click(); });
}

// "&Help": the help screen, which lists every document.
void Frm_Vistrel::HelpProgram_Click()
{
    helpAreas().ShowScreen();
}

void Frm_Vistrel::HelpReportsDropdown_Click()
{
    ShowHelpDocument(HelpDocumentFor(HelpTopic::ReportsMenu).file);
}

void Frm_Vistrel::HelpFileDropdown_Click()
{
    ShowHelpDocument(HelpDocumentFor(HelpTopic::FileMenu).file);
}

void Frm_Vistrel::HelpPrescriptionModificationWizard_Click()
{
    ShowHelpDocument(HelpDocumentFor(HelpTopic::Wizard).file);
}

void Frm_Vistrel::TellAbout_Click()
{
    about().ShowScreen();
}

void Frm_Vistrel::UpdateProgram_Click()
{
    checkForUpdates().ShowScreen();
}

// The heading over the result list invites a click for help.
void Frm_Vistrel::Lbl_SearchDataEntryArea_Click()
{
    ShowHelpDocument(HelpDocumentFor(HelpTopic::SearchResults).file);
}

bool Frm_Vistrel::ShowHelpDocument(const std::string& fileName)
{
    const std::string path = PathIn(ProgramFilesLocation, fileName);
    if (!FileExists(path)) {
        platform().messageBox("Help document missing",
            "The help document " + fileName + " is not there." + CrLf + CrLf
                + "The station looks for its help documents in its program's folder:" + CrLf + "    "
                + ProgramFilesLocation + CrLf + CrLf
                + "Install the station again, or copy its help documents (the .pdf files) into that folder.",
            MsgIcon::Exclamation);
        return false;
    }
    platform().shell(path);
    return true;
}

}  // namespace vistrel
