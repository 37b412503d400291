#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QGroupBox>
#include <QLabel>

#include <functional>

namespace vistrel::qt {

// A label that can have a single dark line around it, as a label with a
// border was drawn: the line doesn't take the label's text colour.
class BorderLabel : public QLabel {
public:
    using QLabel::QLabel;
    bool border() const { return border_; }
    // A line of the given width in pixels, or none.
    void setBorder(bool on, int width = 1);
    // The caption as the screen has it; the label shows it fitted to its box.
    void setCaption(const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showCaption();

    bool border_ = false;
    int width_ = 1;
    QString caption_;
};

// A label: plain text, wrapped within its box, opaque, clickable, with a
// border when the control has one.
class LabelBinding : public ControlBinding {
    Q_OBJECT
public:
    LabelBinding(Control& label, QWidget* parent, const Metrics& metrics);

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override { apply(Prop::BorderStyle); }

private:
    BorderLabel* label_;
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

// A picture that works as a button: Space or Enter presses it when it has
// the keyboard, which it shows by a focus frame.
class PictureButton : public QLabel {
public:
    explicit PictureButton(QWidget* parent) : QLabel(parent) {}
    std::function<void()> pressed;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

// An image the screens use as a clickable picture. The core carries no
// picture, so it shows its caption, centred, in a raised box. An image
// with a click handler is a button: reachable by Tab and pressed by keys.
class ImageBinding : public ControlBinding {
    Q_OBJECT
public:
    ImageBinding(Image& image, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return clickable_; }

protected:
    void apply(Prop prop) override;
    bool fillsBackground() const override { return false; }

private:
    PictureButton* label_;
    bool clickable_;
};

}  // namespace vistrel::qt
