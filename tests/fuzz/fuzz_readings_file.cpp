// The readings file as the station reads it back: the browser's rows, the
// reload of a row into both screens, and practice play's tables, over a
// file that can hold anything.

#include "FuzzStation.h"

#include "autorefractor/Frm_AutoReadings.h"

using namespace vistrel::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("readings");
    vistrel::Station& station = fixture.started();
    vistrel::Frm_Vistrel& v = station.vistrel();
    const fs::path folder = fixture.folders.vistrel();
    writeFile(folder / "AutoRefractorReadings.txt", bytesOf(data, size));

    // The browser's two lists, and for every other input a row brought back.
    vistrel::Frm_AutoReadings& browser = station.autoReadings();
    browser.Form_Activate();
    const int rows = browser.Lst_AutorefractorReadings.listCount();
    if (rows > 0 && size % 2 == 0) {
        browser.Lst_AutorefractorReadings.setListIndex(static_cast<int>(size % static_cast<size_t>(rows)));
        browser.Lst_AutorefractorReadings_Click();
    }

    // Practice play, from a fresh copy: for one input in eight, as it is
    // the slowest part.
    if (size % 8 != 1)
        return 0;
    std::error_code ignored;
    fs::remove(folder / "AutoRefractorReadings_Practice.txt", ignored);
    v.Practice_Loaded = false;
    v.Txt_Play_Person_Nr.setText("1");
    v.Txt_Play_Person_Nr.setText("2");
    return 0;
}
