#include "ReportFrame.h"

#include "core/DateTexts.h"
#include "core/FileHandles.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <filesystem>
#include <system_error>

namespace vistrel {

ReportFrame::ReportFrame(Frm_Vistrel& v) : v_(v), files_(v.station().files())
{
    Platform& platform = v.station().platform();
    handle_ = files_.freeFile();
    v.ReportFileNum = static_cast<std::int16_t>(handle_);
    const std::string path = platform.nativePath(v.ReportFileName);
    std::error_code ignored;
    std::filesystem::remove(FsPath(path), ignored);
    files_.open(handle_, path, FileHandles::Mode::Append);
}

ReportFrame::~ReportFrame()
{
    if (!shown_)
        files_.close(handle_);
}

void ReportFrame::print(std::string_view text)
{
    line_.append(text);
}

void ReportFrame::printLine(std::string_view text)
{
    line_.append(text);
    files_.printLine(handle_, line_);
    line_.clear();
}

void ReportFrame::show()
{
    files_.close(handle_);
    shown_ = true;
    v_.station().platform().shell("Notepad.exe " + v_.ReportFileName);
}

std::string ReportFrame::AsOf(const DateTime& when)
{
    return ShortDateText(when) + " " + TimeText(when);
}

}  // namespace vistrel
