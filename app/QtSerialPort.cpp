#include "QtSerialPort.h"

#include <QFile>
#include <QSerialPortInfo>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <poll.h>
#include <unistd.h>
#endif

namespace vistrel::qt {

SerialSettings parseSerialSettings(const std::string& text)
{
    SerialSettings s;
    const QStringList parts = QString::fromStdString(text).split(QLatin1Char(','));
    bool ok = false;
    if (parts.size() > 0) {
        const int baud = parts[0].trimmed().toInt(&ok);
        if (ok && baud > 0)
            s.baud = baud;
    }
    if (parts.size() > 1) {
        const QString p = parts[1].trimmed().toLower();
        if (p == QLatin1String("n"))
            s.parity = QSerialPort::NoParity;
        else if (p == QLatin1String("o"))
            s.parity = QSerialPort::OddParity;
        else if (p == QLatin1String("e"))
            s.parity = QSerialPort::EvenParity;
        else if (p == QLatin1String("m"))
            s.parity = QSerialPort::MarkParity;
        else if (p == QLatin1String("s"))
            s.parity = QSerialPort::SpaceParity;
    }
    if (parts.size() > 2) {
        const int bits = parts[2].trimmed().toInt(&ok);
        if (ok && bits >= 5 && bits <= 8)
            s.dataBits = static_cast<QSerialPort::DataBits>(bits);
    }
    if (parts.size() > 3) {
        const QString stop = parts[3].trimmed();
        if (stop == QLatin1String("1"))
            s.stopBits = QSerialPort::OneStop;
        else if (stop == QLatin1String("1.5"))
            s.stopBits = QSerialPort::OneAndHalfStop;
        else if (stop == QLatin1String("2"))
            s.stopBits = QSerialPort::TwoStop;
    }
    return s;
}

LineState openFailure(QSerialPort::SerialPortError error, bool accessDenied, PortSystem system)
{
    switch (error) {
    case QSerialPort::DeviceNotFoundError:
        return LineState::NoSuchPort;
    case QSerialPort::PermissionError:
        // Windows refuses a port another program has open; elsewhere the
        // device's rights tell a user outside the dialout group from a
        // port locked or held exclusively by another program.
        if (system == PortSystem::Windows)
            return LineState::Busy;
        return accessDenied ? LineState::PermissionDenied : LineState::Busy;
    default:
        return LineState::Failed;
    }
}

namespace {

bool accessDenied(const QString& location)
{
#ifdef Q_OS_UNIX
    const QByteArray path = QFile::encodeName(location);
    return ::access(path.constData(), R_OK | W_OK) != 0 && errno == EACCES;
#else
    Q_UNUSED(location);
    return false;
#endif
}

bool deviceThere(const QString& location)
{
#ifdef Q_OS_WIN
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        if (info.portName().compare(location, Qt::CaseInsensitive) == 0)
            return true;
    return false;
#else
    return QFile::exists(location);
#endif
}

}  // namespace

QtSerialPort::QtSerialPort(QObject* parent) : QObject(parent)
{
    connect(&port_, &QSerialPort::readyRead, this, [this] { deliverReceived(); });
    connect(&port_, &QSerialPort::errorOccurred, this, &QtSerialPort::errorOccurred);
    reopenTimer_.setInterval(1000);
    connect(&reopenTimer_, &QTimer::timeout, this, &QtSerialPort::tryReopen);
}

QtSerialPort::~QtSerialPort()
{
    port_.close();
}

QString QtSerialPort::deviceName() const
{
    return choosePort(commPort()).location;
}

void QtSerialPort::setState(LineState state)
{
    state_ = state;
    emit lineChanged();
}

bool QtSerialPort::openPort()
{
    reopenTimer_.stop();
    reopened_ = false;
    if (port_.isOpen())
        port_.close();
    return open(choosePort(commPort()));
}

bool QtSerialPort::open(const PortChoice& choice)
{
    choice_ = choice;
    errorText_.clear();
    received_ = 0;
    lastReceived_ = {};
    if (choice.location.isEmpty()) {
        setState(LineState::NoSuchPort);
        return false;
    }
    port_.setPortName(choice.location);
    // No permission or no device: the station runs on without the line.
    if (!port_.open(QIODevice::ReadWrite)) {
        errorText_ = port_.errorString();
        const LineState why = openFailure(port_.error(), accessDenied(choice.location), currentPortSystem());
        port_.clearError();
        setState(why);
        return false;
    }
    applySettings();
    setState(LineState::Open);
    return true;
}

bool QtSerialPort::hungUp() const
{
#ifdef Q_OS_UNIX
    // A device gone away reads as ended, with whatever errno was left;
    // the descriptor tells it by a hang-up.
    pollfd p{static_cast<int>(port_.handle()), POLLIN, 0};
    if (p.fd >= 0 && ::poll(&p, 1, 0) > 0 && (p.revents & (POLLHUP | POLLERR | POLLNVAL)))
        return true;
#endif
    return !deviceThere(choice_.location);
}

void QtSerialPort::errorOccurred(QSerialPort::SerialPortError error)
{
    // A device that goes away (a USB adapter pulled out) makes every read
    // fail, as ResourceError or, on a hang-up, as ReadError over and over:
    // close the port and look for the device to come back.
    if (state_ != LineState::Open)
        return;
    if (error != QSerialPort::ResourceError && !(error == QSerialPort::ReadError && hungUp()))
        return;
    errorText_ = port_.errorString();
    setState(LineState::Lost);
    // Closed once Qt is out of the read that raised this; a posted call
    // runs before the line is looked at again.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (state_ != LineState::Lost)
                return;
            port_.close();
            reopenTimer_.start();
        },
        Qt::QueuedConnection);
}

