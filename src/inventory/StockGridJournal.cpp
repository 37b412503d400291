#include "StockGridJournal.h"

#include "platform/Platform.h"

namespace vistrel {

StockGridJournal::StockGridJournal(Platform& platform)
{
    file_.open(platform.nativePath(StockGridJournalPath), {.syncOnClose = true, .lockAgainstOtherWriters = false});
}

}  // namespace vistrel
