#pragma once

#include "QtPrinter.h"
#include "QtSerialPort.h"

#include "platform/Platform.h"

#include <QElapsedTimer>
#include <QStringList>

#include <functional>
#include <memory>

class QMessageBox;
class QWidget;

namespace vistrel::qt {

class SerialStatus;
class StationWindows;

// Something that watches the dialogs the station opens: the screenshot
// mode takes their pictures and closes them.
class DialogWatcher {
public:
    virtual ~DialogWatcher() = default;
    virtual void messageShown(QMessageBox& box) = 0;
    virtual void modalShown(Form& form, QWidget* window) = 0;
};

// The platform on the desktop, with Qt.
class QtPlatform : public Platform {
public:
    // arguments: the command line after the program name, the window
    // program's own options taken out.
    explicit QtPlatform(QStringList arguments = {});
    ~QtPlatform() override;

    // The station's windows; the main one gets the serial port's status line.
    void setWindows(StationWindows* windows);
    SerialStatus* serialStatus() const { return serialStatus_.get(); }
    QtSerialPort& qtSerialPort() { return serial_; }
    void setDialogWatcher(DialogWatcher* watcher) { watcher_ = watcher; }
    // The shortest time between two real passes of doEvents.
    void setEventPumpInterval(int ms) { pumpIntervalMs_ = ms; }

    void messageBox(const std::string& title, const std::string& text, MsgIcon icon) override;
    void runModal(Form& form) override;
    void doEvents() override;

    SerialPort& serialPort() override { return serial_; }
    Printer& printer() override { return printer_; }
    std::vector<std::string> printerNames() override;
    void shell(const std::string& what) override;
    void runScript(const std::string& path) override;
    DateTime now() override;

    std::string documentsFolder() override;
    std::string sharedDataFolder() override;
    std::string programFolder() override;
    std::string nativePath(const std::string& path) override;
    char pathSeparator() const override;
    void setFileAttributes(const std::string& path, int attributes) override;

    std::string commandLine() override;
    [[noreturn]] void endProcess() override;

    // Starts a program or opens a document; separate so tests can watch it.
    // Opening a document says whether a program took it.
    std::function<bool(const QString& file)> openDocument;
    std::function<void(const QString& command)> startProgram;
    // Starts a script file in its folder: through cmd on Windows, as the
    // program itself elsewhere.
    std::function<void(const QString& file)> startScript;

private:
    QWidget* activeWindow() const;

    QStringList arguments_;
    StationWindows* windows_ = nullptr;
    DialogWatcher* watcher_ = nullptr;
    QtSerialPort serial_;
    std::unique_ptr<SerialStatus> serialStatus_;
    QtPrinter printer_;
    QElapsedTimer pumpClock_;
    int pumpIntervalMs_ = 30;
};

// What a shell command asks for: a document to open (an existing file, or
// the file given to the text editor) or a command line to start.
struct ShellRequest {
    QString document;
    QString command;
};
ShellRequest parseShellRequest(const QString& what, const std::function<QString(const QString&)>& mapPath);

}  // namespace vistrel::qt
