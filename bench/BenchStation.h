#pragma once

#include "BenchFiles.h"
#include "core/Screens.h"
#include "core/Station.h"
#include "platform/Platform.h"
#include "platform/Printer.h"
#include "platform/SerialPort.h"

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
    class Port : public SerialPort {
        bool openPort() override { return true; }
        void closePort() override {}
        bool isOpen() const override { return true; }
        std::string readAll() override { return {}; }
        void write(const std::string&) override {}
    };
    class NoPrinter : public Printer {
        void setFontName(const std::string&) override {}
        void setFontSize(double) override {}
        void setFontBold(bool) override {}
        void setFontUnderline(bool) override {}
        void print(const std::string&, bool) override {}
        void newPage() override {}
        void endDoc() override {}
        bool choose(const std::string&) override { return false; }
    };
    std::filesystem::path root_;
    Port port_;
    NoPrinter printer_;
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
