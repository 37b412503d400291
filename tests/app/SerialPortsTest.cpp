// Which system port a station's port number opens, why an open failed,
// and what the status line then says.

#include "QtSerialPort.h"
#include "SerialPorts.h"
#include "SerialStatus.h"

#include <QtTest>

using namespace vistrel::qt;

namespace {

SystemPort port(const QString& name, bool phantom = false)
{
    SystemPort p;
    p.name = name;
    p.location = name.startsWith(QLatin1String("COM")) ? name : QStringLiteral("/dev/") + name;
    p.phantom = phantom;
    return p;
}

QStringList order(const QList<NumberedPort>& numbered)
{
    QStringList names;
    for (const NumberedPort& n : numbered)
        names << QStringLiteral("%1=%2").arg(n.number).arg(n.port.name);
    return names;
}

LineReport report(LineState state, const QString& device = QStringLiteral("/dev/ttyUSB0"))
{
    LineReport r;
    r.state = state;
    r.port = 1;
    r.device = device;
    r.model = QStringLiteral("Canon RK-2");
    r.system = PortSystem::Linux;
    return r;
}

}  // namespace

class SerialPortsTest : public QObject {
    Q_OBJECT

private slots:
    // ---- numbering ----
    void adaptersComeFirstThenBuiltInPortsEachByNumber()
    {
        const QList<SystemPort> ports{port(QStringLiteral("ttyS1")), port(QStringLiteral("ttyUSB10")),
            port(QStringLiteral("ttyACM0")), port(QStringLiteral("ttyUSB2")), port(QStringLiteral("ttyS0")),
            port(QStringLiteral("ttyAMA0"))};
        QCOMPARE(order(numberPorts(ports, PortSystem::Linux)),
            QStringList({"1=ttyUSB2", "2=ttyUSB10", "3=ttyACM0", "4=ttyS0", "5=ttyS1", "6=ttyAMA0"}));
        // The order doesn't depend on the order the system lists them in.
        QList<SystemPort> reversed(ports.rbegin(), ports.rend());
        QCOMPARE(order(numberPorts(reversed, PortSystem::Linux)), order(numberPorts(ports, PortSystem::Linux)));
    }

    void phantomsAndPortsPastSixteenTakeNoNumber()
    {
        QList<SystemPort> ports;
        for (int i = 0; i < 32; ++i)
            ports << port(QStringLiteral("ttyS%1").arg(i), i != 0);
        for (int i = 0; i < 16; ++i)
            ports << port(QStringLiteral("ttyUSB%1").arg(i));
        const QList<NumberedPort> numbered = numberPorts(ports, PortSystem::Linux);
        QCOMPARE(order(numbered).mid(14), QStringList({"15=ttyUSB14", "16=ttyUSB15", "0=ttyS0"}));
        QCOMPARE(choosePort(17, QString(), numbered, PortSystem::Linux).location, QString());
        // On macOS only the call-out devices count.
        QCOMPARE(order(numberPorts({port(QStringLiteral("tty.usbserial-A1")), port(QStringLiteral("cu.usbserial-A1"))},
                     PortSystem::MacOS)),
            QStringList({"1=cu.usbserial-A1"}));
    }

    void windowsPortNIsComN()
    {
        const QList<NumberedPort> numbered =
            numberPorts({port(QStringLiteral("COM12")), port(QStringLiteral("COM3")), port(QStringLiteral("COM20"))},
                PortSystem::Windows);
        QCOMPARE(order(numbered), QStringList({"3=COM3", "12=COM12", "0=COM20"}));
        QCOMPARE(choosePort(12, QString(), numbered, PortSystem::Windows).location, QStringLiteral("COM12"));
        // A port the list doesn't know is still tried by its name.
        QCOMPARE(choosePort(5, QString(), numbered, PortSystem::Windows).location, QStringLiteral("COM5"));
    }

    void theOverrideWinsAndAMissingNumberLeadsNowhere()
    {
        const QList<NumberedPort> numbered = numberPorts({port(QStringLiteral("ttyUSB0"))}, PortSystem::Linux);
        const PortChoice overridden = choosePort(1, QStringLiteral("/dev/pts/4"), numbered, PortSystem::Linux);
        QCOMPARE(overridden.location, QStringLiteral("/dev/pts/4"));
        QVERIFY(overridden.overridden);
        const PortChoice first = choosePort(1, QString(), numbered, PortSystem::Linux);
        QCOMPARE(first.location, QStringLiteral("/dev/ttyUSB0"));
        QVERIFY(first.port.has_value());
        QCOMPARE(choosePort(2, QString(), numbered, PortSystem::Linux).location, QString());
    }

