#pragma once

#include "ControlBinding.h"

#include "core/screen/Controls.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

namespace vistrel::qt {

// A text box. Each edit by a person goes to TextBox::setText at once; the
// core's change handler may rewrite the text, and the widget then shows
// the core's text with the caret kept where the person was typing.
//
// A box the core rewrites many times in a row (the status during a load
// of 32000 records) is shown a few times a second only: laying out the
// text anew for every record would take longer than the load.
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
    void giveFocus() override;
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    QPalette::ColorRole foreRole() const override { return QPalette::Text; }
    bool fillsBackground() const override { return false; }

private:
    void edited(const QString& text);
    void multiLineEdited();
    void showCoreText();
    void coreTextChanged();
    void fitFrame();

    TextBox& box_;
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* multi_ = nullptr;
    // Set while a person's edit is being handed to the core.
    bool editing_ = false;
    int typedCursor_ = 0;
    int typedLength_ = 0;
    // Rewrites by the core that come close upon each other, and the timer
    // that shows the last of them.
    QElapsedTimer lastWrite_;
    int burst_ = 0;
    QTimer pendingShow_;
};

}  // namespace vistrel::qt