void QtSerialPort::tryReopen()
{
    if (state_ != LineState::Lost) {
        reopenTimer_.stop();
        return;
    }
    const PortChoice again = choosePort(commPort());
    if (again.location.isEmpty() || !deviceThere(again.location))
        return;
    const QString lostText = errorText_;
    if (open(again)) {
        reopenTimer_.stop();
        reopened_ = true;
        emit lineChanged();
        return;
    }
    // Not yet usable (still being set up by the system): keep looking.
    errorText_ = lostText;
    setState(LineState::Lost);
}

void QtSerialPort::applySettings()
{
    if (!port_.isOpen())
        return;
    const SerialSettings s = parseSerialSettings(settings());
    port_.setBaudRate(s.baud);
    port_.setParity(s.parity);
    port_.setDataBits(s.dataBits);
    port_.setStopBits(s.stopBits);
    switch (handshaking()) {
    case 1: port_.setFlowControl(QSerialPort::SoftwareControl); break;
    case 2:
    case 3: port_.setFlowControl(QSerialPort::HardwareControl); break;
    default: port_.setFlowControl(QSerialPort::NoFlowControl); break;
    }
    // Lines a pseudo terminal lacks fail harmlessly.
    port_.setDataTerminalReady(dtrEnable());
    if (handshaking() < 2)
        port_.setRequestToSend(rtsEnable());
    port_.clearError();
}

void QtSerialPort::closePort()
{
    reopenTimer_.stop();
    const bool wasOpen = port_.isOpen() || state_ == LineState::Lost;
    port_.close();
    if (wasOpen)
        setState(LineState::Closed);
}

bool QtSerialPort::isOpen() const
{
    return port_.isOpen();
}

std::string QtSerialPort::readAll()
{
    if (!port_.isOpen())
        return {};
    const QByteArray bytes = port_.readAll();
    if (!bytes.isEmpty()) {
        received_ += bytes.size();
        lastReceived_ = QDateTime::currentDateTime();
        emit lineChanged();
    }
    return std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
}

void QtSerialPort::write(const std::string& text)
{
    if (!port_.isOpen())
        return;
    port_.write(text.data(), static_cast<qint64>(text.size()));
    // Out at once, as the station expects of a line without a buffer.
    port_.flush();
}

}  // namespace vistrel::qt
