#include "SerialLine.h"

namespace vistrel::devsim {

namespace {

QSerialPort::Parity parityOf(char letter)
{
    switch (letter) {
    case 'o': return QSerialPort::OddParity;
    case 'e': return QSerialPort::EvenParity;
    case 'm': return QSerialPort::MarkParity;
    case 's': return QSerialPort::SpaceParity;
    default: return QSerialPort::NoParity;
    }
}

QSerialPort::StopBits stopBitsOf(int timesTwo)
{
    switch (timesTwo) {
    case 3: return QSerialPort::OneAndHalfStop;
    case 4: return QSerialPort::TwoStop;
    default: return QSerialPort::OneStop;
    }
}

}  // namespace

std::unique_ptr<SerialLine> SerialLine::open(const std::string& portName, const LineSettings& settings,
    std::string& error, std::string& warning)
{
    std::unique_ptr<SerialLine> line(new SerialLine);
    line->name_ = portName;
    QSerialPort& port = line->port_;
    port.setPortName(QString::fromStdString(portName));
    if (!port.open(QIODevice::ReadWrite)) {
        error = "cannot open " + portName + ": " + port.errorString().toStdString();
#ifndef _WIN32
        if (port.error() == QSerialPort::PermissionError)
            error += " (join the dialout group: sudo usermod -aG dialout $USER, then log in again)";
#endif
        return nullptr;
    }
    // A pseudo-terminal keeps eight bits and no parity whatever it is told,
    // and some adapters lack some speeds: tell, and go on as the station does.
    std::string refused;
    const auto note = [&](bool ok, const std::string& what) {
        if (!ok)
            refused += (refused.empty() ? "" : ", ") + what;
        port.clearError();
    };
    note(port.setBaudRate(settings.baud), std::to_string(settings.baud) + " baud");
    note(port.setParity(parityOf(settings.parity)), std::string("parity ") + settings.parity);
    note(port.setDataBits(static_cast<QSerialPort::DataBits>(settings.dataBits)),
        std::to_string(settings.dataBits) + " data bits");
    note(port.setStopBits(stopBitsOf(settings.stopBitsTimesTwo)), "the stop bits");
    note(port.setFlowControl(QSerialPort::NoFlowControl), "no flow control");
    if (!refused.empty())
        warning = portName + " did not take " + refused + " of " + formatLineSettings(settings);
    // A device raises its modem lines; lines a pseudo-terminal lacks fail harmlessly.
    port.setDataTerminalReady(true);
    port.setRequestToSend(true);
    port.clearError();
    return line;
}

std::string SerialLine::name() const
{
    return name_;
}

Line::State SerialLine::state()
{
    if (!error_.empty())
        return State::Failed;
    if (port_.error() == QSerialPort::ResourceError) {
        error_ = name_ + ": " + port_.errorString().toStdString();
        return State::Failed;
    }
    return State::Ready;
}

bool SerialLine::write(std::string_view bytes)
{
    if (port_.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size())) {
        error_ = "writing to " + name() + ": " + port_.errorString().toStdString();
        return false;
    }
    // Blocking use: hand the bytes over now, so that the pauses between
    // chunks are the pauses on the line.
    while (port_.bytesToWrite() > 0) {
        if (!port_.waitForBytesWritten(3000)) {
            error_ = "writing to " + name() + ": " + port_.errorString().toStdString();
            return false;
        }
    }
    return true;
}

std::string SerialLine::read(std::chrono::milliseconds wait)
{
    if (port_.bytesAvailable() == 0 && !port_.waitForReadyRead(static_cast<int>(wait.count()))) {
        if (port_.error() == QSerialPort::TimeoutError)
            port_.clearError();
        return {};
    }
    const QByteArray bytes = port_.readAll();
    return std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
}

std::string SerialLine::error() const
{
    return error_;
}

}  // namespace vistrel::devsim
