#pragma once

#include <string>
#include <vector>

namespace vistrel {

// The help documents: PDF files that stand beside the station's program
// (its ProgramFilesLocation) and open in the desktop's viewer. Each is made
// at build time from docs/help/<name>.md.
enum class HelpTopic {
    MissionDay,
    MainScreen,
    SearchResults,
    Wizard,
    FileMenu,
    ReportsMenu,
    InventoryFile,
    NetworkJournal,
    Autorefractor,
};

struct HelpDocument {
    HelpTopic topic;
    std::string file;     // "File_Dropdown_Help.pdf"
    std::string title;    // the caption of its button on the help screen
    std::string summary;  // one line beside that button
};

// All documents, in the order the help screen lists them.
const std::vector<HelpDocument>& HelpDocuments();
const HelpDocument& HelpDocumentFor(HelpTopic topic);

// The station's version as CMake sets it, "1.0.0".
std::string StationVersion();

}  // namespace vistrel
