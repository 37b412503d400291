#include "ButtonBindings.h"

#include "TextConversion.h"

#include <QStyleOptionButton>
#include <QKeyEvent>
#include <QStylePainter>

#include <algorithm>

namespace vistrel::qt {

namespace {

// The caption's pieces: runs of blanks, and words cut after hyphens.
QStringList captionPieces(const QString& caption)
{
    QStringList pieces;
    QString piece;
    auto flush = [&] {
        if (!piece.isEmpty())
            pieces << piece;
        piece.clear();
    };
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const QChar c = caption[i];
        const bool blank = c == QLatin1Char(' ');
        if (!piece.isEmpty() && (piece.back() == QLatin1Char(' ')) != blank)
            flush();
        piece += c;
        // A minus sign stays with its number; a hyphen may end a line.
        const bool minusSign = i + 1 < caption.size() && (caption[i + 1].isDigit() || caption[i + 1] == QLatin1Char('.'));
        if (c == QLatin1Char('-') && !minusSign)
            flush();
    }
    flush();
    return pieces;
}

}  // namespace

QStringList wrapCaption(const QString& caption, const std::function<int(const QString&)>& width, int available)
{
    QStringList lines;
    for (const QString& paragraph : caption.split(QLatin1Char('\n'))) {
        QString line;
        bool hasWord = false;
        for (const QString& piece : captionPieces(paragraph)) {
            const bool blank = piece.front() == QLatin1Char(' ');
            if (blank) {
                line += piece;
                continue;
            }
            if (!line.isEmpty() && width(line + piece) > available) {
                lines << (hasWord ? line.trimmed() : QString());
                line.clear();
                hasWord = false;
            }
            line += piece;
            hasWord = true;
        }
        lines << (hasWord ? line.trimmed() : QString());
    }
    return lines;
}

void WrappingPushButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);

    QRect area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    if (isDown() || isChecked())
        area.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
            style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
    int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this))
        flags |= Qt::TextHideMnemonic;
    const QFontMetrics metrics = fontMetrics();
    const QStringList lines = wrapCaption(
        caption, [&](const QString& text) { return metrics.horizontalAdvance(labelText(toCore(text))); },
        area.width());
    const int lineHeight = metrics.height();
    QRect line(area.left(), area.center().y() - lineHeight * static_cast<int>(lines.size()) / 2, area.width(),
        lineHeight);
    for (const QString& text : lines) {
        style()->drawItemText(&painter, line, flags, option.palette, isEnabled(), text, QPalette::ButtonText);
        line.translate(0, lineHeight);
    }
}

void MirrorCheckBox::paintEvent(QPaintEvent* event)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect area = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    const QFontMetrics metrics = fontMetrics();
    const auto shownWidth = [&](const QString& text) { return metrics.horizontalAdvance(labelText(toCore(text))); };
    if (text().contains(QLatin1Char('\n')) || shownWidth(text()) <= area.width()
        || height() < 2 * metrics.height()) {
        QCheckBox::paintEvent(event);
        return;
    }

    QStylePainter painter(this);
    const QString caption = option.text;
    option.text.clear();
    option.state &= ~QStyle::State_HasFocus;
    painter.drawControl(QStyle::CE_CheckBox, option);

    // Runs of blanks placed a word on the next line of a narrower box.
    const QString words = caption.simplified();
    const QStringList lines = wrapCaption(words, shownWidth, area.width());
    const int lineHeight = metrics.height();
    const int shown = std::min(static_cast<int>(lines.size()), std::max(1, height() / lineHeight));
    QRect line(area.left(), area.center().y() - lineHeight * shown / 2, area.width(), lineHeight);
    int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this))
        flags |= Qt::TextHideMnemonic;
    QRect textArea = line;
    for (int i = 0; i < shown; ++i) {
        style()->drawItemText(&painter, line, flags, option.palette, isEnabled(), lines[i], QPalette::WindowText);
        textArea |= line;
        line.translate(0, lineHeight);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = textArea.adjusted(-1, 0, 1, 0);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

CommandButtonBinding::CommandButtonBinding(CommandButton& button, QWidget* parent, const Metrics& metrics)
    : ControlBinding(button, new WrappingPushButton(parent), metrics), button_(static_cast<QPushButton*>(widget()))
{
    // Enter in a text box must not press some button of the dialog.
    button_->setAutoDefault(false);
    button_->setDefault(false);
    connect(button_, &QPushButton::clicked, this, [this] { control().click(); });
}

void CommandButtonBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        button_->setText(toWidgetLines(control().caption()));
    else
        ControlBinding::apply(prop);
}

CheckBoxBinding::CheckBoxBinding(CheckBox& box, QWidget* parent, const Metrics& metrics)
    : ControlBinding(box, new MirrorCheckBox(parent), metrics), box_(box), check_(static_cast<MirrorCheckBox*>(widget()))
{
    connect(check_, &QCheckBox::clicked, this, [this] {
        box_.click();
        apply(Prop::Value);
    });
}

void CheckBoxBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::Caption:
        check_->setText(toWidgetLines(control().caption()));
        break;
    case Prop::Value: {
        Mirror mirror(*this);
        const QSignalBlocker block(check_);
        const int v = box_.value();
        check_->setTristate(v == 2);
        check_->setCheckState(v == 1 ? Qt::Checked : v == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
        break;
    }
    default:
        ControlBinding::apply(prop);
    }
}

void MirrorRadioButton::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const int step = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 0;
    if (step != 0 && event->modifiers() == Qt::NoModifier && stepped && stepped(step)) {
        event->accept();
        return;
    }
    QRadioButton::keyPressEvent(event);
}

OptionButtonBinding::OptionButtonBinding(OptionButton& option, QWidget* parent, const Metrics& metrics)
    : ControlBinding(option, new MirrorRadioButton(parent), metrics),
      option_(option),
      radio_(static_cast<MirrorRadioButton*>(widget()))
{
    connect(radio_, &QRadioButton::clicked, this, [this] {
        option_.select();
        apply(Prop::Value);
    });
    radio_->stepped = [this](int step) { return stepWithin(step); };
}

// The next option of the group that can be chosen, round the end; its
// widget is the sibling named after it.
bool OptionButtonBinding::stepWithin(int step)
{
    const std::vector<OptionButton*>& members = option_.group().members();
    const auto count = static_cast<int>(members.size());
    const auto at = static_cast<int>(std::find(members.begin(), members.end(), &option_) - members.begin());
    for (int i = 1; i < count; ++i) {
        OptionButton* next = members[static_cast<std::size_t>(((at + step * i) % count + count) % count)];
        if (!next->visible() || !next->enabled())
            continue;
        auto* widget = radio_->parentWidget()
            ? radio_->parentWidget()->findChild<QWidget*>(QString::fromStdString(next->fullName()),
                  Qt::FindDirectChildrenOnly)
            : nullptr;
        if (!widget || !widget->isVisible())
            continue;
        widget->setFocus(Qt::TabFocusReason);
        next->select();
        return true;
    }
    return false;
}

void OptionButtonBinding::apply(Prop prop)
{
    switch (prop) {
    case Prop::Caption:
        radio_->setText(toWidgetLines(control().caption()));
        break;
    case Prop::Value: {
        Mirror mirror(*this);
        const QSignalBlocker block(radio_);
        radio_->setChecked(option_.value());
        break;
    }
    default:
        ControlBinding::apply(prop);
    }
}

}  // namespace vistrel::qt
