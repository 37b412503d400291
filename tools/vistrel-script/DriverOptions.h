#pragma once

#include "platform/DateTime.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vistrel::script {

// The driver's command line:
// vistrel-script [--documents DIR] [--shared DIR] [--now "YYYY-MM-DD HH:MM:SS"] [--print-to FILE] SCRIPT
struct DriverOptions {
    std::optional<std::string> documents;
    std::optional<std::string> shared;
    std::optional<DateTime> now;
    std::optional<std::string> printTo;
    std::string script;  // a file, or "-" for standard input
};

// Throws std::invalid_argument with the reason for a bad command line.
DriverOptions parseDriverOptions(const std::vector<std::string>& args);

using Environment = std::function<std::optional<std::string>(const std::string& name)>;

// The folders when the command line names none: VISTREL_DOCUMENTS or
// VISTREL_SHARED, else the desktop's own places (the shared one with
// "/vistrel" appended); on Windows without HOME, the profile's Documents
// and LOCALAPPDATA's "vistrel", as the window program has them.
std::string defaultDocumentsFolder(const Environment& env);
std::string defaultSharedFolder(const Environment& env);

}  // namespace vistrel::script
