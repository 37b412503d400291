#pragma once

#include "platform/DateTime.h"

#include <string>
#include <string_view>

namespace vistrel {

class Frm_Vistrel;
class FileHandles;

// The frame the four reports share. The report file is deleted and opened
// anew for appending, so each report stands alone in the one file; lines end
// in a carriage return and line feed, as in every file the station writes.
// Once closed, the file is handed to the system's text viewer ("Notepad.exe"
// and the file: Notepad on Windows, the desktop's viewer for text elsewhere)
// and the station goes on without waiting. A file that can't be written is
// passed over without a word.
class ReportFrame {
public:
    explicit ReportFrame(Frm_Vistrel& v);
    ~ReportFrame();
    ReportFrame(const ReportFrame&) = delete;
    ReportFrame& operator=(const ReportFrame&) = delete;

    // Text that stays on the current line: entries printed side by side.
    void print(std::string_view text);
    // The current line with text as its end.
    void printLine(std::string_view text);
    // Closes the file and starts the text viewer on it.
    void show();

    // "2026-11-21 10:00:00": the date and time behind "As of: ".
    static std::string AsOf(const DateTime& when);

private:
    Frm_Vistrel& v_;
    FileHandles& files_;
    int handle_ = 0;
    bool shown_ = false;
    std::string line_;
};

}  // namespace vistrel
