#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace vistrel::qt {

// A text box. Each edit by a person goes to TextBox::setText at once; the
// core's change handler may rewrite the text, and the widget then shows
// the core's text with the caret kept where the person was typing.
class TextBinding : public ControlBinding {
    Q_OBJECT
public:
    TextBinding(TextBox& box, QWidget* parent, const Metrics& metrics);
    bool takesFocus() const override { return true; }

    QLineEdit* lineEdit() const { return line_; }
    QPlainTextEdit* textEdit() const { return multi_; }

protected:
    void apply(Prop prop) override;
    void applyAllOwn() override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }

private:
    void edited(const QString& text);
    void multiLineEdited();
    void showCoreText();

    TextBox& box_;
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* multi_ = nullptr;
    // Set while a person's edit is being handed to the core.
    bool editing_ = false;
    int typedCursor_ = 0;
    int typedLength_ = 0;
};

}  // namespace vistrel::qt
