// The export of what has left the stock or been refused, in the record
// format of the inventory file, for work outside the station; then the
// site's script that takes it away.

#include "DeletedRejectedExport.h"

#include "core/FileHandles.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace vistrel {

namespace fs = std::filesystem;

#ifdef _WIN32
const char* const SiteScriptName = "MoveDeletedInventory.bat";
#else
const char* const SiteScriptName = "MoveDeletedInventory.sh";
#endif

namespace {

// Each of the first `count` occurrences of `from` becomes `to`.
std::string replaceFirst(std::string text, char from, char to, int count)
{
    for (char& c : text)
        if (count > 0 && c == from) {
            c = to;
            --count;
        }
    return text;
}

}  // namespace

std::string DeletedBackupName(std::string_view deletedFileName, const DateTime& now)
{
    // The date as "m/d/yyyy" and the time as "h:mm:ss AM/PM", their
    // separators then turned into "-" so that they can stand in a file name.
    const std::string date = replaceFirst(
        std::to_string(now.month) + "/" + std::to_string(now.day) + "/" + std::to_string(now.year), '/', '-', 2);
    const int hour = now.hour % 12 == 0 ? 12 : now.hour % 12;
    std::string time = std::to_string(hour) + ":" + Format(now.minute, "00") + ":" + Format(now.second, "00")
        + (now.hour < 12 ? " AM" : " PM");
    time = replaceFirst(replaceFirst(time, ':', '-', 2), ' ', '-', 1);

    const size_t dot = deletedFileName.find('.');
    const std::string_view head = deletedFileName.substr(0, dot);
    const std::string_view tail = dot == std::string_view::npos ? std::string_view{} : deletedFileName.substr(dot);
    return std::string(head) + "-" + date + "-" + time + std::string(tail);
}

bool SiteScriptRunnable(const std::string& nativePath)
{
    std::error_code ec;
    const fs::file_status status = fs::status(FsPath(nativePath), ec);
    if (ec || !fs::is_regular_file(status))
        return false;
#ifdef _WIN32
    return true;
#else
    const fs::perms exec = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    return (status.permissions() & exec) != fs::perms::none;
#endif
}

void Frm_Vistrel::SaveDeletedRejectedInventory_Click()
{
    // 1, 2. The old export is kept under a name with the date and time, and
    // deleted whether or not the copy could be made.
    const std::string current = platform().nativePath(DeletedFileName);
    std::error_code ignored;
    fs::copy_file(FsPath(current), FsPath(platform().nativePath(DeletedBackupName(DeletedFileName, platform().now()))),
        fs::copy_options::overwrite_existing, ignored);
    fs::remove(FsPath(current), ignored);

    // 3 to 6. One record per pair removed or refused: the bag number is
    // negative for a refused pair still in stock, and field 16 carries the
    // gender and ten times the rejections, as the inventory file has it.
    FileHandles& files = station().files();
    DeletedFileNum = static_cast<std::int16_t>(files.freeFile());
    files.open(DeletedFileNum, current, FileHandles::Mode::Append);
    const auto flag = [](bool set) { return std::string(set ? "1" : "0"); };
    for (size_t r = 0; r < Inv_Number.size(); ++r) {
        if (!Inv_Removed[r] && Inv_RejectCount[r] <= 0)
            continue;
        const int number = Inv_Removed[r] ? Inv_Number[r] : -Inv_Number[r];
        const std::string line = StrTrimmed(number) + "," + StrTrimmed(Inv_LeftSphere[r]) + ","
            + StrTrimmed(Inv_LeftCylinder[r]) + "," + StrTrimmed(Inv_LeftAxis[r]) + "," + StrTrimmed(Inv_LeftAdd[r])
            + "," + StrTrimmed(Inv_RightSphere[r]) + "," + StrTrimmed(Inv_RightCylinder[r]) + ","
            + StrTrimmed(Inv_RightAxis[r]) + "," + StrTrimmed(Inv_RightAdd[r]) + "," + flag(Inv_Sunglasses[r]) + ","
            + flag(Inv_Reading[r]) + "," + flag(Inv_SpareFlag[r]) + "," + flag(Inv_Progressive[r]) + ","
            + flag(Inv_Bifocal[r]) + "," + Inv_PD[r] + "," + StrTrimmed(Inv_Gender[r] + 10 * Inv_RejectCount[r])
            + "," + Inv_Comment[r] + "," + Inv_Extra1[r] + "," + Inv_Extra2[r];
        files.printLine(DeletedFileNum, line);
    }
    files.close(DeletedFileNum);
    platform().messageBox("The Deleted / Rejected Inventory File has been created.",
        "  The Deleted / Rejected Inventory File named: Total_Inventory_Deleted_Rejected.txt" + CrLf + "\n"
            + "  has been created in: " + InventoryLocation,
        MsgIcon::Information);

    // 7. The station brings no such script; where a site has placed one, it
    // is started and left to run.
    const std::string script = PathIn(InventoryLocation, SiteScriptName);
    if (SiteScriptRunnable(platform().nativePath(script)))
        platform().runScript(script);
}

}  // namespace vistrel
