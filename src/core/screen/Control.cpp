#include "Control.h"

#include "Form.h"

namespace vistrel {

bool Font::fixedPitch() const
{
    return name == "Courier New" || name == "Courier" || name == "Lucida Console";
}

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(&form), kind_(kind), name_(std::move(name)), index_(index)
{
    form.adopt(*this);
}

std::string Control::fullName() const
{
    if (index_ < 0)
        return name_;
    return name_ + "(" + std::to_string(index_) + ")";
}

void Control::notify(Prop prop)
{
    if (observer_)
        observer_->controlChanged(*this, prop);
}

void Control::raise(const std::function<void()>& handler) const
{
    if (handler)
        handler();
}

void Control::setCaption(const std::string& caption)
{
    if (caption_ == caption)
        return;
    caption_ = caption;
    notify(Prop::Caption);
}

void Control::setVisible(bool visible)
{
    if (visible_ == visible)
        return;
    visible_ = visible;
    notify(Prop::Visible);
}

void Control::setEnabled(bool enabled)
{
    if (enabled_ == enabled)
        return;
    enabled_ = enabled;
    notify(Prop::Enabled);
}

void Control::setLocked(bool locked)
{
    if (locked_ == locked)
        return;
    locked_ = locked;
    notify(Prop::Locked);
}

void Control::setBackColor(Color color)
{
    if (backColor_ == color)
        return;
    backColor_ = color;
    notify(Prop::BackColor);
}

void Control::setForeColor(Color color)
{
    if (foreColor_ == color)
        return;
    foreColor_ = color;
    notify(Prop::ForeColor);
}

void Control::setToolTipText(const std::string& tip)
{
    if (toolTip_ == tip)
        return;
    toolTip_ = tip;
    notify(Prop::ToolTipText);
}

void Control::setLeft(int v) { setGeometry(v, top_, width_, height_); }
void Control::setTop(int v) { setGeometry(left_, v, width_, height_); }
void Control::setWidth(int v) { setGeometry(left_, top_, v, height_); }
void Control::setHeight(int v) { setGeometry(left_, top_, width_, v); }

void Control::setGeometry(int left, int top, int width, int height)
{
    if (left == left_ && top == top_ && width == width_ && height == height_)
        return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    notify(Prop::Geometry);
}

void Control::setStretch(const Stretch& stretch)
{
    stretch_ = stretch;
    notify(Prop::Geometry);
}

void Control::setBorderStyle(int style)
{
    if (borderStyle_ == style)
        return;
    borderStyle_ = style;
    notify(Prop::BorderStyle);
}

void Control::setTabIndex(int index)
{
    if (tabIndex_ == index)
        return;
    tabIndex_ = index;
    notify(Prop::TabIndex);
}

void Control::setFont(const Font& font)
{
    font_ = font;
    notify(Prop::Font);
}

void Control::click()
{
    raise(onClick);
}

void Control::dblClick()
{
    raise(onDblClick);
}

}  // namespace vistrel
