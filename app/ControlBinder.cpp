#include "ControlBinder.h"

#include "ButtonBindings.h"
#include "ComboBinding.h"
#include "GridBinding.h"
#include "ListBinding.h"
#include "StaticBindings.h"
#include "TextBinding.h"

namespace vistrel::qt {

std::unique_ptr<ControlBinding> ControlBinder::create(Control& control, QWidget* parent) const
{
    switch (control.kind()) {
    case ControlKind::TextBox:
        return std::make_unique<TextBinding>(static_cast<TextBox&>(control), parent, metrics_);
    case ControlKind::CheckBox:
        return std::make_unique<CheckBoxBinding>(static_cast<CheckBox&>(control), parent, metrics_);
    case ControlKind::OptionButton:
        return std::make_unique<OptionButtonBinding>(static_cast<OptionButton&>(control), parent, metrics_);
    case ControlKind::CommandButton:
        return std::make_unique<CommandButtonBinding>(static_cast<CommandButton&>(control), parent, metrics_);
    case ControlKind::Label:
        return std::make_unique<LabelBinding>(control, parent, metrics_);
    case ControlKind::Frame:
        return std::make_unique<FrameBinding>(static_cast<Frame&>(control), parent, metrics_);
    case ControlKind::ListBox:
        return std::make_unique<ListBinding>(static_cast<ListBox&>(control), parent, metrics_);
    case ControlKind::ComboBox:
        return std::make_unique<ComboBinding>(static_cast<ComboBox&>(control), parent, metrics_);
    case ControlKind::Grid:
        return std::make_unique<GridBinding>(static_cast<Grid&>(control), parent, metrics_);
    case ControlKind::Image:
        return std::make_unique<ImageBinding>(static_cast<Image&>(control), parent, metrics_);
    case ControlKind::Timer:
    case ControlKind::Menu:
        break;
    }
    return nullptr;
}

QWidget* ControlBinder::containerWidget(const Control& control, QWidget* canvas) const
{
    if (const Control* frame = control.container())
        if (QWidget* w = widgetFor(*frame))
            return w;
    return canvas;
}

void ControlBinder::bind(Form& form, QWidget* canvas)
{
    const std::vector<Control*>& controls = form.controls();
    // Frames first, so that the controls inside them have their box to go
    // into; frames lie beneath the controls drawn beside them.
    for (Control* c : controls) {
        if (c->kind() != ControlKind::Frame)
            continue;
        auto binding = create(*c, canvas);
        byControl_[c] = binding.get();
        bindings_.push_back(std::move(binding));
    }
    for (Control* c : controls)
        if (c->kind() == ControlKind::Frame)
            if (QWidget* parent = containerWidget(*c, canvas); parent != canvas)
                widgetFor(*c)->setParent(parent);
    for (Control* c : controls) {
        if (c->kind() == ControlKind::Frame)
            continue;
        if (c->kind() == ControlKind::Timer) {
            timers_.push_back(std::make_unique<TimerBinding>(static_cast<Timer&>(*c)));
            continue;
        }
        auto binding = create(*c, containerWidget(*c, canvas));
        if (!binding)
            continue;
        byControl_[c] = binding.get();
        bindings_.push_back(std::move(binding));
    }
    // Labels and images are drawn on their container, beneath every
    // control that is a window of its own, whatever their order.
    for (auto it = bindings_.rbegin(); it != bindings_.rend(); ++it) {
        const ControlKind kind = (*it)->control().kind();
        if (kind == ControlKind::Label || kind == ControlKind::Image)
            (*it)->widget()->lower();
    }
    for (const auto& b : bindings_)
        b->applyAll();
}

ControlBinding* ControlBinder::bindingFor(const Control& control) const
{
    auto it = byControl_.find(&control);
    return it == byControl_.end() ? nullptr : it->second;
}

QWidget* ControlBinder::widgetFor(const Control& control) const
{
    const ControlBinding* b = bindingFor(control);
    return b ? b->widget() : nullptr;
}

}  // namespace vistrel::qt
