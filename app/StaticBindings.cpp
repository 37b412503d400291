#include "StaticBindings.h"

#include "TextConversion.h"

namespace vistrel::qt {

LabelBinding::LabelBinding(Control& label, QWidget* parent, const Metrics& metrics)
    : ControlBinding(label, new QLabel(parent), metrics), label_(static_cast<QLabel*>(widget()))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    forwardClicks(label_);
}

void LabelBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        label_->setText(labelText(control().caption()));
    else
        ControlBinding::apply(prop);
}

FrameBinding::FrameBinding(Frame& frame, QWidget* parent, const Metrics& metrics)
    : ControlBinding(frame, new QGroupBox(parent), metrics), box_(static_cast<QGroupBox*>(widget()))
{
    forwardClicks(box_);
}

void FrameBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        box_->setTitle(toWidgetLines(control().caption()));
    else
        ControlBinding::apply(prop);
}

ImageBinding::ImageBinding(Image& image, QWidget* parent, const Metrics& metrics)
    : ControlBinding(image, new QLabel(parent), metrics), label_(static_cast<QLabel*>(widget()))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setAlignment(Qt::AlignCenter);
    label_->setFrameShape(QFrame::Panel);
    label_->setFrameShadow(QFrame::Raised);
    label_->setCursor(Qt::PointingHandCursor);
    forwardClicks(label_);
}

void ImageBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        label_->setText(labelText(control().caption()));
    else
        ControlBinding::apply(prop);
}

}  // namespace vistrel::qt
