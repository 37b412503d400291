#include "HelpDocuments.h"

#include <stdexcept>

namespace vistrel {

const std::vector<HelpDocument>& HelpDocuments()
{
    // Titles carry their keyboard letter; no two share one, nor "C" (Close).
    static const std::vector<HelpDocument> documents = {
        {HelpTopic::MissionDay, "Mission_Day_Help.pdf", "A &mission day",
            "Set-up, serving each person, giving out and taking back, the end of the day."},
        {HelpTopic::MainScreen, "Main_Screen_Help.pdf", "The main &screen",
            "What every part of the main screen is for."},
        {HelpTopic::SearchResults, "Search_Results_Help.pdf", "Search &results",
            "How to read the list of pairs found, and what a click on a pair does."},
        {HelpTopic::Wizard, "Prescription_Modification_Wizard_Help.pdf", "The &wizard",
            "The prescription modification wizard, for people with too few pairs."},
        {HelpTopic::FileMenu, "File_Dropdown_Help.pdf", "The &File menu",
            "Lists of pairs given out or refused, unmatched measurements, earlier readings."},
        {HelpTopic::ReportsMenu, "Reports_Dropdown_Help.pdf", "The R&eports menu",
            "Reports of bags given out, refused and free, and of people without a match."},
        {HelpTopic::InventoryFile, "Inventory_File_Help.pdf", "The &inventory file",
            "How Total_Inventory.txt is written, with examples."},
        {HelpTopic::NetworkJournal, "Network_Journal_Help.pdf", "Sharing a &journal",
            "Several stations serving from the same bags through a network folder."},
        {HelpTopic::Autorefractor, "Autorefractor_Help.pdf", "The &autorefractor",
            "Setting up each model, its port and line settings, and taking a reading."},
    };
    return documents;
}

const HelpDocument& HelpDocumentFor(HelpTopic topic)
{
    for (const HelpDocument& d : HelpDocuments())
        if (d.topic == topic)
            return d;
    throw std::logic_error("a help topic without a document");
}

std::string StationVersion()
{
    return std::to_string(VISTREL_VERSION_MAJOR) + "." + std::to_string(VISTREL_VERSION_MINOR) + "."
        + std::to_string(VISTREL_VERSION_PATCH);
}

}  // namespace vistrel
