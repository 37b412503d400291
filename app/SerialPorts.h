#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace vistrel::qt {

// A serial port the system has, as the desktop describes it.
struct SystemPort {
    QString name;          // "ttyUSB0", "COM3"
    QString location;      // "/dev/ttyUSB0", "COM3"
    QString description;   // "FT232R USB UART"
    QString manufacturer;  // "FTDI"
    std::optional<quint16> vendorId;
    std::optional<quint16> productId;
    // A built-in port name with no hardware behind it: Linux makes
    // ttyS0 to ttyS31 whether or not the machine has those ports.
    bool phantom = false;
};

// A port with the station's number, 1 to 16, or 0 when it gets none.
struct NumberedPort {
    int number = 0;
    SystemPort port;
};

enum class PortSystem { Windows, Linux, MacOS, OtherUnix };
PortSystem currentPortSystem();

// The numbers the station can be given in its options.
constexpr int FirstStationPort = 1;
constexpr int LastStationPort = 16;

// The station's numbers for the ports a system has. On Windows port n is
// COMn. Elsewhere the ports are numbered in a fixed order, so that a
// number means the same port from one start to the next: plugged-in
// adapters first (ttyUSB, then ttyACM), then built-in ports (ttyS), then
// any other, each kind by its number (ttyUSB2 before ttyUSB10). Phantom
// ports are left out; on macOS only the call-out devices (cu.*) count.
QList<NumberedPort> numberPorts(const QList<SystemPort>& ports, PortSystem system);

// The ports the system has, phantoms marked: QSerialPortInfo's list, and
// on Linux the built-in ports it leaves out when the user may not open
// them (so that "permission denied" is told rather than "no such port").
QList<SystemPort> systemPorts();

// Where port n of the station leads.
struct PortChoice {
    int number = 0;
    QString location;          // empty: this machine has no such port
    bool overridden = false;   // named by VISTREL_COM<n>
    std::optional<SystemPort> port;  // what the system says of it, if known
};
PortChoice choosePort(int number, const QString& override, const QList<NumberedPort>& numbered,
    PortSystem system);
// The same on this machine, with the VISTREL_COM<n> override.
PortChoice choosePort(int number);

// The VISTREL_COM<n> overrides that are set, by number.
QMap<int, QString> portOverrides();

// The text of `vistrel --list-ports`.
QString portListing(const QList<NumberedPort>& numbered, int phantoms, const QMap<int, QString>& overrides);

}  // namespace vistrel::qt
