#pragma once

#include "Target.h"

#include <functional>
#include <string>

namespace vistrel {
class Form;
class Control;
struct VarBinding;
}  // namespace vistrel

namespace vistrel::script {

using FormLookup = std::function<Form*(const std::string& name)>;

// What a target stands for: a control, a variable (with its row for a
// table, -1 otherwise), or a property of the screen itself (Caption,
// Visible, Left, Top, Width, Height) when no control or variable has that name.
struct Resolved {
    Form* form = nullptr;
    Control* control = nullptr;
    const VarBinding* variable = nullptr;
    int row = -1;
    std::string formProperty;
};

// Finds the target's screen and thing; throws ScriptError naming what is
// missing.
Resolved resolveTarget(const TargetRef& target, const FormLookup& forms);
Form& resolveForm(const std::string& name, const FormLookup& forms);

}  // namespace vistrel::script
