// The file of unmatched measurements, for work outside the station: one line
// per saved measurement, plain numbers separated by commas.

#include "core/FileHandles.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <system_error>

namespace vistrel {

void Frm_Vistrel::SaveUNMatchedMeasurementsFile_Click()
{
    FileHandles& files = station().files();
    UnMatchedFileNum = static_cast<std::int16_t>(files.freeFile());
    const std::string path = platform().nativePath(UnMatchedFileName);
    std::error_code ignored;
    std::filesystem::remove(FsPath(path), ignored);
    files.open(UnMatchedFileNum, path, FileHandles::Mode::Append);

    // Each eye as sphere, cylinder, axis and the distance between the
    // equivalent and the net reading power; the line ends in a comma.
    const auto eye = [](double sphere, double cylinder, double axis, double add, double equivalent) {
        return StrTrimmed(sphere) + "," + StrTrimmed(cylinder) + "," + StrTrimmed(axis) + ","
            + StrTrimmed(std::abs(equivalent - add)) + ",";
    };
    const int rows = std::min<int>(MeasurementsSaved, MeasurementRows);
    for (int n = 1; n <= rows; ++n) {
        const auto r = static_cast<size_t>(n - 1);
        files.printLine(UnMatchedFileNum,
            StrTrimmed(n) + ","
                + eye(Meas_LeftSphere[r], Meas_LeftCylinder[r], Meas_LeftAxis[r], Meas_LeftAdd[r],
                    Meas_LeftSphereEqu[r])
                + eye(Meas_RightSphere[r], Meas_RightCylinder[r], Meas_RightAxis[r], Meas_RightAdd[r],
                    Meas_RightSphereEqu[r]));
    }
    files.close(UnMatchedFileNum);

    platform().messageBox("The Unmatched Prescriptions File has been created.",
        "  The Unmatched Prescriptions File named:" + CrLf + "\n" + "  " + UnMatchedFileName + CrLf + "\n"
            + "  has been created in " + InventoryLocation,
        MsgIcon::Information);
}

}  // namespace vistrel
