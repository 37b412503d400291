// Writing the journal: every change of stock and every saved measurement
// goes to the station's own journal and, on a networked station, to the
// shared one. Each record is one line, appended whole and closed at once.

#include "JournalFileName.h"
#include "JournalRecords.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "platform/AppendFile.h"
#include "platform/Platform.h"

#include <algorithm>

namespace vistrel {

std::string Frm_Vistrel::LocalJournalFile()
{
    return platform().nativePath(PathIn(InventoryLocation, JournalFileName));
}

std::string Frm_Vistrel::NetworkJournalFile(bool forWriting)
{
    // Read as "Journalfile.txt", written as "JournalFile.txt": one file.
    const std::string folder = platform().nativePath(options().Txt_NetworkJournalPath.text());
    return JournalFileIn(folder, platform().pathSeparator(), forWriting ? JournalFileName : "Journalfile.txt");
}

void Frm_Vistrel::Journal_AddRemove()
{
    const auto index = ToLong(SelectedIndex.number());
    if (!index || *index < 1 || *index > InventoryRows)
        return;
    const auto row = static_cast<size_t>(*index - 1);
    const MeasuredEye left{LeftSphereRead.number(), LeftCylinderRead.number(), LeftAxisRead,
        LeftReadingPower.number(), LeftSphereEqu};
    const MeasuredEye right{RightSphereRead.number(), RightCylinderRead.number(), RightAxisRead,
        RightReadingPower.number(), RightSphereEqu};
    appendJournalRecord(DispensingRecord(*index, JournalAddFlag, Inv_PersonNumber[row], left, right));
}

void Frm_Vistrel::JournalMeasumentData()
{
    appendJournalRecord(MeasurementRecord({Txt_Sphere_Left.text(), Txt_Cylinder_Left.text(), Txt_Axis_Left.text(),
        Txt_LeftReadingPower.text(), Txt_Sphere_Equ_Left.text(), Txt_Sphere_Right.text(), Txt_Cylinder_Right.text(),
        Txt_Axis_Right.text(), Txt_RightReadingPower.text(), Txt_Sphere_Equ_Right.text()}));
}

void Frm_Vistrel::appendJournalRecord(std::string line)
{
    // One record, one line: a line end typed into a field would split it,
    // and a comma reads back as the same field boundary.
    std::replace_if(line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ',');

    // The local journal is the station's memory: it reaches the disk before
    // the change counts as done, and a failure is told at once.
    const std::string local = LocalJournalFile();
    std::string error;
    if (!AppendFile::appendOneLine(local, line, {.syncOnClose = true, .lockAgainstOtherWriters = false}, &error))
        platform().messageBox("Journal File Error!",
            "This change was NOT recorded in the journal file" + CrLf + "     " + local + CrLf + CrLf + "(" + error
                + ")." + CrLf + CrLf
                + "The station goes on with the change, but after a restart it will not know of it. "
                  "Check that the disk is not full and the file is not read-only, and note the change by hand.",
            MsgIcon::Critical);

    // The shared copy is best effort: a station keeps serving while the
    // network is down, and its records of that time stay local.
    if (options().Chk_EnableNetJournal.value() == 1)
        AppendFile::appendOneLine(NetworkJournalFile(true), line,
            {.syncOnClose = false, .lockAgainstOtherWriters = true});
}

}  // namespace vistrel
