#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>

#include <functional>

namespace vistrel::qt {

// A check box that leaves its state to the core: a click only reports.
// The whole box takes clicks, caption or not. A caption too long for one
// line wraps onto the lines the box has room for, as the screens' tall
// check boxes expect.
class MirrorCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override {}
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
    void paintEvent(QPaintEvent* event) override;
};

// An option button that leaves its state (and its group's) to the core.
// The arrow keys step to the group's previous or next option and select
// it, as a group of options is worked from the keyboard.
class MirrorRadioButton : public QRadioButton {
public:
    explicit MirrorRadioButton(QWidget* parent = nullptr) : QRadioButton(parent) { setAutoExclusive(false); }
    // Steps by +1 or -1 through the group; true when an option took the step.
    std::function<bool(int step)> stepped;

protected:
    void nextCheckState() override {}
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
    void keyPressEvent(QKeyEvent* event) override;
};

// Breaks a caption into lines as the screens' buttons always did: at
// blanks and after hyphens, a word that does not fit goes to the next
// line, blanks at a break vanish, and blanks alone (the screens lead
// captions with blanks to push them down a line) make a blank line. A
// word longer than a line stays whole. width() measures shown text.
QStringList wrapCaption(const QString& caption, const std::function<int(const QString&)>& width, int available);

// A command button whose caption wraps onto more lines when it is too
// long for one, as the screens' tall buttons expect.
class WrappingPushButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class CommandButtonBinding : public ControlBinding {
    Q_OBJECT
public:
    CommandButtonBinding(CommandButton& button, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

protected:
    void apply(Prop prop) override;
    QPalette::ColorRole backRole() const override { return QPalette::Button; }
    QPalette::ColorRole foreRole() const override { return QPalette::ButtonText; }
    bool fillsBackground() const override { return false; }

private:
    QPushButton* button_;
};

class CheckBoxBinding : public ControlBinding {
    Q_OBJECT
public:
    CheckBoxBinding(CheckBox& box, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override { apply(Prop::Value); }

private:
    CheckBox& box_;
    MirrorCheckBox* check_;
};

class OptionButtonBinding : public ControlBinding {
    Q_OBJECT
public:
    OptionButtonBinding(OptionButton& option, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override { apply(Prop::Value); }

private:
    bool stepWithin(int step);

    OptionButton& option_;
    MirrorRadioButton* radio_;
};

}  // namespace vistrel::qt
