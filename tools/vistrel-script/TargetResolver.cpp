#include "TargetResolver.h"

#include "ScriptError.h"
#include "core/screen/Form.h"

#include <array>
#include <string_view>

namespace vistrel::script {

namespace {

bool isFormProperty(const std::string& name)
{
    static constexpr std::array<std::string_view, 6> names = {"Caption", "Visible", "Left", "Top", "Width", "Height"};
    for (std::string_view n : names)
        if (n == name)
            return true;
    return false;
}

}  // namespace

Form& resolveForm(const std::string& name, const FormLookup& forms)
{
    Form* form = forms ? forms(name) : nullptr;
    if (!form)
        throw ScriptError("unknown form '" + name + "'");
    return *form;
}

Resolved resolveTarget(const TargetRef& target, const FormLookup& forms)
{
    Resolved r;
    r.form = &resolveForm(target.form, forms);
    const Form& form = *r.form;
    const std::string where = target.form + "." + target.name;

    if (target.index) {
        if ((r.control = form.control(target.name, *target.index)))
            return r;
        if (form.isControlArray(target.name))
            throw ScriptError("control array '" + where + "' has no element " + std::to_string(*target.index));
        if (form.control(target.name))
            throw ScriptError("'" + where + "' is not a control array: leave out the index");
    } else {
        if ((r.control = form.control(target.name)))
            return r;
        if (form.isControlArray(target.name))
            throw ScriptError("'" + where + "' is a control array: give an index");
    }

    if ((r.variable = form.variable(target.name))) {
        if (r.variable->table) {
            if (!target.index)
                throw ScriptError("'" + where + "' is a table: give a row");
            if (!r.variable->validIndex(*target.index))
                throw ScriptError("row " + std::to_string(*target.index) + " is outside the table '" + where +
                                  "' (" + std::to_string(r.variable->first) + " to " +
                                  std::to_string(r.variable->last) + ")");
            r.row = *target.index;
        } else if (target.index) {
            throw ScriptError("'" + where + "' is not a table or control array");
        }
        return r;
    }

    if (!target.index && isFormProperty(target.name)) {
        r.formProperty = target.name;
        return r;
    }
    throw ScriptError("form '" + target.form + "' has no control or variable '" + target.name + "'");
}

}  // namespace vistrel::script
