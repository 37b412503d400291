#include "ControlBinding.h"

#include "ColorMapping.h"
#include "TextConversion.h"

#include <QApplication>
#include <QMouseEvent>

namespace vistrel::qt {

ControlBinding::ControlBinding(Control& control, QWidget* widget, const Metrics& metrics)
    : control_(&control), widget_(widget), metrics_(metrics)
{
    widget->setObjectName(QString::fromStdString(control.fullName()));
    control.setObserver(this);
}

ControlBinding::~ControlBinding()
{
    if (control_->observer() == this)
        control_->setObserver(nullptr);
}

void ControlBinding::applyAll()
{
    for (Prop p : {Prop::Geometry, Prop::Font, Prop::BackColor, Prop::Enabled, Prop::ToolTipText, Prop::Caption})
        apply(p);
    applyAllOwn();
    apply(Prop::Visible);
    // Out of the Tab chain, still reachable by the mouse.
    if (takesFocus() && !control_->tabStop())
        widget_->setFocusPolicy(Qt::ClickFocus);
}

void ControlBinding::controlChanged(Control& /*control*/, Prop prop)
{
    if (!widget_)
        return;
    apply(prop);
}

void ControlBinding::setExtraRoom(QSize extra)
{
    if (extra == extra_)
        return;
    extra_ = extra;
    const Control::Stretch& s = control_->stretch();
    if (s.moveX != 0 || s.moveY != 0 || s.growWidth != 0 || s.growHeight != 0)
        widget_->setGeometry(placement());
}

QRect ControlBinding::placement() const
{
    QRect r = metrics_.rect(*control_);
    const Control::Stretch& s = control_->stretch();
    const auto share = [](double part, int room) { return static_cast<int>(part * room + 0.5); };
    r.translate(share(s.moveX, extra_.width()), share(s.moveY, extra_.height()));
    r.setWidth(r.width() + share(s.growWidth, extra_.width()));
    r.setHeight(r.height() + share(s.growHeight, extra_.height()));
    return r;
}

void ControlBinding::apply(Prop prop)
{
    QWidget* w = widget_;
    switch (prop) {
    case Prop::Visible:
        w->setVisible(control_->visible());
        if (onLayoutChanged)
            onLayoutChanged();
        break;
    case Prop::Enabled:
        w->setEnabled(control_->enabled());
        break;
    case Prop::ToolTipText:
        w->setToolTip(toWidgetLines(control_->toolTipText()));
        break;
    case Prop::Geometry:
        w->setGeometry(placement());
        if (onLayoutChanged)
            onLayoutChanged();
        break;
    case Prop::Font:
        w->setFont(metrics_.font(control_->font(), fixedPitch()));
        break;
    case Prop::BackColor:
    case Prop::ForeColor:
        applyColors();
        break;
    case Prop::TabIndex:
        if (onTabIndexChanged)
            onTabIndexChanged();
        break;
    case Prop::Focus:
        giveFocus();
        break;
    default:
        break;
    }
}

void ControlBinding::giveFocus()
{
    QWidget* w = focusWidget();
    if (!w->isEnabled())
        return;
    // A window in the background takes the focus when it comes forward.
    w->setFocus(Qt::OtherFocusReason);
}

void ControlBinding::applyColors()
{
    QWidget* w = widget_;
    const QPalette base = w->parentWidget() ? QApplication::palette(w) : QApplication::palette();
    w->setPalette(controlPalette(base, backRole(), foreRole(), control_->backColor(), control_->foreColor()));
    w->setAutoFillBackground(fillsBackground());
}

bool ControlBinding::fillsBackground() const
{
    const Control* box = control_->container();
    return control_->backColor() != (box ? box->backColor() : colors::ButtonFace);
}

void ControlBinding::forwardClicks(QObject* target, bool clicks, bool doubleClicks)
{
    clickTarget_ = target;
    forwardClick_ = clicks;
    forwardDblClick_ = doubleClicks;
    target->installEventFilter(this);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != clickTarget_)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            pressed_ = true;
        break;
    case QEvent::MouseButtonRelease: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const bool wasPressed = pressed_;
        pressed_ = false;
        auto* target = qobject_cast<QWidget*>(watched);
        const bool inside = !target || target->rect().contains(mouse->position().toPoint());
        if (forwardClick_ && wasPressed && inside && mouse->button() == Qt::LeftButton && control_->enabled())
            control_->click();
        break;
    }
    case QEvent::MouseButtonDblClick:
        if (forwardDblClick_ && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && control_->enabled())
            control_->dblClick();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vistrel::qt
