#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QGroupBox>
#include <QLabel>

namespace vistrel::qt {

// A label: plain text, wrapped within its box, opaque, clickable.
class LabelBinding : public ControlBinding {
    Q_OBJECT
public:
    LabelBinding(Control& label, QWidget* parent, const Metrics& metrics);

protected:
    void apply(Prop prop) override;

private:
    QLabel* label_;
};

// A frame is a titled box; the controls it contains are its children.
class FrameBinding : public ControlBinding {
    Q_OBJECT
public:
    FrameBinding(Frame& frame, QWidget* parent, const Metrics& metrics);

protected:
    void apply(Prop prop) override;

private:
    QGroupBox* box_;
};

// An image the screens use as a clickable picture. The core carries no
// picture, so it shows its caption, centred, in a sunken box.
class ImageBinding : public ControlBinding {
    Q_OBJECT
public:
    ImageBinding(Image& image, QWidget* parent, const Metrics& metrics);

protected:
    void apply(Prop prop) override;
    bool fillsBackground() const override { return false; }

private:
    QLabel* label_;
};

}  // namespace vistrel::qt
