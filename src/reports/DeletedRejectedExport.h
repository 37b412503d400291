#pragma once

#include "platform/DateTime.h"

#include <string>
#include <string_view>

namespace vistrel {

// Where the export of deleted and rejected pairs is kept before a new one is
// written: the date and time ("11-21-2026", "2-05-09-PM") are set in at the
// first "." of the whole name, be it in a folder's name; the copy then goes
// to a place that may not exist, and is lost.
std::string DeletedBackupName(std::string_view deletedFileName, const DateTime& now);

// The script a site may place beside the inventory to take the export away:
// "MoveDeletedInventory.bat" on Windows, "MoveDeletedInventory.sh" elsewhere.
extern const char* const SiteScriptName;

// Whether the site script at this path can be started: it is a file, and
// where files carry the right to run, one that may be run.
bool SiteScriptRunnable(const std::string& nativePath);

}  // namespace vistrel
