// The journals replayed over a small fixed inventory, the network journal
// on: as at the load (the local journal, then the network journal) and
// again by the refresh of the persons list. The input is the local journal; where
// it holds the separator line, what follows is the network journal, and
// without one the network folder has no journal, as when it is down.

#include "FuzzStation.h"

using namespace vistrel::fuzz;

namespace {

constexpr std::string_view Separator = "\n--network--\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("journal", true);
    vistrel::Frm_Vistrel& v = fixture.started().vistrel();
    static const ReplayedTables loaded(v);

    const std::string_view input = bytesOf(data, size);
    const size_t split = input.find(Separator);
    writeFile(fixture.folders.localJournal(), input.substr(0, split));
    std::error_code ignored;
    if (split != std::string_view::npos)
        writeFile(fixture.folders.networkJournal(), input.substr(split + Separator.size()));
    else
        std::filesystem::remove(fixture.folders.networkJournal(), ignored);

    loaded.restore(v);
    const bool replayed = fixture.run([](vistrel::Frm_Vistrel& station) {
        station.LoadJournalFile("LOCAL");
        station.LoadJournalFile("NETWORK");
    });
    if (!replayed)
        return 0;  // a bad measurement record may end the station
    checkTables(v);
    if (fixture.run([](vistrel::Frm_Vistrel& station) { station.Cmd_ListPersons_Click(); }))
        checkTables(v);
    return 0;
}
