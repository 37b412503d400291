#include "TextBinding.h"

#include "TextConversion.h"

#include <QStyle>

#include <algorithm>

namespace vistrel::qt {

namespace {

// Writes less than this apart are a burst; the first few of a burst are
// shown at once, later ones this often.
constexpr qint64 BurstGapNs = 2'000'000;
constexpr int BurstShownAtOnce = 8;
constexpr int BurstRefreshMs = 40;

QWidget* makeEditor(const TextBox& box, QWidget* parent)
{
    if (box.multiLine())
        return new QPlainTextEdit(parent);
    return new QLineEdit(parent);
}

}  // namespace

TextBinding::TextBinding(TextBox& box, QWidget* parent, const Metrics& metrics)
    : ControlBinding(box, makeEditor(box, parent), metrics), box_(box)
{
    if (box.multiLine()) {
        multi_ = static_cast<QPlainTextEdit*>(widget());
        multi_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
        connect(multi_, &QPlainTextEdit::textChanged, this, &TextBinding::multiLineEdited);
        forwardClicks(multi_->viewport());
    } else {
        line_ = static_cast<QLineEdit*>(widget());
        connect(line_, &QLineEdit::textEdited, this, &TextBinding::edited);
        forwardClicks(line_);
    }
    pendingShow_.setSingleShot(true);
    connect(&pendingShow_, &QTimer::timeout, this, &TextBinding::showCoreText);
}

void TextBinding::coreTextChanged()
{
    const bool close = lastWrite_.isValid() && lastWrite_.nsecsElapsed() < BurstGapNs;
    lastWrite_.start();
    burst_ = close ? burst_ + 1 : 0;
    if (editing_ || burst_ < BurstShownAtOnce) {
        showCoreText();
        return;
    }
    if (!pendingShow_.isActive())
        pendingShow_.start(BurstRefreshMs);
}

void TextBinding::giveFocus()
{
    ControlBinding::giveFocus();
    // As when tabbed into: what is typed replaces the text.
    if (line_ && line_->hasFocus())
        line_->selectAll();
}

void TextBinding::fitFrame()
{
    // A box drawn barely taller than its text, such as one laid over a
    // grid cell, has no room for a frame around the text.
    if (!line_)
        return;
    const int needed = line_->fontMetrics().height() + 2 * line_->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 2;
    line_->setFrame(line_->height() >= needed);
}

void TextBinding::applyAllOwn()
{
    apply(Prop::Locked);
    apply(Prop::Text);
}

void TextBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::Text:
        coreTextChanged();
        break;
    case Prop::Geometry:
    case Prop::Font:
        ControlBinding::apply(prop);
        fitFrame();
        break;
    case Prop::Locked:
        if (line_)
            line_->setReadOnly(control().locked());
        else
            multi_->setReadOnly(control().locked());
        break;
    default:
        ControlBinding::apply(prop);
    }
}

void TextBinding::edited(const QString& text)
{
    editing_ = true;
    typedCursor_ = line_->cursorPosition();
    typedLength_ = static_cast<int>(text.size());
    box_.setText(toCore(text));
    showCoreText();
    editing_ = false;
}

void TextBinding::multiLineEdited()
{
    if (mirroring())
        return;
    editing_ = true;
    box_.setText(toCoreLines(multi_->toPlainText()));
    showCoreText();
    editing_ = false;
}

void TextBinding::showCoreText()
{
    pendingShow_.stop();
    Mirror mirror(*this);
    if (multi_) {
        const QString text = toWidgetLines(box_.text());
        if (multi_->toPlainText() != text)
            multi_->setPlainText(text);
        return;
    }
    const QString text = fromCore(box_.text());
    if (line_->text() == text)
        return;
    const QSignalBlocker block(line_);
    line_->setText(text);
    if (editing_) {
        // A rewrite of what was just typed: the caret moves by as much as
        // the text grew or shrank, so typing runs on where it was.
        const int length = static_cast<int>(text.size());
        const int cursor = std::clamp(typedCursor_ + length - typedLength_, 0, length);
        line_->setCursorPosition(cursor);
    }
}

}  // namespace vistrel::qt
