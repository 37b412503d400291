#pragma once

// What the fuzz targets that run the station share: a platform that
// answers nothing and ends by throwing, the station's folders under one
// temporary directory made once per process, small good options and
// inventory texts, one station started over them whose readers run again
// for each input, and a few checks of the tables that any read that came
// through must leave.

#include "NullDevices.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <unistd.h>

namespace vistrel::fuzz {

namespace fs = std::filesystem;

// Thrown where the station would end the process; the target catches it.
struct StationEnded {};

// Folders under one temporary directory; every question answered at once,
// every screen shown modally closed again.
class QuietPlatform : public Platform {
public:
    explicit QuietPlatform(fs::path root) : root_(std::move(root)) {}
    void messageBox(const std::string&, const std::string&, MsgIcon) override { ++boxes; }
    void runModal(Form& form) override { form.hide(); }
    void doEvents() override {}
    SerialPort& serialPort() override { return line_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {}; }
    void shell(const std::string&) override {}
    DateTime now() override { return {2026, 3, 14, 9, 30, 0}; }
    std::string documentsFolder() override { return (root_ / "docs").string(); }
    std::string sharedDataFolder() override { return (root_ / "shared").string(); }
    std::string programFolder() override { return root_.string(); }
    std::string nativePath(const std::string& path) override { return path; }
    char pathSeparator() const override { return '/'; }
    void setFileAttributes(const std::string&, int) override {}
    std::string commandLine() override { return {}; }
    [[noreturn]] void endProcess() override { throw StationEnded{}; }

    int boxes = 0;

private:
    fs::path root_;
    test::NullSerialPort line_;
    test::NullPrinter printer_;
};

// The folders of one process, removed when it ends normally.
class FuzzFolders {
public:
    explicit FuzzFolders(const std::string& tag)
        : root_(scratch() / ("vistrel-fuzz-" + tag + "-" + std::to_string(::getpid())))
    {
        std::error_code ec;
        fs::remove_all(root_, ec);
        fs::create_directories(vistrel());
        fs::create_directories(optionsFile().parent_path());
        fs::create_directories(network());
    }
    ~FuzzFolders()
    {
        std::error_code ec;
        fs::remove_all(root_, ec);
    }
    FuzzFolders(const FuzzFolders&) = delete;
    FuzzFolders& operator=(const FuzzFolders&) = delete;

    // Files written for every input are best kept in memory: on a disk,
    // truncating them costs more than the station's reading.
    static fs::path scratch()
    {
        std::error_code ec;
        if (!std::getenv("TMPDIR") && fs::is_directory("/dev/shm", ec))
            return "/dev/shm";
        return fs::temp_directory_path();
    }

