#pragma once

#include "Controls.h"
#include "Form.h"
#include "Registry.h"
#include "Variant.h"
#include "../ScreensFwd.h"

namespace vistrel {

class Platform;

// A screen of the station, with short ways to the other screens: the
// screens read and write each other's fields directly, as they always have.
class Screen : public Form {
public:
    using Form::Form;

protected:
    Platform& platform() const;
    Frm_Vistrel& vistrel() const;
    Frm_ProgramOptions& options() const;
    Frm_Autorefractor& autorefractor() const;
    Frm_AutoReadings& autoReadings() const;
    Frm_Advisor& advisor() const;
    Frm_RemoveRejectInventory& removeReject() const;
    Frm_SavePrescription& savePrescription() const;
    Frm_LensFrames& lensFrames() const;
    Frm_ReadingGlasses& readingGlasses() const;
    Frm_HelpVarnRule& helpVarnRule() const;
    Frm_HelpAreas& helpAreas() const;
    Frm_About& about() const;
    Frm_CheckForUpdates& checkForUpdates() const;

    // Registers a handler or public operation under its name.
    void op(const std::string& name, std::function<void()> fn) { bindOp(name, std::move(fn)); }

    // A control's event goes to its handler, which is also registered as an
    // operation under its name, so that other screens and scripts reach it.
    void wireClick(Control& c, const std::string& handler, std::function<void()> fn)
    {
        c.onClick = fn;
        op(handler, std::move(fn));
    }
    void wireDblClick(Control& c, const std::string& handler, std::function<void()> fn)
    {
        c.onDblClick = fn;
        op(handler, std::move(fn));
    }
    void wireChange(TextBox& t, const std::string& handler, std::function<void()> fn)
    {
        t.onChange = fn;
        op(handler, std::move(fn));
    }
    template <typename T>
    void var(const std::string& name, T& v)
    {
        bindVar(name, bind::scalar(v));
    }
};

}  // namespace vistrel
