#pragma once

#include <string>

namespace vistrel {

// The station names a few fixed places by drive letter ("C:\NetworkJournal",
// "C:\JournalFile.txt"). On a system without drive letters a path that
// starts with one lives under driveRoot, as "<driveRoot>/drive_c/...", and
// every backslash becomes a slash. Other paths are used as they stand.
std::string mapDriveLetterPath(const std::string& path, const std::string& driveRoot);

// "<driveRoot>/drive_c": where the root of a drive lives.
std::string driveRootFolder(const std::string& driveRoot, char drive);

bool hasDriveLetter(const std::string& path);

}  // namespace vistrel
