#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QComboBox>

namespace vistrel::qt {

// A combo box: its text can be typed or picked from the list; picking an
// entry sets the text and raises Click.
class ComboBinding : public ControlBinding {
    Q_OBJECT
public:
    ComboBinding(ComboBox& combo, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }

private:
    void showItems();
    void showText();

    ComboBox& combo_;
    QComboBox* box_;
};

}  // namespace vistrel::qt
