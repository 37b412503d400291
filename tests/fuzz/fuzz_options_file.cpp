// The options file read at start-up: every record reaches the screens
// through their handlers, an unknown preset, match, reading or model
// record tells its box and ends the station, and a bad port number is told
// and passed over. Whatever the file holds, the station either comes up
// within its tables or ends through its platform.

#include "FuzzStation.h"

using namespace vistrel::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("options", goodOptions(), smallInventory());
    fixture.writeOptions(bytesOf(data, size));
    if (fixture.start())
        checkTables(fixture.station->vistrel());
    return 0;
}
