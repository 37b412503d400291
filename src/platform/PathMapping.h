#pragma once

#include <string>

namespace vistrel {

// The station names a few fixed places by drive letter ("C:\NetworkJournal",
// "C:\JournalFile.txt"). On a system without drive letters a path that
// starts with one lives under driveRoot, as "<driveRoot>/drive_c/...", and
// every backslash becomes a slash. Other paths keep their place.
std::string mapDriveLetterPath(const std::string& path, const std::string& driveRoot);

}  // namespace vistrel
