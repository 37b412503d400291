#include "StateReader.h"

#include "Escape.h"
#include "ScriptError.h"
#include "core/screen/Controls.h"
#include "core/screen/Form.h"
#include "core/screen/Registry.h"

#include <optional>

namespace vistrel::script {

namespace {

std::string yesNo(bool b) { return b ? "True" : "False"; }

std::string number(long long n) { return std::to_string(n); }

template <typename T>
const T* as(const Control& c, ControlKind kind)
{
    return c.kind() == kind ? static_cast<const T*>(&c) : nullptr;
}

// The value of a property that takes no arguments; nothing when the
// control doesn't have it.
std::optional<std::string> plainProperty(const Control& c, const std::string& p)
{
    if (p == "Caption")
        return escapeValue(c.caption());
    if (p == "Visible")
        return yesNo(c.visible());
    if (p == "Enabled")
        return yesNo(c.enabled());
    if (p == "Locked")
        return yesNo(c.locked());
    if (p == "BorderStyle")
        return number(c.borderStyle());
    if (p == "BackColor")
        return number(c.backColor());
    if (p == "ForeColor")
        return number(c.foreColor());
    if (p == "ToolTipText")
        return escapeValue(c.toolTipText());
    if (p == "Left")
        return number(c.left());
    if (p == "Top")
        return number(c.top());
    if (p == "Width")
        return number(c.width());
    if (p == "Height")
        return number(c.height());
    if (p == "TabIndex")
        return number(c.tabIndex());

    if (p == "Text") {
        if (auto* t = as<TextBox>(c, ControlKind::TextBox))
            return escapeValue(t->text());
        if (auto* cb = as<ComboBox>(c, ControlKind::ComboBox))
            return escapeValue(cb->text());
        if (auto* g = as<Grid>(c, ControlKind::Grid))
            return escapeValue(g->text());
        return std::nullopt;
    }
    if (p == "Value") {
        if (auto* cb = as<CheckBox>(c, ControlKind::CheckBox))
            return number(cb->value());
        if (auto* o = as<OptionButton>(c, ControlKind::OptionButton))
            return yesNo(o->value());
        return std::nullopt;
    }
    if (p == "Checked") {
        if (auto* m = as<Menu>(c, ControlKind::Menu))
            return yesNo(m->checked());
        return std::nullopt;
    }
    if (p == "ListCount") {
        if (auto* l = as<ListBox>(c, ControlKind::ListBox))
            return number(l->listCount());
        if (auto* cb = as<ComboBox>(c, ControlKind::ComboBox))
            return number(static_cast<long long>(cb->items().size()));
        return std::nullopt;
    }
    if (p == "ListIndex" || p == "TopIndex") {
        if (auto* l = as<ListBox>(c, ControlKind::ListBox))
            return number(p == "ListIndex" ? l->listIndex() : l->topIndex());
        return std::nullopt;
    }
    if (p == "Interval") {
        if (auto* t = as<Timer>(c, ControlKind::Timer))
            return number(t->interval());
        return std::nullopt;
    }
    if (auto* g = as<Grid>(c, ControlKind::Grid)) {
        if (p == "Rows")
            return number(g->rows());
        if (p == "Cols")
            return number(g->cols());
        if (p == "Row")
            return number(g->row());
        if (p == "Col")
            return number(g->col());
    }
    return std::nullopt;
}

// TextMatrix(r,c), CellBackColor(r,c), List(i), ItemData(i).
std::optional<std::string> indexedProperty(const Control& c, const TargetRef& t)
{
    const std::string& p = t.property;
    const std::vector<int>& a = t.propertyArgs;
    if (auto* g = as<Grid>(c, ControlKind::Grid); g && (p == "TextMatrix" || p == "CellBackColor")) {
        if (a.size() != 2)
            throw ScriptError(p + " takes a row and a column");
        if (a[0] < 0 || a[0] >= g->rows() || a[1] < 0 || a[1] >= g->cols())
            throw ScriptError("cell (" + std::to_string(a[0]) + "," + std::to_string(a[1]) + ") is outside the grid '" +
                              t.form + "." + t.name + "'");
        return p == "TextMatrix" ? escapeValue(g->textMatrix(a[0], a[1])) : number(g->cellBackColor(a[0], a[1]));
    }
    if (p != "List" && p != "ItemData")
        return std::nullopt;
    if (a.size() != 1)
        throw ScriptError(p + " takes one row");
    if (auto* l = as<ListBox>(c, ControlKind::ListBox)) {
        if (a[0] < 0 || a[0] >= l->listCount())
            throw ScriptError("row " + std::to_string(a[0]) + " is outside the list '" + t.form + "." + t.name + "'");
        return p == "List" ? escapeValue(l->row(a[0]).text) : number(l->row(a[0]).itemData);
    }
    if (auto* cb = as<ComboBox>(c, ControlKind::ComboBox); cb && p == "List") {
        if (a[0] < 0 || a[0] >= static_cast<int>(cb->items().size()))
            throw ScriptError("row " + std::to_string(a[0]) + " is outside the combo '" + t.form + "." + t.name + "'");
        return escapeValue(cb->items()[static_cast<size_t>(a[0])]);
    }
    return std::nullopt;
}

std::vector<std::string> describeControl(const std::string& target, const Control& c)
{
    switch (c.kind()) {
    case ControlKind::TextBox:
        return {target + "=" + escapeValue(static_cast<const TextBox&>(c).text())};
    case ControlKind::ComboBox:
        return {target + "=" + escapeValue(static_cast<const ComboBox&>(c).text())};
    case ControlKind::CheckBox:
        return {target + "=" + number(static_cast<const CheckBox&>(c).value())};
    case ControlKind::OptionButton:
        return {target + "=" + yesNo(static_cast<const OptionButton&>(c).value())};
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::CommandButton:
    case ControlKind::Menu:
        return {target + "=" + escapeValue(c.caption())};
    case ControlKind::Image:
        return {target + "=" + yesNo(c.visible())};
    case ControlKind::Timer:
        return {target + "=" + number(static_cast<const Timer&>(c).interval())};
    case ControlKind::ListBox: {
        const auto& list = static_cast<const ListBox&>(c);
        std::vector<std::string> lines{target + ".ListCount=" + number(list.listCount())};
        for (int r = 0; r < list.listCount(); ++r)
            lines.push_back(target + "(" + number(r) + ")=" + escapeValue(list.row(r).text) + "\t" +
                            number(list.row(r).itemData));
        return lines;
    }
    case ControlKind::Grid: {
        const auto& grid = static_cast<const Grid&>(c);
        std::vector<std::string> lines;
        for (int r = 0; r < grid.rows(); ++r) {
            std::string line = target + "(" + number(r) + ")=";
            for (int col = 0; col < grid.cols(); ++col) {
                if (col > 0)
                    line += '\t';
                line += escapeValue(grid.textMatrix(r, col));
            }
            lines.push_back(std::move(line));
        }
        return lines;
    }
    }
    return {};
}

std::string formProperty(const Form& f, const std::string& p)
{
    if (p == "Caption")
        return escapeValue(f.caption());
    if (p == "Visible")
        return yesNo(f.visible());
    if (p == "Left")
        return number(f.left());
    if (p == "Top")
        return number(f.top());
    if (p == "Width")
        return number(f.width());
    return number(f.height());
}

}  // namespace

std::vector<std::string> describeTarget(const TargetRef& target, const Resolved& resolved)
{
    if (!resolved.formProperty.empty()) {
        if (!target.property.empty())
            throw ScriptError("'" + target.form + "." + target.name + "' has no properties");
        return {target.text + "=" + formProperty(*resolved.form, resolved.formProperty)};
    }
    if (resolved.variable) {
        if (!target.property.empty())
            throw ScriptError("variable '" + target.form + "." + target.name + "' has no properties");
        return {target.text + "=" + escapeValue(printedValue(resolved.variable->get(resolved.row)))};
    }
    const Control& c = *resolved.control;
    if (target.property.empty())
        return describeControl(target.text, c);
    const std::optional<std::string> value =
        target.propertyHasArgs ? indexedProperty(c, target) : plainProperty(c, target.property);
    if (!value)
        throw ScriptError("'" + target.form + "." + target.name + "' has no property '" + target.property +
                          (target.propertyHasArgs ? "(...)" : "") + "'");
    return {target.text + "=" + *value};
}

}  // namespace vistrel::script