    void theListingShowsNumbersAndIdentifiers()
    {
        SystemPort ftdi = port(QStringLiteral("ttyUSB0"));
        ftdi.description = QStringLiteral("FT232R USB UART");
        ftdi.manufacturer = QStringLiteral("FTDI");
        ftdi.vendorId = 0x0403;
        ftdi.productId = 0x6001;
        const QString text = portListing(numberPorts({ftdi}, PortSystem::Linux), 31, {{2, QStringLiteral("/dev/pts/3")}});
        const QStringList lines = text.split(QLatin1Char('\n'));
        QVERIFY2(lines.value(1).startsWith(QStringLiteral("1     /dev/ttyUSB0")), qPrintable(text));
        QVERIFY(lines.value(1).contains(QStringLiteral("FT232R USB UART")));
        QVERIFY(lines.value(1).endsWith(QStringLiteral("0403:6001")));
        // Columns line up under their headings.
        QCOMPARE(lines.value(1).indexOf(QStringLiteral("FT232R")), lines.value(0).indexOf(QStringLiteral("DESCRIPTION")));
        QCOMPARE(lines.value(1).indexOf(QStringLiteral("FTDI")), lines.value(0).indexOf(QStringLiteral("MANUFACTURER")));
        QVERIFY(text.contains(QStringLiteral("Port 2 is /dev/pts/3 (set by VISTREL_COM2).")));
        QVERIFY(text.contains(QStringLiteral("31 built-in port names")));
    }

    // ---- failures to open ----
    void aRefusedOpenIsToldByTheDevicesRights()
    {
        QCOMPARE(openFailure(QSerialPort::PermissionError, true, PortSystem::Linux), LineState::PermissionDenied);
        // The user may use it, so another program holds it (its lock file).
        QCOMPARE(openFailure(QSerialPort::PermissionError, false, PortSystem::Linux), LineState::Busy);
        QCOMPARE(openFailure(QSerialPort::PermissionError, false, PortSystem::Windows), LineState::Busy);
        QCOMPARE(openFailure(QSerialPort::DeviceNotFoundError, false, PortSystem::Linux), LineState::NoSuchPort);
        QCOMPARE(openFailure(QSerialPort::UnsupportedOperationError, false, PortSystem::Linux), LineState::Failed);
    }

    // ---- the status line ----
    void anOpenPortSaysWhetherAnythingCame()
    {
        LineReport r = report(LineState::Open);
        QCOMPARE(lineStatusText(r), QStringLiteral("Autorefractor Canon RK-2 on /dev/ttyUSB0 (port 1): open, nothing received yet."));
        r.received = 312;
        r.lastReceived = QDateTime(QDate(2025, 3, 12), QTime(14, 2, 31));
        QCOMPARE(lineStatusText(r),
            QStringLiteral("Autorefractor Canon RK-2 on /dev/ttyUSB0 (port 1): 312 characters received, the last at 14:02:31."));
    }

    void aFailedOpenSaysWhy()
    {
        const QString denied = lineStatusText(report(LineState::PermissionDenied));
        QVERIFY(denied.startsWith(QStringLiteral("Autorefractor Canon RK-2: could not open /dev/ttyUSB0 (port 1): permission denied.")));
        QVERIFY(denied.contains(QStringLiteral("sudo usermod -aG dialout $USER")));
        QVERIFY(denied.contains(QStringLiteral("another program holds the port")));
        LineReport windows = report(LineState::PermissionDenied, QStringLiteral("COM3"));
        windows.system = PortSystem::Windows;
        QVERIFY(!lineStatusText(windows).contains(QStringLiteral("dialout")));
        QVERIFY(lineStatusText(report(LineState::Busy)).endsWith(QStringLiteral("(port 1): busy: another program has the port open.")));
        QVERIFY(lineStatusText(report(LineState::NoSuchPort, QString()))
                    .startsWith(QStringLiteral("Autorefractor Canon RK-2: could not open port 1: this computer has no such port")));
        QVERIFY(lineStatusText(report(LineState::Lost)).contains(QStringLiteral("went away")));
    }
};

QTEST_MAIN(SerialPortsTest)
#include "SerialPortsTest.moc"
