#pragma once

#include "platform/AppendFile.h"

#include <string>

namespace vistrel {

class Platform;

// The stock grids append their records to this one fixed file, apart from
// the station's own journal; the replay reads it only where the two are one
// file. Where there are no drive letters the path lives under the shared
// folder, as every drive-letter path does.
inline constexpr const char* StockGridJournalPath = "C:\\JournalFile.txt";

// The grid journal opened for one save: whole lines, flushed to the disk
// when the save is done.
class StockGridJournal {
public:
    explicit StockGridJournal(Platform& platform);
    bool isOpen() const { return file_.isOpen(); }
    bool append(const std::string& line) { return file_.appendLine(line); }
    void close() { file_.close(); }

private:
    AppendFile file_;
};

}  // namespace vistrel
