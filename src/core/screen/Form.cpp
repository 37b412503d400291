#include "Form.h"

#include "Control.h"
#include "../Station.h"
#include "../../platform/Platform.h"

namespace vistrel {

Form::Form(Station& station, std::string name) : station_(&station), name_(std::move(name)) {}

void Form::adopt(Control& control)
{
    controls_.push_back(&control);
    // Controls are tabbed through in the order they were made, after the
    // few whose place in the order a screen gives explicitly.
    control.setTabIndex(1000 + static_cast<int>(controls_.size()));
    byName_[control.fullName()] = &control;
    if (control.index() >= 0)
        arrays_[control.name()] = true;
}

Control* Form::control(const std::string& name, int index) const
{
    const std::string key = index < 0 ? name : name + "(" + std::to_string(index) + ")";
    auto it = byName_.find(key);
    return it == byName_.end() ? nullptr : it->second;
}

bool Form::isControlArray(const std::string& name) const
{
    return arrays_.count(name) != 0;
}

void Form::bindVar(const std::string& name, VarBinding binding)
{
    vars_[name] = std::move(binding);
}

const VarBinding* Form::variable(const std::string& name) const
{
    auto it = vars_.find(name);
    return it == vars_.end() ? nullptr : &it->second;
}

void Form::bindOp(const std::string& name, std::function<void()> op)
{
    ops_[name] = std::move(op);
}

const std::function<void()>* Form::operation(const std::string& name) const
{
    auto it = ops_.find(name);
    return it == ops_.end() ? nullptr : &it->second;
}

std::vector<std::string> Form::operationNames() const
{
    std::vector<std::string> names;
    for (const auto& [name, op] : ops_)
        names.push_back(name);
    return names;
}

std::vector<std::string> Form::variableNames() const
{
    std::vector<std::string> names;
    for (const auto& [name, v] : vars_)
        names.push_back(name);
    return names;
}

void Form::notify()
{
    if (observer_)
        observer_->formChanged(*this);
}

void Form::setCaption(const std::string& caption)
{
    if (caption_ == caption)
        return;
    caption_ = caption;
    notify();
}

void Form::setGeometry(int left, int top, int width, int height)
{
    ++geometryRequests_;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    notify();
}

void Form::show(bool modal)
{
    if (!loaded_) {
        loaded_ = true;
        if (onLoad)
            onLoad();
    }
    modal_ = modal;
    if (!visible_) {
        visible_ = true;
        notify();
    }
    if (onActivate)
        onActivate();
    if (modal && visible_)
        station_->platform().runModal(*this);
}

void Form::hide()
{
    if (!visible_)
        return;
    visible_ = false;
    notify();
}

void Form::closeBox()
{
    if (onCloseBox)
        onCloseBox();
    else
        hide();
}

}  // namespace vistrel
