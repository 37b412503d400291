#pragma once

// A platform for tests: folders under a fresh temporary directory, a serial
// line that never opens, a printer that prints nowhere, message boxes kept
// in a list, and an end of the process that throws instead of exiting.

#include "NullDevices.h"
#include "core/screen/Control.h"
#include "core/screen/Form.h"
#include "platform/Platform.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <unistd.h>

namespace vistrel::test {

namespace fs = std::filesystem;

// A directory of its own, removed again with everything in it.
class TempDir {
public:
    explicit TempDir(const std::string& tag = "vistrel-unit")
    {
        static std::atomic<int> serial{0};
        path_ = fs::temp_directory_path()
            / (tag + "-" + std::to_string(::getpid()) + "-" + std::to_string(serial++));
        std::error_code ec;
        fs::remove_all(path_, ec);
        fs::create_directories(path_);
    }
    ~TempDir()
    {
        std::error_code ec;
        fs::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const fs::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    fs::path path_;
};

inline void writeFile(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// What the fake throws where the real platform would end the process.
struct ProcessEnded : std::runtime_error {
    ProcessEnded() : std::runtime_error("the station ended the process") {}
};

struct Box {
    std::string title;
    std::string text;
};

class FakePlatform : public Platform {
public:
    // All folders live below root; a path the station builds elsewhere
    // (a drive letter, a network share) is moved below root as well.
    explicit FakePlatform(fs::path root) : root_(std::move(root)) { fs::create_directories(root_ / "elsewhere"); }

    std::string docs() const { return (root_ / "docs").string(); }
    std::string shared() const { return (root_ / "shared").string(); }
    fs::path inventoryFile() const { return root_ / "docs" / "Vistrel" / "Total_Inventory.txt"; }
    fs::path optionsFile() const
    {
        return root_ / "shared" / "Application Data" / "Vistrel" / "Vistrel-Options.txt";
    }

    std::vector<Box> boxes;
    std::vector<std::string> modalForms;

    void messageBox(const std::string& title, const std::string& text, MsgIcon) override
    {
        boxes.push_back({title, text});
    }
    void runModal(Form& form) override
    {
        modalForms.push_back(form.name());
        if (Control* go = form.control("Cmd_Continue"))
            go->click();
        if (form.visible())
            form.hide();
    }
    void doEvents() override {}
    SerialPort& serialPort() override { return port_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {"Default"}; }
    void shell(const std::string&) override {}
    DateTime now() override { return {2026, 11, 21, 10, 0, 0}; }
    std::string documentsFolder() override { return docs(); }
    std::string sharedDataFolder() override { return shared(); }
    std::string programFolder() override { return (root_ / "program").string(); }
    std::string nativePath(const std::string& path) override
    {
        const std::string base = root_.string();
        if (path.compare(0, base.size(), base) == 0)
            return path;
        std::string tail;
        for (char c : path)
            tail.push_back(c == '\\' || c == '/' || c == ':' ? '_' : c);
        return (root_ / "elsewhere" / tail).string();
    }
    char pathSeparator() const override { return '/'; }
    void setFileAttributes(const std::string&, int) override {}
    std::string commandLine() override { return {}; }
    [[noreturn]] void endProcess() override { throw ProcessEnded(); }

private:
    fs::path root_;
    NullSerialPort port_;
    NullPrinter printer_;
};

}  // namespace vistrel::test
