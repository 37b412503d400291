#pragma once

#include "Output.h"
#include "ScriptSerialPort.h"
#include "TextPrinter.h"
#include "platform/Platform.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace vistrel {
class Control;
}

namespace vistrel::script {

struct PlatformSettings {
    std::string documentsFolder;
    std::string sharedFolder;
    std::string programFolder;
    std::optional<DateTime> frozenNow;  // the real local time when empty
};

// The station's outside world as a script plays it: deterministic, never
// waiting for a person. Message boxes, serial output and started programs
// become lines of output; modal screens are answered from the queue the
// script fills, or closed.
class ScriptPlatform : public Platform {
public:
    ScriptPlatform(Output& out, PlatformSettings settings);

    void messageBox(const std::string& title, const std::string& text, MsgIcon icon) override;
    void runModal(Form& form) override;
    void doEvents() override {}

    SerialPort& serialPort() override { return serial_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override { return {"Default"}; }
    void shell(const std::string& what) override;
    DateTime now() override;

    std::string documentsFolder() override { return settings_.documentsFolder; }
    std::string sharedDataFolder() override { return settings_.sharedFolder; }
    std::string programFolder() override { return settings_.programFolder; }
    std::string nativePath(const std::string& path) override;
    // The separator the station uses on this system, as the window program's.
    char pathSeparator() const override
    {
#ifdef _WIN32
        return '\\';
#else
        return '/';
#endif
    }
    void setFileAttributes(const std::string& path, int attributes) override;

    std::string commandLine() override { return commandLine_; }
    [[noreturn]] void endProcess() override;

    // What the script drives.
    void setCommandLine(std::string line) { commandLine_ = std::move(line); }
    // The next time `form` runs modally, `button` is clicked (first in, first out).
    void queueAnswer(Form& form, Control& button);
    // The next time `form` runs modally it stays up: the statements that
    // follow work it, and its own buttons close it. Queued with the answers.
    void queueStay(Form& form);
    ScriptSerialPort& scriptSerialPort() { return serial_; }
    TextPrinter& textPrinter() { return printer_; }
    Output& output() { return *out_; }

    // Runs where the process ends, after End. is written; the process exits
    // with 0 should it return. Tests replace it to stay alive.
    void setExitHook(std::function<void()> hook) { exitHook_ = std::move(hook); }

private:
    std::string withFolderNames(std::string text) const;
    bool inRunFolder(const std::string& path) const;

    Output* out_;
    PlatformSettings settings_;
    ScriptSerialPort serial_;
    TextPrinter printer_;
    std::string commandLine_;
    std::map<const Form*, std::deque<Control*>> answers_;
    std::function<void()> exitHook_;
};

// The date and time of "YYYY-MM-DD HH:MM:SS"; nothing when malformed.
std::optional<DateTime> parseDateTime(const std::string& text);

}  // namespace vistrel::script
