// "AutoRefractorReadings.txt", the station's history of measurements: one
// line per reading with what the main screen holds at that moment, and the
// menu entries that open the capture screen and the readings browser.

#include "Frm_AutoReadings.h"
#include "Frm_Autorefractor.h"
#include "ReadingsLine.h"
#include "core/DateTexts.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "platform/AppendFile.h"
#include "platform/Platform.h"

namespace vistrel {

void Frm_Vistrel::WriteAutorefractorPrescription()
{
    // 1, 2. These write the main screen's fields, with their handlers.
    if (Txt_PersonNumber.text().empty())
        Txt_PersonNumber.setText("00001");
    if (Val(Txt_Age.text()) > 99)
        Txt_Age.setText("99");

    auto line = [this] {
        const DateTime now = platform().now();
        return ReadingsLine({Txt_PersonNumber.text(), Txt_Age.text(), Txt_Sphere_Right.text(),
            Txt_Cylinder_Right.text(), Txt_Axis_Right.text(), Txt_Sphere_Left.text(), Txt_Cylinder_Left.text(),
            Txt_Axis_Left.text(), ShortDateText(now), TimeText(now)});
    };
    // 3, 4. The shared copy first; failures are silent, the reading stays
    // on the screen.
    if (options().Chk_EnableNetJournal.value() == 1)
        AppendFile::appendOneLine(
            platform().nativePath(PathIn(options().Txt_NetworkJournalPath.text(), ReadingsFileName)), line(),
            {.syncOnClose = false, .lockAgainstOtherWriters = true});
    AppendFile::appendOneLine(platform().nativePath(PathIn(InventoryLocation, ReadingsFileName)), line(),
        {.syncOnClose = true, .lockAgainstOtherWriters = false});
}

void Frm_Vistrel::AutoRefractorDataCapture_Click()
{
    Frm_Autorefractor& capture = autorefractor();
    capture.setTop(8475);
    capture.Showing = true;
    capture.show(true);
    capture.Showing = false;
}

void Frm_Vistrel::LoadPreviousAutorefractorMeasurements_Click()
{
    Frm_AutoReadings& browser = autoReadings();
    browser.Showing = true;
    browser.show(true);
    browser.Showing = false;
}

}  // namespace vistrel
