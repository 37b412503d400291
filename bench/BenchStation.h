#pragma once

#include "BenchFiles.h"
#include "NullDevices.h"
#include "core/Screens.h"
#include "core/Station.h"
#include "platform/Platform.h"

#include <filesystem>
#include <memory>
#include <string>

namespace vistrel::bench {

// A platform that answers everything at once and shows nothing.
class QuietPlatform : public Platform {
public:
    explicit QuietPlatform(std::filesystem::path root);

    void messageBox(const std::string&, const std::string&, MsgIcon) override {}
    void runModal(Form& form) override;
    void doEvents() override {}
    SerialPort& serialPort() override { return port_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {}; }
    void shell(const std::string&) override {}
    DateTime now() override { return {}; }
    std::string documentsFolder() override { return (root_ / "docs").string(); }
    std::string sharedDataFolder() override { return (root_ / "shared").string(); }
    std::string programFolder() override { return root_.string(); }
    std::string nativePath(const std::string& path) override { return path; }
    char pathSeparator() const override { return '/'; }
    void setFileAttributes(const std::string&, int) override {}
    std::string commandLine() override { return {}; }
    [[noreturn]] void endProcess() override;

private:
    std::filesystem::path root_;
    test::NullSerialPort port_{true};
    test::NullPrinter printer_;
};

// A station on prepared folders, started at once.
struct BenchStation {
    explicit BenchStation(const BenchFolders& folders);
    ~BenchStation();
    std::unique_ptr<QuietPlatform> platform;
    std::unique_ptr<Station> station;
    Frm_Vistrel& main() { return station->vistrel(); }
};

}  // namespace vistrel::bench
