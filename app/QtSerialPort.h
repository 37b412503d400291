#pragma once

#include "SerialPorts.h"

#include "platform/SerialPort.h"

#include <QDateTime>
#include <QObject>
#include <QSerialPort>
#include <QStringList>
#include <QTimer>

#include <optional>

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

// What became of the line, for the person at the station: the station
// itself runs on by hand without a word when the port fails.
enum class LineState {
    NotOpened,         // the station hasn't asked for it yet
    Open,              // open; see receivedCount() for whether anything came
    NoSuchPort,        // the number leads nowhere, or the device isn't there
    PermissionDenied,  // the user may not open the device
    Busy,              // another program has it
    Failed,            // any other failure to open; see errorText()
    Lost,              // it went away while open (an adapter pulled out)
    Closed,            // the station closed it
};

// Why an open failed, from Qt's error and whether the user may use the
// device at all (on Windows a refused open means another program has it).
LineState openFailure(QSerialPort::SerialPortError error, bool accessDenied, PortSystem system);

// The autorefractor's serial line through QSerialPort. Arriving characters
// raise the station's receive event on the screens' thread.
class QtSerialPort : public QObject, public SerialPort {
    Q_OBJECT
public:
    explicit QtSerialPort(QObject* parent = nullptr);
    ~QtSerialPort() override;

    // The device the current port number stands for.
    QString deviceName() const;

    LineState lineState() const { return state_; }
    // The port last opened or tried, as it was chosen.
    const PortChoice& choice() const { return choice_; }
    // Qt's words for the last failure.
    const QString& errorText() const { return errorText_; }
    // Characters taken in since the port was last opened, and when the last came.
    qint64 receivedCount() const { return received_; }
    const QDateTime& lastReceived() const { return lastReceived_; }
    // Open again after it was lost.
    bool reopened() const { return reopened_; }

    // How often a lost device is looked for.
    void setReopenInterval(int ms) { reopenTimer_.setInterval(ms); }

signals:
    // The state, the device or the count of characters changed.
    void lineChanged();

protected:
    bool openPort() override;
    void closePort() override;
    bool isOpen() const override;
    std::string readAll() override;
    void write(const std::string& text) override;
    void applySettings() override;

private:
    bool open(const PortChoice& choice);
    void setState(LineState state);
    void errorOccurred(QSerialPort::SerialPortError error);
    bool hungUp() const;
    void tryReopen();

    QSerialPort port_;
    PortChoice choice_;
    LineState state_ = LineState::NotOpened;
    QString errorText_;
    qint64 received_ = 0;
    QDateTime lastReceived_;
    bool reopened_ = false;
    QTimer reopenTimer_;
};

}  // namespace vistrel::qt
