#include "SerialStatus.h"

#include "FormWindow.h"

#include "core/Frm_Vistrel.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace vistrel::qt {

QString autorefractorName(const std::string& keyword)
{
    static const struct {
        const char* keyword;
        const char* name;
    } names[] = {
        {"NIKON RETINOMAX", "Nikon Retinomax"},
        {"NIKON RETINOMAX2", "Nikon Retinomax 2"},
        {"NIKON RETINOMAX3", "Nikon Retinomax 3"},
        {"TOPCON KR-3000-7000", "Topcon KR-3000/7000"},
        {"BURTON VELO 20-10", "Burton Velo 20/10"},
        {"SHIN NIPPON 8001", "Shin Nippon 8001"},
        {"REICHERT RK600", "Reichert RK600"},
        {"HUMPHREY 597", "Humphrey 597"},
        {"WELCHALLYN SURESIGHT", "Welch Allyn SureSight"},
        {"MARCONIDEK ARK-20/30", "Marco Nidek ARK-20/30"},
        {"CANON RK-2", "Canon RK-2"},
    };
    if (keyword.empty() || keyword == "NONE")
        return {};
    for (const auto& n : names)
        if (keyword == n.keyword)
            return QString::fromLatin1(n.name);
    return QString::fromStdString(keyword);
}

QString lineStatusText(const LineReport& r)
{
    const QString subject = r.model.isEmpty() ? QStringLiteral("Serial port") : QStringLiteral("Autorefractor ") + r.model;
    const QString where = r.device.isEmpty() ? QStringLiteral("port %1").arg(r.port)
                                             : QStringLiteral("%1 (port %2)").arg(r.device).arg(r.port);
    const QString noModel = r.model.isEmpty() ? QStringLiteral(" No autorefractor is chosen in the options.") : QString();
    const QString cannot = subject + QStringLiteral(": could not open ") + where + QStringLiteral(": ");
    switch (r.state) {
    case LineState::NotOpened:
        return subject + QStringLiteral(": the serial port is not open yet.") + noModel;
    case LineState::Open: {
        QString text = subject + QStringLiteral(" on ") + where;
        if (r.received == 0)
            text += r.reopened ? QStringLiteral(": open again, nothing received since.")
                               : QStringLiteral(": open, nothing received yet.");
        else
            text += QStringLiteral(": %1 %2 received, the last at %3.")
                        .arg(r.received)
                        .arg(r.received == 1 ? QStringLiteral("character") : QStringLiteral("characters"))
                        .arg(r.lastReceived.time().toString(QStringLiteral("HH:mm:ss")));
        return text + noModel;
    }
    case LineState::NoSuchPort:
        if (r.device.isEmpty())
            return cannot + QStringLiteral("this computer has no such port (vistrel --list-ports shows its ports).")
                + noModel;
        return cannot + QStringLiteral("no such port.") + noModel;
    case LineState::PermissionDenied:
        if (r.system == PortSystem::Linux)
            return cannot
                + QStringLiteral("permission denied. The user must be in the dialout group "
                                 "(sudo usermod -aG dialout $USER, then log in again), "
                                 "or another program holds the port.")
                + noModel;
        return cannot + QStringLiteral("permission denied.") + noModel;
    case LineState::Busy:
        return cannot + QStringLiteral("busy: another program has the port open.") + noModel;
    case LineState::Failed:
        return cannot + (r.detail.isEmpty() ? QStringLiteral("it failed") : r.detail) + QLatin1Char('.') + noModel;
    case LineState::Lost:
        return subject + QStringLiteral(": ") + where
            + QStringLiteral(" went away (adapter unplugged?). The port is closed; it opens again when the device "
                             "comes back.");
    case LineState::Closed:
        return subject + QStringLiteral(": ") + where + QStringLiteral(" is closed.");
    }
    return {};
}

SerialStatus::SerialStatus(QtSerialPort& port, const Frm_Vistrel& station, FormWindow& mainWindow)
    : port_(port), station_(station), window_(mainWindow)
{
    auto* main = qobject_cast<QMainWindow*>(mainWindow.window());
    label_ = new QLabel;
    label_->setObjectName(QStringLiteral("SerialStatus"));
    label_->setTextFormat(Qt::PlainText);
    // The advice for a refused port is long: it wraps rather than being cut.
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (main) {
        main->statusBar()->setSizeGripEnabled(false);
        main->statusBar()->addWidget(label_, 1);
    }
    connect(&port_, &QtSerialPort::lineChanged, this, &SerialStatus::refresh);
    refresh();
}

QString SerialStatus::text() const
{
    LineReport r;
    r.state = port_.lineState();
    const PortChoice& choice = port_.choice();
    r.port = r.state == LineState::NotOpened ? port_.commPort() : choice.number;
    r.device = choice.location;
    r.model = autorefractorName(station_.AutoRefractorType);
    r.detail = port_.errorText();
    r.received = port_.receivedCount();
    r.lastReceived = port_.lastReceived();
    r.reopened = port_.reopened();
    r.system = currentPortSystem();
    return lineStatusText(r);
}

void SerialStatus::refresh()
{
    if (!label_)
        return;
    const QString now = text();
    if (label_->text() == now)
        return;
    const int before = label_->sizeHint().height();
    label_->setText(now);
    const PortChoice& choice = port_.choice();
    QStringList about;
    if (choice.port) {
        for (const QString& part : {choice.port->description, choice.port->manufacturer})
            if (!part.isEmpty())
                about << part;
        if (choice.port->vendorId && choice.port->productId)
            about << QStringLiteral("%1:%2")
                         .arg(*choice.port->vendorId, 4, 16, QLatin1Char('0'))
                         .arg(*choice.port->productId, 4, 16, QLatin1Char('0'));
    }
    if (choice.overridden)
        about << QStringLiteral("set by VISTREL_COM%1").arg(choice.number);
    label_->setToolTip(about.join(QStringLiteral(", ")));
    // A line that wraps anew makes the window taller, not the screen smaller.
    if (label_->sizeHint().height() != before)
        window_.refit();
}

}  // namespace vistrel::qt
