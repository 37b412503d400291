// The options file as the start-up reads it: every record reaches the
// screens through their handlers, an unknown preset, match, reading or
// model record tells its box and ends the station, and a bad port number is
// told and passed over. Whatever the file holds, the station either reads
// it within its tables or ends through its platform.

#include "FuzzStation.h"

#include "autorefractor/Frm_Autorefractor.h"

using namespace vistrel::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("options");
    vistrel::Station& station = fixture.started();
    fixture.writeOptions(bytesOf(data, size));
    const bool read = fixture.run([&station](vistrel::Frm_Vistrel& v) {
        v.FirstLoad = true;  // as during the start-up
        v.ReadOptionsFile();
        station.autorefractor().PreparePort();
        v.FirstLoad = false;
    });
    if (read)
        checkTables(station.vistrel());
    return 0;
}
