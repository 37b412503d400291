#include "PortNames.h"

#include "FormWindow.h"
#include "SerialPorts.h"

#include "core/Frm_ProgramOptions.h"

#include <QEvent>
#include <QLabel>
#include <QStringList>

namespace vistrel::qt {

PortNames::PortNames(FormWindow& window, Frm_ProgramOptions& options)
    : QObject(window.window()), window_(window), options_(options)
{
    window.window()->installEventFilter(this);
}

bool PortNames::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window_.window() && event->type() == QEvent::Show)
        show();
    return QObject::eventFilter(watched, event);
}

void PortNames::show()
{
    QStringList present;
    for (int n = FirstStationPort; n <= LastStationPort; ++n) {
        QWidget* radio = window_.widgetFor(options_.Opt_Com[n]);
        if (!radio)
            continue;
        const PortChoice choice = choosePort(n);
        const bool here = !choice.location.isEmpty();
        QFont font = radio->font();
        font.setBold(here);
        radio->setFont(font);
        if (!here) {
            radio->setToolTip(QStringLiteral("This computer has no port %1.").arg(n));
            continue;
        }
        QString tip = QStringLiteral("Port %1 is %2").arg(n).arg(choice.location);
        if (choice.port && !choice.port->description.isEmpty())
            tip += QStringLiteral(": ") + choice.port->description;
        if (choice.port && !choice.port->manufacturer.isEmpty())
            tip += QStringLiteral(" (") + choice.port->manufacturer + QLatin1Char(')');
        radio->setToolTip(tip + QLatin1Char('.'));
        const QString name = choice.port ? choice.port->name : choice.location;
        present << QStringLiteral("%1 = %2").arg(n).arg(name);
    }

    // The line under the numbers, in the frame's last row.
    QWidget* frame = window_.widgetFor(options_.Frm_ComPort);
    if (!frame)
        return;
    auto* line = frame->findChild<QLabel*>(QStringLiteral("SystemPortNames"), Qt::FindDirectChildrenOnly);
    if (!line) {
        line = new QLabel(frame);
        line->setObjectName(QStringLiteral("SystemPortNames"));
    }
    line->setText(present.isEmpty() ? QStringLiteral("This computer has no serial port.")
                                    : QStringLiteral("Here: ") + present.join(QStringLiteral(", ")));
    line->setToolTip(line->text());
    QFont small = line->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    line->setFont(small);
    const int top = frame->height() - line->sizeHint().height() - 3;
    line->setGeometry(8, top, frame->width() - 16, line->sizeHint().height());
    line->show();
}

}  // namespace vistrel::qt