    const fs::path& root() const { return root_; }
    fs::path vistrel() const { return root_ / "docs" / "Vistrel"; }
    fs::path network() const { return root_ / "net"; }
    fs::path optionsFile() const { return root_ / "shared" / "Application Data" / "Vistrel" / "Vistrel-Options.txt"; }
    fs::path inventoryFile() const { return vistrel() / "Total_Inventory.txt"; }
    fs::path localJournal() const { return vistrel() / "JournalFile.txt"; }
    fs::path networkJournal() const { return network() / "JournalFile.txt"; }

private:
    fs::path root_;
};

inline void writeFile(const fs::path& path, std::string_view bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// A plain station's 50 records: default tolerances, both eyes, no
// autorefractor, the network journal on or off in the given folder.
inline std::string goodOptions(bool networkJournal = false, const fs::path& networkFolder = "C:\\NetworkJournal")
{
    return "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
           "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,"
        + std::string(networkJournal ? "YES," : "NO,") + networkFolder.string() + ",0,Default,1,32000\r\n";
}

// Six pairs and a few stock records, enough for the lists and a search to
// have something to show.
inline const std::string& smallInventory()
{
    static const std::string text = "1,-1.25,-0.50,90,0,-1.00,-0.25,85,0,0,0,0,0,0,62,1,\"pair 1\",,\r\n"
                                    "2,-2.00,0.00,0,0,-2.25,-0.25,170,0,1,0,0,0,0,64,2,\"sun, dark\",,\r\n"
                                    "3,1.50,-0.75,45,2.00,1.25,-0.50,135,2.00,0,1,0,0,1,60,13,\"\",,\r\n"
                                    "5,-4.50,-1.50,180,0,-4.00,-1.25,5,0,0,0,0,1,0,66,2,plain,,\r\n"
                                    "7,0.25,-0.25,10,1.00,0.50,0.00,0,1.00,0,0,0,0,0,58,3,\"\",,\r\n"
                                    "9,-0.75,-2.00,95,0,-0.50,-2.25,80,0,0,0,1,0,0,63,21,\"progressive\",,\r\n"
                                    "READING,1.50,4\r\nLENS,-1.00,-0.50,2\r\nFRAMESCHILD,48,1\r\n";
    return text;
}

// A new station for every input when VISTREL_FUZZ_FRESH is set: exact, for
// a finding's input, but a few dozen inputs a second, as a new station
// builds its tables of 32000 rows. Otherwise a reader runs again on the
// station the last input left.
inline bool freshStations()
{
    static const bool fresh = std::getenv("VISTREL_FUZZ_FRESH") != nullptr;
    return fresh;
}

// Puts the inventory tables back as a new station has them before a load.
// A load writes a row per record, and every record takes at least a byte,
// so only the first `rows` rows can hold anything; the places used are
// marked by bag number, anywhere. Left out of the coverage, which would
// count every row.
__attribute__((no_sanitize("coverage"))) inline void clearTables(Frm_Vistrel& v, size_t rows)
{
    rows = std::min(rows, v.Inv_Number.size());
    const auto top = static_cast<std::ptrdiff_t>(rows);
    auto clearTop = [top](auto& table, auto value) { std::fill(table.begin(), table.begin() + top, value); };
    for (auto* t : {&v.Inv_Number, &v.Inv_LeftAxis, &v.Inv_RightAxis, &v.Inv_Gender, &v.Inv_RejectCount})
        clearTop(*t, std::int16_t{0});
    for (auto* t : {&v.Inv_LeftSphere, &v.Inv_LeftCylinder, &v.Inv_RightSphere, &v.Inv_RightCylinder, &v.Inv_LeftAdd,
             &v.Inv_RightAdd})
        clearTop(*t, 0.0);
    for (auto* t : {&v.Inv_FieldsRead, &v.Inv_Sunglasses, &v.Inv_Reading, &v.Inv_SpareFlag, &v.Inv_Progressive,
             &v.Inv_Bifocal, &v.Inv_Removed})
        clearTop(*t, false);
    for (auto* t : {&v.Inv_PD, &v.Inv_Comment, &v.Inv_Extra1, &v.Inv_Extra2})
        for (std::ptrdiff_t r = 0; r < top; ++r)
            (*t)[static_cast<size_t>(r)].clear();
    v.Inv_LocationUsed.assign(v.Inv_LocationUsed.size(), false);
}

// What a journal's replay writes over the loaded inventory, kept after a
// load and put back before the next replay: dispensings reach any row by
// bag number, measurements any row of theirs.
class ReplayedTables {
public:
    explicit ReplayedTables(const Frm_Vistrel& v)
        : personNumber_(v.Inv_PersonNumber), removed_(v.Inv_Removed), rejectCount_(v.Inv_RejectCount),
          measurementsSaved_(v.MeasurementsSaved)
    {
    }
    void restore(Frm_Vistrel& v) const
    {
        v.Inv_PersonNumber = personNumber_;
        v.Inv_Removed = removed_;
        v.Inv_RejectCount = rejectCount_;
        v.MeasurementsSaved = measurementsSaved_;
        v.Meas_Written.assign(v.Meas_Written.size(), false);
    }

private:
    std::vector<std::int32_t> personNumber_;
    std::vector<bool> removed_;
    std::vector<std::int16_t> rejectCount_;
    std::int16_t measurementsSaved_;
};

// The station's folders and files, a station started once over good ones,
// and the station's readers run again on it for each input.
class StationFixture {
public:
    // The good options keep the network journal on or off, in the
    // fixture's own network folder.
    explicit StationFixture(const std::string& tag, bool networkJournal = false)
        : folders(tag), platform(folders.root()), goodOptions_(goodOptions(networkJournal, folders.network())),
          goodInventory_(smallInventory())
    {
    }

    void writeOptions(std::string_view bytes) { writeFile(folders.optionsFile(), bytes); }
    void writeInventory(std::string_view bytes)
    {
        writeFile(folders.inventoryFile(), bytes);
        inventoryBytes_ = bytes.size();
    }

    // The station started over the good files, as at a mission's morning.
    // Made once; with VISTREL_FUZZ_FRESH, made anew for every input.
    Station& started()
    {
        if (station && !freshStations())
            return *station;
        station.reset();
        writeOptions(goodOptions_);
        writeInventory(goodInventory_);
        station = std::make_unique<Station>(platform);
        rowsLoaded_ = inventoryBytes_ + 1;
        if (!run([this](Frm_Vistrel&) { station->start(); }))
            std::abort();  // the good files must start a station
        return *station;
    }

    // One of the station's readers on the started station; false when it
    // ended the process. The handles it left open are closed, as the
    // process would have ended with them.
    template <class Reader> bool run(Reader read)
    {
        bool ended = false;
        try {
            read(station->vistrel());
        } catch (const StationEnded&) {
            ended = true;
        }
        for (int handle = 1; handle <= 32; ++handle)
            station->files().close(handle);
        return !ended;
    }

    // The inventory file as it is now loaded into cleared tables, with the
    // journals replayed over it, as the start-up does.
    bool loadInventory()
    {
        Frm_Vistrel& v = started().vistrel();
        clearTables(v, rowsLoaded_);
        rowsLoaded_ = inventoryBytes_ + 1;
        v.InventoryLoaded = false;
        return run([](Frm_Vistrel& station) { station.Get_Readings(); });
    }

    FuzzFolders folders;
    QuietPlatform platform;
    std::unique_ptr<Station> station;

private:
    std::string goodOptions_;
    std::string goodInventory_;
    size_t inventoryBytes_ = 0;
    size_t rowsLoaded_ = 0;
};

// What holds after any start that came through, however bad its files:
// the tables kept their size, the count fits them, and the stock lists
// name rows that were read. A break is reported and ends the run.
inline void checkTables(const Frm_Vistrel& v)
{
    auto fail = [](const char* what) {
        std::fprintf(stderr, "broken table: %s\n", what);
        std::abort();
    };
    const double count = v.InventoryCount.number();
    if (!(count >= 0 && count <= Frm_Vistrel::InventoryRows))
        fail("the inventory count is outside the tables");
    if (v.HighestInventoryNr > Frm_Vistrel::InventoryRows)
        fail("the highest bag number is beyond the tables");
    const size_t rows = Frm_Vistrel::InventoryRows;
    for (size_t size : {v.Inv_Number.size(), v.Inv_FieldsRead.size(), v.Inv_Comment.size(), v.Inv_Removed.size(),
             v.Inv_PersonNumber.size(), v.Inv_RejectCount.size(), v.Inv_LocationUsed.size()})
        if (size != rows)
            fail("an inventory table changed its size");
    if (v.Found_Number.size() != static_cast<size_t>(Frm_Vistrel::SearchRows))
        fail("the search table changed its size");
    if (v.Lst_LeftInventory.listCount() != v.Lst_RightInventory.listCount())
        fail("the two stock lists differ in length");
    for (int i = 0; i < v.Lst_LeftInventory.listCount(); ++i) {
        const auto data = v.Lst_LeftInventory.row(i).itemData;
        if (data < 1 || data > count || !v.Inv_FieldsRead[static_cast<size_t>(data - 1)])
            fail("a stock list row names a row that was not read");
    }
}

}  // namespace vistrel::fuzz
