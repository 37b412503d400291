#include "ScriptRunner.h"

#include "ScriptError.h"
#include "ScriptPlatform.h"
#include "StateReader.h"
#include "core/screen/Controls.h"
#include "core/screen/Form.h"

namespace vistrel::script {

ScriptRunner::ScriptRunner(FormLookup forms, ScriptPlatform& platform, std::function<void()> start)
    : forms_(std::move(forms)), platform_(&platform), start_(std::move(start))
{
}

Control& ScriptRunner::control(const TargetRef& target, const char* what)
{
    const Resolved r = resolveTarget(target, forms_);
    if (!r.control)
        throw ScriptError("'" + target.text + "' is not " + what);
    return *r.control;
}

void ScriptRunner::run(const Statement& st)
{
    switch (st.command) {
    case Command::Start:
        platform_->setCommandLine(st.value.value_or(""));
        if (start_)
            start_();
        return;
    case Command::Set:
        set(st);
        return;
    case Command::Check: {
        Control& c = control(st.target, "a check box");
        if (c.kind() != ControlKind::CheckBox)
            throw ScriptError("'" + st.target.text + "' is not a check box");
        static_cast<CheckBox&>(c).setValue(*st.value == "1" ? 1 : 0);
        return;
    }
    case Command::Select: {
        Control& c = control(st.target, "an option button");
        if (c.kind() != ControlKind::OptionButton)
            throw ScriptError("'" + st.target.text + "' is not an option button");
        static_cast<OptionButton&>(c).select();
        return;
    }
    case Command::Click:
        click(st, false);
        return;
    case Command::DblClick:
        click(st, true);
        return;
    case Command::Call: {
        Form& form = resolveForm(st.target.form, forms_);
        const std::function<void()>* op = form.operation(st.target.name);
        if (!op)
            throw ScriptError("form '" + st.target.form + "' has no operation '" + st.target.name + "'");
        if (*op)
            (*op)();
        return;
    }
    case Command::Answer: {
        Control& button = control(st.target, "a control");
        platform_->queueAnswer(button.form(), button);
        return;
    }
    case Command::Stay:
        platform_->queueStay(resolveForm(st.target.form, forms_));
        return;
    case Command::Serial:
        platform_->scriptSerialPort().receive(*st.value);
        return;
    case Command::Tick: {
        Control& c = control(st.target, "a timer");
        if (c.kind() != ControlKind::Timer)
            throw ScriptError("'" + st.target.text + "' is not a timer");
        for (int i = 0, n = st.number.value_or(1); i < n; ++i)
            static_cast<Timer&>(c).fire();
        return;
    }
    case Command::Print:
        print(st);
        return;
    }
}

void ScriptRunner::set(const Statement& st)
{
    const Resolved r = resolveTarget(st.target, forms_);
    if (r.variable) {
        r.variable->set(r.row, *st.value);
        return;
    }
    if (r.control && r.control->kind() == ControlKind::TextBox) {
        static_cast<TextBox*>(r.control)->setText(*st.value);
        return;
    }
    if (r.control && r.control->kind() == ControlKind::ComboBox) {
        static_cast<ComboBox*>(r.control)->setText(*st.value);
        return;
    }
    throw ScriptError("'" + st.target.text + "' is not a text box, combo box or variable");
}

void ScriptRunner::click(const Statement& st, bool twice)
{
    Control& c = control(st.target, "a control");
    if (c.kind() == ControlKind::Grid && st.number) {
        // A person's click on a cell: the grid moves there, then the click.
        auto& grid = static_cast<Grid&>(c);
        if (!st.column)
            throw ScriptError("a grid's cell takes a row and a column: '" + st.target.text + "'");
        if (*st.number >= grid.rows() || *st.column >= grid.cols())
            throw ScriptError("cell (" + std::to_string(*st.number) + "," + std::to_string(*st.column) +
                              ") is outside the grid '" + st.target.text + "'");
        grid.moveTo(*st.number, *st.column);
    } else if (st.number) {
        if (c.kind() != ControlKind::ListBox)
            throw ScriptError("only a list takes a row, and a grid a row and a column: '" + st.target.text + "'");
        if (st.column)
            throw ScriptError("a list takes a row, not a column: '" + st.target.text + "'");
        auto& list = static_cast<ListBox&>(c);
        if (*st.number >= list.listCount())
            throw ScriptError("row " + std::to_string(*st.number) + " is outside the list '" + st.target.text +
                              "' of " + std::to_string(list.listCount()) + " rows");
        list.setListIndex(*st.number);
    }
    if (twice)
        c.dblClick();
    else
        c.click();
}

void ScriptRunner::print(const Statement& st)
{
    const Resolved r = resolveTarget(st.target, forms_);
    for (const std::string& line : describeTarget(st.target, r))
        platform_->output().line(line);
}

}  // namespace vistrel::script
