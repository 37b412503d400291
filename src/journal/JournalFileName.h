#pragma once

#include <string>

namespace vistrel {

// The station reads its network journal as "Journalfile.txt" and writes it
// as "JournalFile.txt", two spellings that name one file where names are
// compared without regard to case. Where case counts, both must still reach
// one file: the file in the folder whose name matches without regard to
// case, preferring the spelling that is written, or a new file under that
// spelling when there is none.
std::string JournalFileIn(const std::string& nativeFolder, char separator, const std::string& spelling);

// The spelling every journal is written under.
inline const char* const JournalFileName = "JournalFile.txt";

}  // namespace vistrel
