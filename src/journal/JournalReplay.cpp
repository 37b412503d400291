// Replaying a journal over the freshly loaded tables. Records hold absolute
// states, so a replay only overwrites: replaying a journal twice gives the
// same tables, and of two journals the one read last wins.

#include "JournalRecords.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "core/Text.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/StockCells.h"
#include "platform/Platform.h"

namespace vistrel {

namespace {

enum class RecordKind { Reading, Lens, LensChild, Frames, FramesChild, Measurement, Dispensing };

// The kind of a record by its first field folded to upper case; anything
// that is no keyword is a dispensing record.
RecordKind recordKind(const std::string& first)
{
    if (UCaseEquals(first, "READING"))
        return RecordKind::Reading;
    if (UCaseEquals(first, "LENS"))
        return RecordKind::Lens;
    if (UCaseEquals(first, "LENSCHILD"))
        return RecordKind::LensChild;
    if (UCaseEquals(first, "FRAMES"))
        return RecordKind::Frames;
    if (UCaseEquals(first, "FRAMESCHILD"))
        return RecordKind::FramesChild;
    if (UCaseEquals(first, "MEASUREMENT"))
        return RecordKind::Measurement;
    return RecordKind::Dispensing;
}

}  // namespace

void Frm_Vistrel::LoadJournalFile(const std::string& word)
{
    FileHandles& files = station().files();

    // 1.
    const bool networkRun = word == "NETWORK";
    std::int16_t& handle = networkRun ? NetworkJournalFileNum : JournalFileNum;
    if (handle == 0)
        handle = static_cast<std::int16_t>(files.freeFile());
    if (networkRun)
        Lbl_NetworkJournalDown.setVisible(false);

    // 2, 3. A local journal that isn't there is a new station's.
    const std::string path = networkRun ? NetworkJournalFile(false) : LocalJournalFile();
    if (!files.open(handle, path, FileHandles::Mode::Input)) {
        if (networkRun)
            Lbl_NetworkJournalDown.setVisible(true);
        return;
    }
    if (networkRun)
        Lbl_NetworkJournalDown.setVisible(false);

    // 4, 5. A header counts as a record and is skipped.
    JournalOK = true;
    JournalBadPoint = 1;
    std::string first = Get_Record(handle);
    bool pending = !IsJournalHeader(first);
    if (pending)
        EOF_Found = false;

    ReplayCursor cursor;
    for (;;) {
        if (pending) {
            // 7, 8.
            if (!replayRecord(handle, first, cursor)) {
                // 9. The failure step: the tables keep what was replayed.
                if (networkRun)
                    Lbl_NetworkJournalDown.setVisible(true);
                files.close(handle);
                return;
            }
            if (EOF_Found) {
                files.close(handle);
                return;
            }
        }
        // 6. The count only feeds a message; it stops growing at its top
        // rather than ending a long journal's replay.
        if (JournalBadPoint < INT16_MAX)
            ++JournalBadPoint;
        EOF_Found = false;
        first = Get_Record(handle);
        pending = true;
    }
}

// One record by its kind; false where the station's tables refuse the
// record (a row beyond a table, a number too large for its column), which
// ends the replay.
bool Frm_Vistrel::replayRecord(std::int16_t handle, const std::string& first, ReplayCursor& cursor)
{
    const RecordKind kind = recordKind(first);
    Frm_LensFrames& lens = lensFrames();

    if (kind == RecordKind::Reading) {
        if (const int cell = ReadingCellOf(Get_Record(handle)); cell >= 0)
            cursor.readingCell = cell;
        readingGlasses().Txt_NNN[cursor.readingCell].setText(FormatText(Get_Record(handle), "000"));
        return true;
    }
    if (kind == RecordKind::Lens || kind == RecordKind::LensChild) {
        // No high-power grid here: a sphere beyond 6.00 keeps the row before.
        if (const int row = LensRowOf(FormatText(Get_Record(handle), "0.00")); row >= 0)
            cursor.lensRow = row;
        if (const int column = LensColumnOf(FormatText(Get_Record(handle), "0.00")); column >= 0)
            cursor.lensColumn = column;
        const std::string quantity = FormatText(Get_Record(handle), "000");
        const int grid = kind == RecordKind::Lens ? 0 : 1;
        if (cursor.lensRow >= 1 && cursor.lensColumn >= 1)
            lens.MSF_LensInventory(grid).setTextMatrix(cursor.lensRow, cursor.lensColumn, quantity);
        return true;
    }
    if (kind == RecordKind::Frames || kind == RecordKind::FramesChild) {
        // A size not in the list leaves the quantity to start the next record.
        if (TextBox* box = FrameBoxOf(lens, kind == RecordKind::FramesChild, Get_Record(handle)))
            box->setText(FormatText(Get_Record(handle), "000"));
        return true;
    }
    if (kind == RecordKind::Measurement)
        return replayMeasurement(handle);
    return replayDispensing(handle, first);
}

bool Frm_Vistrel::replayMeasurement(std::int16_t handle)
{
    // The count grows with every replay of a journal that holds
    // measurements; past the table's last row the replay ends.
    if (MeasurementsSaved == INT16_MAX)
        return false;
    ++MeasurementsSaved;
    if (MeasurementsSaved > MeasurementRows) {
        Get_Record(handle);
        return false;
    }
    const auto row = static_cast<size_t>(MeasurementsSaved - 1);
    for (auto* table : {&Meas_LeftSphere, &Meas_LeftCylinder, &Meas_LeftAxis, &Meas_LeftAdd, &Meas_LeftSphereEqu,
             &Meas_RightSphere, &Meas_RightCylinder, &Meas_RightAxis, &Meas_RightAdd, &Meas_RightSphereEqu})
        (*table)[row] = Val(Get_Record(handle));
    Meas_Written[row] = true;
    Txt_UnmatchedCount.setText(Str(MeasurementsSaved));

    // Kept as the stated reaction to a bad measurement record, though
    // nothing marks a journal bad.
    if (!JournalOK) {
        platform().messageBox(" Program is exiting.",
            "Measurement Record Number: " + Str(JournalBadPoint) + " is bad." + CrLf
                + "Program will exit.  Use Notepad to " + CrLf + "delete this record from file: " + CrLf + "     "
                + InventoryLocation + "\\journalFile.txt.",
            MsgIcon::Critical);
        platform().endProcess();
    }
    return true;
}

bool Frm_Vistrel::replayDispensing(std::int16_t handle, const std::string& first)
{
    const auto index = ToLong(Val(first));
    if (!index)
        return false;
    if (*index <= 0) {
        // Not a number, an empty line at the end: the rest is ignored.
        EOF_Found = true;
        return true;
    }
    const std::string flag = Get_Record(handle);
    const auto person = ToLong(Val(Get_Record(handle)));
    if (*index > InventoryRows || !person)
        return false;
    const auto row = static_cast<size_t>(*index - 1);
    Inv_PersonNumber[row] = *person;
    if (UCaseEquals(flag, "TRUE")) {
        Inv_Removed[row] = true;
    } else if (UCaseEquals(flag, "FALSE")) {
        Inv_Removed[row] = false;
    } else {
        const auto rejects = ToInteger(Val(flag));
        if (!rejects)
            return false;
        Inv_RejectCount[row] = *rejects;
    }
    // The measured values are for whoever reads the file by eye.
    for (int k = 0; k < 10; ++k)
        Get_Record(handle);
    return true;
}

}  // namespace vistrel
