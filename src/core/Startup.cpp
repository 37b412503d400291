// Start-up and end of the station.

#include "Numbers.h"
#include "Screens.h"
#include "Station.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "platform/SerialPort.h"

#include <filesystem>
#include <system_error>

namespace vistrel {

namespace fs = std::filesystem;

void Frm_Vistrel::Form_Load()
{
    // 1. Only once, whatever shows the screen again.
    if (VistrelFlag)
        return;
    VistrelFlag = true;
    FirstLoad = true;

    // 2.
    WizardFlashCounter = 0;
    WizardFlash = false;
    BlindRight = BlindLeft = DominantRight = DominantLeft = false;
    JumpBack = false;
    Practice_Loaded = false;
    Lbl_Recommendation.setVisible(false);
    RecommendationRunning = false;
    PracticePlayEnabled = false;
    InventoryNrBusy = false;
    LastInventoryNrText = "0";
    advisor().WizardLeftDone = false;
    advisor().WizardRightDone = false;

    // 3. Tolerances: defaults, and the working values from them.
    Max_Sphere_OverageValueDefault = "1.00";
    Max_Cylinder_OverageValueDefault = "1.00";
    Axis_DeviationValueDefault = "15";
    Max_CylinderValueDefault = ".5";
    Min_SphereValueDefault = "4.00";
    Txt_CutBackValueDefault = "0.25";
    Max_Sphere_OverageValue = Max_Sphere_OverageValueDefault;
    Max_Cylinder_OverageValue = Max_Cylinder_OverageValueDefault;
    Axis_DeviationValue = Axis_DeviationValueDefault;
    Max_CylinderValue = Max_CylinderValueDefault;
    Min_SphereValue = Min_SphereValueDefault;
    Txt_CutBackValue = Txt_CutBackValueDefault;

    // 4.
    ProgramFilesLocation = platform().programFolder();

    // 5.
    PublicMaximumEntries = 32000;
    PublicMaximumLocations = 32000;
    PublicSearchLength = 2000;
    PublicMaxMeasSaved = 2000;
    MeasurementsSaved = 0;
    SavePrescriptionYesNo = true;
    SavePrescriptionASK = true;
    SkipSearch = false;
    LeftToleranceMultiplier = 1.0;
    RightToleranceMultiplier = 1.0;

    // 6.
    autorefractor().Showing = false;
    removeReject().Showing = false;
    options().Showing = false;
    savePrescription().Showing = false;
    lensFrames().Showing = false;
    helpAreas().Showing = false;
    about().Showing = false;
    helpVarnRule().Showing = false;
    readingGlasses().Showing = false;

    // 7.
    TabIndexleft();

    // 8.
    NetworkJournalOfflineCounter = 1;
    NetworkJournalRefreshCounter = 5;
    autorefractor().CanonStep = 1;

    // 9. The data folder, made when missing.
    InventoryLocation = PathIn(GetMyDocumentsDirectory(), "Vistrel");
    if (!DirectoryExists(InventoryLocation)) {
        std::error_code ec;
        fs::create_directories(FsPath(platform().nativePath(InventoryLocation)), ec);
    }

    // 10.
    FlipLeftFirst = true;
    RightIsCutback = false;
    LeftIsCutback = false;
    ReportFileName = PathIn(InventoryLocation, "Total_Inventory_Report.txt");
    DeletedFileName = PathIn(InventoryLocation, "Total_Inventory_Deleted_Rejected.txt");
    UnMatchedFileName = PathIn(InventoryLocation, "Total_Inventory_UnMatched.txt");

    // 11.
    Lst_LeftInventory.clear();
    Lst_RightInventory.clear();
    LeftOnlyValue = false;
    RightOnlyValue = false;
    MatchBothValue = true;
    MatchReadingAlsoValue = 0;
    MatchReadingOnlyValue = 0;
    RefreshAddRemoveValue = 0;
    DiagnosticValue = 0;

    // 12.
    options().setHeight(9350);
    InventoryLoaded = false;
    lensFrames().MSF_GridLocked = Variant::boolean(true);
    CrLf = "\r\n";
    SaveInventoryCountdown = Variant(600);

    // 13.
    clearLensGrids();

    // 14.
    MatchBothValue = true;
    RightOnlyValue = false;
    LeftOnlyValue = false;
    JumpBack = true;

    // 15. Empty entry fields, left then right.
    Txt_Sphere_Left.setText("    ");
    Txt_Cylinder_Left.setText("     ");
    Txt_Axis_Left.setText("   ");
    Txt_Sphere_Equ_Left.setText("");
    Lbl_Left_Prescription.setCaption("");
    Txt_LeftReadingPower.setText("");
    Txt_LeftAdd.setText("    ");
    Lst_LeftSelection.clear();
    FoundListCount = 0;
    Txt_Sphere_Right.setText("    ");
    Txt_Cylinder_Right.setText("     ");
    Txt_Axis_Right.setText("   ");
    Txt_Sphere_Equ_Right.setText("");
    Lbl_Right_Prescription.setCaption("");
    Txt_RightReadingPower.setText("");
    Txt_RightAdd.setText("    ");
    Txt_PersonNumber.setText("1");

    // 16 to 18: the options file; on a first start the options screen
    // comes up, writes the file, and the reading starts over.
    ReadOptionsFile();

    // 19. The serial line; every failure is ignored.
    autorefractor().PreparePort();

    // 20.
    Lst_LeftSelection.clear();
    FirstLoad = false;

    // 21. The persons list loads the inventory and replays the journals.
    ListPersons();

    // 22.
    ListInventory();
}

void Frm_Vistrel::clearLensGrids()
{
    for (int g = 0; g <= 2; ++g) {
        Grid& grid = lensFrames().MSF_LensInventory(g);
        const int lastRow = g == 2 ? 80 : 49;
        for (int r = 1; r <= lastRow; ++r)
            for (int c = 1; c <= 13; ++c)
                grid.setTextMatrix(r, c, "000");
    }
}

void Frm_Vistrel::ExitProgram_Click()
{
    if (Filenum != 0)
        station().files().close(Filenum);
    platform().serialPort().setPortOpen(false);
    if (DiagnosticFileNum != 0)
        station().files().close(DiagnosticFileNum);
    platform().endProcess();
}

void Frm_Vistrel::Cmd_Sizer_Click()
{
    const std::int16_t wasWidth = ToIntegerOr(width(), 0);
    const std::int16_t wasHeight = ToIntegerOr(height(), 0);
    const std::int16_t wasLeft = ToIntegerOr(left(), 0);
    const std::int16_t wasTop = ToIntegerOr(top(), 0);
    setGeometry(0, 0, 14295, 10830);
    auto n = [](double v) { return Format(v, "###0"); };
    const std::string text = "Size was: " + n(wasWidth) + " wide x " + n(wasHeight) + " high" + CrLf
        + "         " + n(wasLeft) + " left " + n(wasTop) + " from top" + CrLf + CrLf + "Size now: " + n(width())
        + " wide x " + n(height()) + " high" + CrLf + "         " + n(left()) + " left " + n(top()) + " from top";
    platform().messageBox("Window size change.", text, MsgIcon::None);
}

void Frm_Vistrel::SetOptions_Click()
{
    ProgramOptionsFlag = true;
    options().show(true);
    ProgramOptionsFlag = false;
}

std::string Frm_Vistrel::GetMyDocumentsDirectory()
{
    return platform().documentsFolder();
}

bool Frm_Vistrel::DirectoryExists(const std::string& path)
{
    std::error_code ec;
    return fs::is_directory(FsPath(platform().nativePath(path)), ec);
}

bool Frm_Vistrel::FileExists(const std::string& path)
{
    std::error_code ec;
    const auto status = fs::status(FsPath(platform().nativePath(path)), ec);
    return !ec && fs::exists(status) && !fs::is_directory(status);
}

std::string Frm_Vistrel::PathIn(const std::string& folder, const std::string& name) const
{
    return folder + platform().pathSeparator() + name;
}

// The shared data folder of the machine, or the old fixed place when the
// platform names none, followed by the station's own folder.
std::string Frm_Vistrel::OptionsFolder()
{
    std::string shared = platform().sharedDataFolder();
    if (shared.empty())
        shared = "C:\\Documents and Settings\\All Users";
    const char sep = platform().pathSeparator();
    return shared + sep + "Application Data" + sep + "Vistrel";
}

}  // namespace vistrel
