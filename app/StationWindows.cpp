#include "StationWindows.h"

namespace vistrel::qt {

StationWindows::StationWindows(const std::vector<Form*>& forms, Form& mainForm, const Metrics& metrics)
{
    windows_.push_back(std::make_unique<FormWindow>(mainForm, FormWindow::Kind::MainWindow, metrics));
    main_ = windows_.front().get();
    for (Form* form : forms)
        if (form != &mainForm)
            windows_.push_back(
                std::make_unique<FormWindow>(*form, FormWindow::Kind::Dialog, metrics, main_->window()));
    // The main screen's start touches every other screen, which loads it:
    // their timers (the serial line's look at its buffer) run from then on,
    // shown or not.
    QObject::connect(main_, &FormWindow::timersActivated, main_, [this] {
        for (const auto& w : windows_)
            w->activateTimers();
    });
}

StationWindows::~StationWindows()
{
    // Dialogs before the main window that owns their windows.
    while (!windows_.empty())
        windows_.pop_back();
}

FormWindow* StationWindows::windowFor(const Form& form) const
{
    for (const auto& w : windows_)
        if (&w->form() == &form)
            return w.get();
    return nullptr;
}

FormWindow* StationWindows::windowFor(const std::string& formName) const
{
    for (const auto& w : windows_)
        if (w->form().name() == formName)
            return w.get();
    return nullptr;
}

}  // namespace vistrel::qt
