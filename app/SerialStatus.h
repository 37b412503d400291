#pragma once

#include "QtSerialPort.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>

#include <string>

#include <QLabel>

namespace vistrel {
class Frm_Vistrel;
}

namespace vistrel::qt {

class FormWindow;

// The autorefractor's name as a person knows it, from the options' keyword
// ("CANON RK-2" is "Canon RK-2"); empty for none.
QString autorefractorName(const std::string& keyword);

// All a status line says of the serial port.
struct LineReport {
    LineState state = LineState::NotOpened;
    int port = 0;
    QString device;        // empty when the number leads nowhere
    QString model;         // empty: no autorefractor in the options
    QString detail;        // the system's words for a failure
    qint64 received = 0;
    QDateTime lastReceived;
    bool reopened = false;
    PortSystem system = PortSystem::Linux;
};
QString lineStatusText(const LineReport& report);

// The main window's status line: which device was opened for which
// autorefractor, or why none was. The station itself stays silent when
// the port fails, so this is where a volunteer finds out.
class SerialStatus : public QObject {
    Q_OBJECT
public:
    SerialStatus(QtSerialPort& port, const Frm_Vistrel& station, FormWindow& mainWindow);

    QString text() const;
    QLabel* label() const { return label_; }

    void refresh();

private:
    QtSerialPort& port_;
    const Frm_Vistrel& station_;
    FormWindow& window_;
    QPointer<QLabel> label_;
};

}  // namespace vistrel::qt
