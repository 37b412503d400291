#include "ButtonBindings.h"

#include "TextConversion.h"

#include <QStyleOptionButton>
#include <QStylePainter>

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
    for (const QChar c : caption) {
        const bool blank = c == QLatin1Char(' ');
        if (!piece.isEmpty() && (piece.back() == QLatin1Char(' ')) != blank)
            flush();
        piece += c;
        if (c == QLatin1Char('-'))
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

OptionButtonBinding::OptionButtonBinding(OptionButton& option, QWidget* parent, const Metrics& metrics)
    : ControlBinding(option, new MirrorRadioButton(parent), metrics),
      option_(option),
      radio_(static_cast<MirrorRadioButton*>(widget()))
{
    connect(radio_, &QRadioButton::clicked, this, [this] {
        option_.select();
        apply(Prop::Value);
    });
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
