#pragma once

#include "DateTime.h"

#include <string>
#include <vector>

namespace vistrel {

class Form;
class SerialPort;
class Printer;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };

// Everything the station needs from outside itself. The window program
// implements it with the desktop toolkit, the script driver deterministically.
class Platform {
public:
    virtual ~Platform() = default;

    // A message box with one OK button.
    virtual void messageBox(const std::string& title, const std::string& text, MsgIcon icon) = 0;
    // Waits while a screen shown modally stays visible.
    virtual void runModal(Form& form) = 0;
    // Lets pending screen events (timers, clicks, port events) run.
    virtual void doEvents() = 0;

    virtual SerialPort& serialPort() = 0;
    virtual Printer& printer() = 0;
    virtual std::vector<std::string> printerNames() = 0;
    // Starts a program or opens a document, without waiting.
    virtual void shell(const std::string& what) = 0;
    // Starts a script file that a site placed beside the station's files
    // (a batch file on Windows, an executable file elsewhere) in its own
    // folder, without waiting; one that can't be started is let be. Where
    // shell() runs what it is given, that is all it takes.
    virtual void runScript(const std::string& path) { shell(path); }
    virtual DateTime now() = 0;

    // The user's documents folder, the folder shared by all users of the
    // machine ("" when there is none) and the program's own folder.
    virtual std::string documentsFolder() = 0;
    virtual std::string sharedDataFolder() = 0;
    virtual std::string programFolder() = 0;
    // Where a drive-letter path such as "C:\JournalFile.txt" lives here.
    virtual std::string nativePath(const std::string& path) = 0;
    // The separator of folder names in the paths the station builds.
    virtual char pathSeparator() const = 0;
    // Read-only (1) and hidden (2), where the file system has them.
    virtual void setFileAttributes(const std::string& path, int attributes) = 0;

    // The process's command line as the station sees it.
    virtual std::string commandLine() = 0;
    // Ends the process; never returns.
    [[noreturn]] virtual void endProcess() = 0;
};

}  // namespace vistrel
