// The readings file as the station reads it back: the browser's rows, the
// reload of a row into both screens, and practice play's tables, over a
// file that can hold anything.

#include "autorefractor/Frm_AutoReadings.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "platform/Platform.h"
#include "platform/Printer.h"
#include "platform/SerialPort.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class NoLine : public vistrel::SerialPort {
    bool openPort() override { return false; }
    void closePort() override {}
    bool isOpen() const override { return false; }
    std::string readAll() override { return {}; }
    void write(const std::string&) override {}
};

class NoPrinter : public vistrel::Printer {
    void setFontName(const std::string&) override {}
    void setFontSize(double) override {}
    void setFontBold(bool) override {}
    void setFontUnderline(bool) override {}
    void print(const std::string&, bool) override {}
    void newPage() override {}
    void endDoc() override {}
    bool choose(const std::string&) override { return false; }
};

// Folders under one temporary directory; every question answered at once.
class QuietPlatform : public vistrel::Platform {
public:
    explicit QuietPlatform(fs::path root) : root_(std::move(root)) {}
    void messageBox(const std::string&, const std::string&, vistrel::MsgIcon) override {}
    void runModal(vistrel::Form& form) override { form.hide(); }
    void doEvents() override {}
    vistrel::SerialPort& serialPort() override { return line_; }
    vistrel::Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {}; }
    void shell(const std::string&) override {}
    vistrel::DateTime now() override { return {}; }
    std::string documentsFolder() override { return (root_ / "docs").string(); }
    std::string sharedDataFolder() override { return (root_ / "shared").string(); }
    std::string programFolder() override { return root_.string(); }
    std::string nativePath(const std::string& path) override { return path; }
    char pathSeparator() const override { return '/'; }
    void setFileAttributes(const std::string&, int) override {}
    std::string commandLine() override { return {}; }
    [[noreturn]] void endProcess() override { throw std::runtime_error("the station ended"); }

private:
    fs::path root_;
    NoLine line_;
    NoPrinter printer_;
};

struct Fixture {
    fs::path root = fs::temp_directory_path() / ("vistrel-fuzz-readings-" + std::to_string(::getpid()));
    std::unique_ptr<QuietPlatform> platform;
    std::unique_ptr<vistrel::Station> station;

    Fixture()
    {
        fs::create_directories(root / "docs" / "Vistrel");
        fs::create_directories(root / "shared" / "Application Data" / "Vistrel");
        std::ofstream(root / "shared" / "Application Data" / "Vistrel" / "Vistrel-Options.txt", std::ios::binary)
            << "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
               "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
               "Default,1,32000\r\n";
        std::ofstream(root / "docs" / "Vistrel" / "Total_Inventory.txt", std::ios::binary)
            << "1,-1.25,-0.50,90,0,-1.00,-0.25,85,0,0,0,0,0,0,62,0,\"\",,\r\n";
        platform = std::make_unique<QuietPlatform>(root);
        station = std::make_unique<vistrel::Station>(*platform);
        station->start();
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Fixture fixture;
    vistrel::Frm_Vistrel& v = fixture.station->vistrel();
    const fs::path folder = fixture.root / "docs" / "Vistrel";
    {
        std::ofstream out(folder / "AutoRefractorReadings.txt", std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }

    // The browser's two lists, and the first rows brought back.
    vistrel::Frm_AutoReadings& browser = fixture.station->autoReadings();
    browser.Form_Activate();
    const int rows = browser.Lst_AutorefractorReadings.listCount();
    if (rows > 0) {
        browser.Lst_AutorefractorReadings.setListIndex(static_cast<int>(size % static_cast<size_t>(rows)));
        browser.Lst_AutorefractorReadings_Click();
    }

    // Practice play, from a fresh copy: every other input, as it is the
    // slower part.
    if (size % 2 == 0)
        return 0;
    std::error_code ignored;
    fs::remove(folder / "AutoRefractorReadings_Practice.txt", ignored);
    v.Practice_Loaded = false;
    v.Txt_Play_Person_Nr.setText(size % 2 ? "1" : "2");
    v.Txt_Play_Person_Nr.setText(size % 2 ? "2" : "1");
    return 0;
}
