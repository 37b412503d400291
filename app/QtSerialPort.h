#pragma once

#include "platform/SerialPort.h"

#include <QObject>
#include <QSerialPort>
#include <QStringList>

namespace vistrel::qt {

// The line settings as the station writes them: "9600,n,8,1".
struct SerialSettings {
    qint32 baud = 9600;
    QSerialPort::Parity parity = QSerialPort::NoParity;
    QSerialPort::DataBits dataBits = QSerialPort::Data8;
    QSerialPort::StopBits stopBits = QSerialPort::OneStop;
};
// Unreadable parts keep their defaults.
SerialSettings parseSerialSettings(const std::string& text);

// The device of port number n: the override (VISTREL_COM<n>) when given,
// else COM<n> on Windows, else the n-th of the machine's ports in name
// order, else the n-th standard serial device.
QString serialDeviceName(int port, const QString& override, const QStringList& availablePorts);

// The autorefractor's serial line through QSerialPort. Arriving characters
// raise the station's receive event on the screens' thread.
class QtSerialPort : public QObject, public SerialPort {
    Q_OBJECT
public:
    explicit QtSerialPort(QObject* parent = nullptr);
    ~QtSerialPort() override;

    // The device the current port number stands for.
    QString deviceName() const;

protected:
    bool openPort() override;
    void closePort() override;
    bool isOpen() const override;
    std::string readAll() override;
    void write(const std::string& text) override;
    void applySettings() override;

private:
    QSerialPort port_;
};

}  // namespace vistrel::qt
