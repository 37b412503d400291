#pragma once

#include "FormWindow.h"

#include <memory>
#include <vector>

namespace vistrel::qt {

// The windows of all the station's screens: the main screen's first, the
// others as dialogs owned by it.
class StationWindows {
public:
    StationWindows(const std::vector<Form*>& forms, Form& mainForm, const Metrics& metrics);
    ~StationWindows();
    StationWindows(const StationWindows&) = delete;
    StationWindows& operator=(const StationWindows&) = delete;

    FormWindow& main() const { return *main_; }
    FormWindow* windowFor(const Form& form) const;
    FormWindow* windowFor(const std::string& formName) const;
    const std::vector<std::unique_ptr<FormWindow>>& all() const { return windows_; }

private:
    std::vector<std::unique_ptr<FormWindow>> windows_;
    FormWindow* main_ = nullptr;
};

}  // namespace vistrel::qt
