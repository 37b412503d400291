// The journals replayed over a small fixed inventory: at start-up (the
// local journal, then the network journal where it is on) and again by the
// refresh of the persons list. The input is the local journal; where it
// holds the separator line, what follows is the network journal and the
// network journal is switched on.

#include "FuzzStation.h"

using namespace vistrel::fuzz;

namespace {

constexpr std::string_view Separator = "\n--network--\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("journal", goodOptions(), smallInventory());
    static const std::string networkOptions = goodOptions(true, fixture.folders.network());
    static const std::string localOptions = goodOptions();

    const std::string_view input = bytesOf(data, size);
    const size_t split = input.find(Separator);
    const bool networked = split != std::string_view::npos;
    fixture.writeOptions(networked ? networkOptions : localOptions);
    writeFile(fixture.folders.localJournal(), input.substr(0, split));
    std::error_code ignored;
    if (networked)
        writeFile(fixture.folders.networkJournal(), input.substr(split + Separator.size()));
    else
        std::filesystem::remove(fixture.folders.networkJournal(), ignored);

    if (!fixture.start())
        return 0;  // a bad measurement record may end the station
    vistrel::Frm_Vistrel& v = fixture.station->vistrel();
    checkTables(v);
    try {
        v.Cmd_ListPersons_Click();
    } catch (const StationEnded&) {
        return 0;
    }
    checkTables(v);
    return 0;
}
