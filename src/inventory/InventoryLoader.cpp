// Loading "Total_Inventory.txt" into the tables, once per run. The file is
// only ever read: what changes during a mission is replayed from the
// journals over the freshly loaded tables.

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "core/Text.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/InventoryRecordKind.h"
#include "inventory/StockCells.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

namespace vistrel {

void Frm_Vistrel::Get_Readings()
{
    FileHandles& files = station().files();
    Frm_ProgramOptions& opt = options();

    // 1, 2.
    const std::int16_t handle = static_cast<std::int16_t>(files.freeFile());
    const std::string inventoryFile = platform().nativePath(PathIn(InventoryLocation, "Total_Inventory.txt"));
    if (!files.open(handle, inventoryFile, FileHandles::Mode::Input) && DeviceNotReady(inventoryFile)) {
        platform().messageBox(
            "Vistrel", "Cannot open Total_Inventory.txt File, Must place one at: " + InventoryLocation, MsgIcon::None);
        platform().endProcess();
    }

    // 3, 4. The readings file and the diagnostic file exist from here on.
    JournalFileNum = static_cast<std::int16_t>(files.freeFile());
    if (opt.Chk_EnableNetJournal.value() == 1)
        NetworkJournalFileNum = static_cast<std::int16_t>(files.freeFile());
    AutoFileNum = static_cast<std::int16_t>(files.freeFile());
    if (files.open(AutoFileNum, platform().nativePath(PathIn(InventoryLocation, "AutoRefractorReadings.txt")),
            FileHandles::Mode::Append))
        files.close(AutoFileNum);
    DiagnosticFileNum = static_cast<std::int16_t>(files.freeFile());
    if (files.open(DiagnosticFileNum, platform().nativePath(PathIn(InventoryLocation, "DiagnosticFile.txt")),
            FileHandles::Mode::Append))
        files.close(DiagnosticFileNum);

    // 5, 6.
    Txt_Status.setText("Loading...");
    platform().doEvents();
    std::int16_t count = 0;
    ReadingGlassesTotal = 0;
    HighestInventoryNr = 0;
    int readingCell = 0;
    int lensGrid = 0, lensRowAt = 0, lensColumnAt = 0;
    Frm_ReadingGlasses& reading = readingGlasses();
    Frm_LensFrames& lens = lensFrames();
    const double highestAllowed = Val(opt.Txt_HighestInventoryNumber.text());
    std::string status;  // written for every record

    // 7 to 9.
    for (int i = 1;; ++i) {
        EOF_Found = false;
        const std::string first = Get_Record(handle);
        const auto row = static_cast<size_t>(i - 1);
        const InventoryRecordKind kind = InventoryRecordKindOf(first);
        if (kind == InventoryRecordKind::Reading) {
            if (const int r = ReadingCellOf(Get_Record(handle)); r >= 0)
                readingCell = r;
            TextBox& cell = reading.Txt_NNN[readingCell];
            cell.setText(FormatText(Get_Record(handle), "000"));
            if (auto sum = ToInteger(ReadingGlassesTotal + Val(cell.text())))
                ReadingGlassesTotal = *sum;
            reading.Txt_Total.setText(Format(ReadingGlassesTotal, "000"));
        } else if (kind == InventoryRecordKind::Lens || kind == InventoryRecordKind::LensChild) {
            lensGrid = kind == InventoryRecordKind::Lens ? 0 : 1;
            const std::string sphere = FormatText(Get_Record(handle), "0.00");
            if (const int r = LensRowOf(sphere); r >= 0) {
                lensRowAt = r;
            } else if (const int h = HighLensRowOf(sphere); h >= 0) {
                lensGrid = 2;
                lensRowAt = h;
            }
            if (const int c = LensColumnOf(FormatText(Get_Record(handle), "0.00")); c >= 0)
                lensColumnAt = c;
            const std::string quantity = FormatText(Get_Record(handle), "000");
            if (lensRowAt >= 1 && lensColumnAt >= 1)
                lens.MSF_LensInventory(lensGrid).setTextMatrix(lensRowAt, lensColumnAt, quantity);
        } else if (kind == InventoryRecordKind::Frames || kind == InventoryRecordKind::FramesChild) {
            // With a size not in the list the quantity becomes the next
            // record's first field.
            if (TextBox* box = FrameBoxOf(lens, kind == InventoryRecordKind::FramesChild, Get_Record(handle)))
                box->setText(FormatText(Get_Record(handle), "000"));
        } else {
            if (auto number = ToInteger(Val(first)))
                Inv_Number[row] = *number;
            const std::int16_t bag = Inv_Number[row];
            if (highestAllowed < bag) {
                EOF_Found = true;
            } else {
                if (bag >= 1 && bag <= InventoryRows)
                    Inv_LocationUsed[static_cast<size_t>(bag - 1)] = true;
                if (bag > HighestInventoryNr)
                    HighestInventoryNr = bag;
                auto integer = [&](std::vector<std::int16_t>& table) {
                    if (auto v = ToInteger(Val(Get_Record(handle))))
                        table[row] = *v;
                };
                auto flag = [&](std::vector<bool>& table) { table[row] = Val(Get_Record(handle)) != 0; };
                Inv_LeftSphere[row] = Val(Get_Record(handle));
                Inv_LeftCylinder[row] = Val(Get_Record(handle));
                integer(Inv_LeftAxis);
                Inv_LeftAdd[row] = Val(Get_Record(handle));
                Inv_RightSphere[row] = Val(Get_Record(handle));
                Inv_RightCylinder[row] = Val(Get_Record(handle));
                integer(Inv_RightAxis);
                Inv_RightAdd[row] = Val(Get_Record(handle));
                Inv_FieldsRead[row] = true;
                flag(Inv_Sunglasses);
                flag(Inv_Reading);
                flag(Inv_SpareFlag);
                flag(Inv_Progressive);
                flag(Inv_Bifocal);
                Inv_PD[row] = Get_Record(handle);
                Inv_Removed[row] = false;
                // Gender code plus ten times the rejections.
                const double genderAndRejects = Val(Get_Record(handle));
                if (genderAndRejects > 3) {
                    if (auto rejects = ToInteger(Int(genderAndRejects / 10)))
                        Inv_RejectCount[row] = *rejects;
                    if (auto gender = ToInteger(genderAndRejects - 10.0 * Inv_RejectCount[row]))
                        Inv_Gender[row] = *gender;
                } else if (auto gender = ToInteger(genderAndRejects)) {
                    Inv_Gender[row] = *gender;
                }
                Inv_Comment[row] = Get_Record(handle);
                Inv_Extra1[row] = Get_Record(handle);
                Inv_Extra2[row] = Get_Record(handle);
                Txt_Status.setText(JoinInto(status, " Loading... ", Str(i)));
                platform().doEvents();
                ++count;
                InventoryCount = Variant(count);
            }
        }
        if (EOF_Found || i >= InventoryRows) {
            InventoryCount = Variant(count);
            Txt_Status.setText("  Loaded: " + Str(count));
            platform().doEvents();
            files.close(handle);
            break;
        }
    }

    // 10 to 12.
    LoadJournalFile("LOCAL");
    if (opt.Chk_EnableNetJournal.value() == 1)
        LoadJournalFile("NETWORK");
    std::int16_t result = 0;
    lens.ComputeTotalLensFrames(0, result);
    lens.ComputeTotalLensFrames(1, result);
    reading.ComputeTotalReading(result);
    InventoryLoaded = true;
    PublicMaximumLocations = HighestInventoryNr;
}

}  // namespace vistrel
