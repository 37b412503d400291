#include "StaticBindings.h"

#include "TextConversion.h"

#include <QKeyEvent>
#include <QRegularExpression>

#include <algorithm>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace vistrel::qt {

void BorderLabel::setBorder(bool on, int width)
{
    width = std::max(1, width);
    if (border_ == on && width_ == width)
        return;
    border_ = on;
    width_ = width;
    // The text keeps clear of the line.
    setContentsMargins(on ? QMargins(width + 1, width, width + 1, width) : QMargins());
    update();
}

void BorderLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!border_)
        return;
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const QRect r = rect();
    painter.drawRect(r.left(), r.top(), r.width(), width_);
    painter.drawRect(r.left(), r.bottom() - width_ + 1, r.width(), width_);
    painter.drawRect(r.left(), r.top(), width_, r.height());
    painter.drawRect(r.right() - width_ + 1, r.top(), width_, r.height());
}

void BorderLabel::setCaption(const QString& caption)
{
    caption_ = caption;
    showCaption();
}

void BorderLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    showCaption();
}

void BorderLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        showCaption();
}

// Runs of blanks inside a caption pushed its next words onto a new line at
// the width the screen was drawn for. Where the words wrap anyway they only
// leave holes, so a caption that wraps shows single blanks between words.
void BorderLabel::showCaption()
{
    const QFontMetrics metrics = fontMetrics();
    const QRect box = contentsRect();
    const bool wraps = !caption_.contains(QLatin1Char('\n')) && box.height() >= 2 * metrics.height()
        && metrics.horizontalAdvance(caption_) > box.width();
    static const QRegularExpression innerBlanks(QStringLiteral("(?<=\\S) {2,}(?=\\S)"));
    const QString shown = wraps ? QString(caption_).replace(innerBlanks, QStringLiteral(" ")) : caption_;
    if (text() != shown)
        setText(shown);
}

LabelBinding::LabelBinding(Control& label, QWidget* parent, const Metrics& metrics)
    : ControlBinding(label, new BorderLabel(parent), metrics), label_(static_cast<BorderLabel*>(widget()))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    forwardClicks(label_);
}

void LabelBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        label_->setCaption(labelText(control().caption()));
    else if (prop == Prop::BorderStyle)
        // The line grows with the screens, as a line drawn one pixel wide at
        // their size would.
        label_->setBorder(control().borderStyle() == 1, metrics().px(15));
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

void PictureButton::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool press = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (press && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && pressed) {
        // Held down, it steps on as a held mouse button doesn't: one key, one step.
        if (!event->isAutoRepeat())
            pressed();
        event->accept();
        return;
    }
    QLabel::keyPressEvent(event);
}

void PictureButton::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(3, 3, -3, -3);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

ImageBinding::ImageBinding(Image& image, QWidget* parent, const Metrics& metrics)
    : ControlBinding(image, new PictureButton(parent), metrics),
      label_(static_cast<PictureButton*>(widget())),
      clickable_(static_cast<bool>(image.onClick))
{
    label_->setTextFormat(Qt::PlainText);
    label_->setAlignment(Qt::AlignCenter);
    label_->setFrameShape(QFrame::Panel);
    label_->setFrameShadow(QFrame::Raised);
    forwardClicks(label_);
    if (clickable_) {
        label_->setCursor(Qt::PointingHandCursor);
        label_->setFocusPolicy(Qt::StrongFocus);
        label_->pressed = [this] {
            if (control().enabled())
                control().click();
        };
    }
}

void ImageBinding::apply(Prop prop)
{
    if (prop == Prop::Caption)
        label_->setText(labelText(control().caption()));
    else
        ControlBinding::apply(prop);
}

}  // namespace vistrel::qt
