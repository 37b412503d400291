#include "QtSerialPort.h"

#include <QSerialPortInfo>

#include <algorithm>

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

QString serialDeviceName(int port, const QString& override, const QStringList& availablePorts)
{
    if (!override.isEmpty())
        return override;
#ifdef Q_OS_WIN
    Q_UNUSED(availablePorts);
    return QStringLiteral("COM%1").arg(port);
#else
    QStringList sorted = availablePorts;
    sorted.sort();
    if (port >= 1 && port <= sorted.size())
        return sorted[port - 1];
    return QStringLiteral("/dev/ttyS%1").arg(std::max(0, port - 1));
#endif
}

QtSerialPort::QtSerialPort(QObject* parent) : QObject(parent)
{
    connect(&port_, &QSerialPort::readyRead, this, [this] { deliverReceived(); });
}

QtSerialPort::~QtSerialPort()
{
    port_.close();
}

QString QtSerialPort::deviceName() const
{
    QStringList available;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        available << info.systemLocation();
    const QString override = qEnvironmentVariable(QStringLiteral("VISTREL_COM%1").arg(commPort()).toLatin1().constData());
    return serialDeviceName(commPort(), override, available);
}

bool QtSerialPort::openPort()
{
    if (port_.isOpen())
        port_.close();
    port_.setPortName(deviceName());
    // No permission or no device: the station runs on without the line.
    if (!port_.open(QIODevice::ReadWrite))
        return false;
    applySettings();
    return true;
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
    port_.close();
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
