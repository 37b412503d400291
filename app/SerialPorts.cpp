#include "SerialPorts.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSerialPortInfo>
#include <QTextStream>

#include <algorithm>
#include <tuple>

namespace vistrel::qt {

namespace {

// "ttyUSB10" is kind "ttyUSB", number 10; a name without a number sorts
// before the numbered ones of its kind.
struct NameKey {
    QString kind;
    qlonglong number = -1;
};

NameKey nameKey(const QString& name)
{
    static const QRegularExpression trailingNumber(QStringLiteral("^(.*?)(\\d+)$"));
    const QRegularExpressionMatch m = trailingNumber.match(name);
    if (!m.hasMatch())
        return {name, -1};
    return {m.captured(1), m.captured(2).toLongLong()};
}

int kindRank(const QString& kind)
{
    // Adapters a volunteer plugs in come first: port 1 is then the
    // adapter on any machine, with or without a built-in port.
    if (kind == QLatin1String("ttyUSB"))
        return 0;
    if (kind == QLatin1String("ttyACM"))
        return 1;
    if (kind == QLatin1String("ttyS"))
        return 2;
    return 3;
}

bool comNumber(const QString& name, int& number)
{
    if (!name.startsWith(QLatin1String("COM"), Qt::CaseInsensitive))
        return false;
    bool ok = false;
    number = name.mid(3).toInt(&ok);
    return ok;
}

#ifdef Q_OS_LINUX
// The kernel's UART type of a built-in port; 0 (unknown) is a phantom.
std::optional<int> uartType(const QString& name)
{
    QFile file(QStringLiteral("/sys/class/tty/%1/type").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    bool ok = false;
    const int type = QString::fromLatin1(file.readAll()).trimmed().toInt(&ok);
    return ok ? std::optional<int>(type) : std::nullopt;
}
#endif

}  // namespace

PortSystem currentPortSystem()
{
#if defined(Q_OS_WIN)
    return PortSystem::Windows;
#elif defined(Q_OS_LINUX)
    return PortSystem::Linux;
#elif defined(Q_OS_MACOS)
    return PortSystem::MacOS;
#else
    return PortSystem::OtherUnix;
#endif
}

QList<NumberedPort> numberPorts(const QList<SystemPort>& ports, PortSystem system)
{
    QList<NumberedPort> numbered;
    if (system == PortSystem::Windows) {
        for (const SystemPort& p : ports) {
            int n = 0;
            const bool com = comNumber(p.name, n);
            numbered.append({com && n >= FirstStationPort && n <= LastStationPort ? n : 0, p});
        }
        std::stable_sort(numbered.begin(), numbered.end(), [](const NumberedPort& a, const NumberedPort& b) {
            const NameKey ka = nameKey(a.port.name), kb = nameKey(b.port.name);
            return std::tie(ka.kind, ka.number) < std::tie(kb.kind, kb.number);
        });
        return numbered;
    }
    QList<SystemPort> kept;
    for (const SystemPort& p : ports) {
        if (p.phantom)
            continue;
        if (system == PortSystem::MacOS && !p.name.startsWith(QLatin1String("cu.")))
            continue;
        if (std::any_of(kept.begin(), kept.end(), [&](const SystemPort& k) { return k.location == p.location; }))
            continue;
        kept.append(p);
    }
    std::stable_sort(kept.begin(), kept.end(), [](const SystemPort& a, const SystemPort& b) {
        const NameKey ka = nameKey(a.name), kb = nameKey(b.name);
        const int ra = kindRank(ka.kind), rb = kindRank(kb.kind);
        return std::tie(ra, ka.kind, ka.number) < std::tie(rb, kb.kind, kb.number);
    });
    int next = FirstStationPort;
    for (const SystemPort& p : kept) {
        numbered.append({next <= LastStationPort ? next : 0, p});
        ++next;
    }
    return numbered;
}

QList<SystemPort> systemPorts()
{
    QList<SystemPort> ports;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        SystemPort p;
        p.name = info.portName();
        p.location = info.systemLocation();
        p.description = info.description();
        p.manufacturer = info.manufacturer();
        if (info.hasVendorIdentifier())
            p.vendorId = info.vendorIdentifier();
        if (info.hasProductIdentifier())
            p.productId = info.productIdentifier();
        ports.append(p);
    }
#ifdef Q_OS_LINUX
    // Built-in ports: the kernel names 32 of them; those whose UART it
    // doesn't know have no hardware. Qt leaves out the ones it can't open
    // to ask, real ones too when the user isn't in the dialout group.
    const QStringList builtIn = QDir(QStringLiteral("/sys/class/tty"))
                                    .entryList({QStringLiteral("ttyS*")}, QDir::Dirs | QDir::System | QDir::NoDotAndDotDot);
    for (const QString& name : builtIn) {
        const std::optional<int> type = uartType(name);
        auto listed = std::find_if(ports.begin(), ports.end(), [&](const SystemPort& p) { return p.name == name; });
        const bool phantom = type && *type == 0;
        if (listed != ports.end()) {
            listed->phantom = phantom;
        } else if (!phantom && QFile::exists(QStringLiteral("/dev/") + name)) {
            SystemPort p;
            p.name = name;
            p.location = QStringLiteral("/dev/") + name;
            p.description = QStringLiteral("built-in serial port");
            ports.append(p);
        }
    }
#endif
    return ports;
}

PortChoice choosePort(int number, const QString& override, const QList<NumberedPort>& numbered, PortSystem system)
{
    PortChoice choice;
    choice.number = number;
    if (!override.isEmpty()) {
        choice.location = override;
        choice.overridden = true;
        for (const NumberedPort& n : numbered)
            if (n.port.location == override)
                choice.port = n.port;
        return choice;
    }
    for (const NumberedPort& n : numbered) {
        if (n.number == number && number != 0) {
            choice.location = n.port.location;
            choice.port = n.port;
            return choice;
        }
    }
    // Windows opens COMn whether or not the list knows it: some adapters'
    // drivers don't tell the list until they are opened.
    if (system == PortSystem::Windows && number >= FirstStationPort && number <= LastStationPort)
        choice.location = QStringLiteral("COM%1").arg(number);
    return choice;
}

PortChoice choosePort(int number)
{
    const QString override = qEnvironmentVariable(QStringLiteral("VISTREL_COM%1").arg(number).toLatin1().constData());
    const PortSystem system = currentPortSystem();
    // The system's list is only needed when no override names the device.
    const QList<NumberedPort> numbered = override.isEmpty() ? numberPorts(systemPorts(), system) : QList<NumberedPort>{};
    return choosePort(number, override, numbered, system);
}

QMap<int, QString> portOverrides()
{
    QMap<int, QString> overrides;
    for (int n = FirstStationPort; n <= LastStationPort; ++n) {
        const QString value = qEnvironmentVariable(QStringLiteral("VISTREL_COM%1").arg(n).toLatin1().constData());
        if (!value.isEmpty())
            overrides.insert(n, value);
    }
    return overrides;
}

QString portListing(const QList<NumberedPort>& numbered, int phantoms, const QMap<int, QString>& overrides)
{
    QString text;
    QTextStream out(&text);
    auto cell = [](QString value, int width) {
        if (value.isEmpty())
            value = QStringLiteral("-");
        return value.leftJustified(width);
    };
    out << cell(QStringLiteral("PORT"), 5) << ' ' << cell(QStringLiteral("DEVICE"), 21) << ' '
        << cell(QStringLiteral("DESCRIPTION"), 29) << ' ' << cell(QStringLiteral("MANUFACTURER"), 19) << ' ' << "VID:PID\n";
    for (const NumberedPort& n : numbered) {
        const SystemPort& p = n.port;
        QString ids;
        if (p.vendorId || p.productId)
            ids = QStringLiteral("%1:%2")
                      .arg(p.vendorId ? QStringLiteral("%1").arg(*p.vendorId, 4, 16, QLatin1Char('0')) : QStringLiteral("?"),
                          p.productId ? QStringLiteral("%1").arg(*p.productId, 4, 16, QLatin1Char('0')) : QStringLiteral("?"));
        out << cell(n.number > 0 ? QString::number(n.number) : QString(), 5) << ' ' << cell(p.location, 21) << ' '
            << cell(p.description, 29) << ' ' << cell(p.manufacturer, 19) << ' ' << (ids.isEmpty() ? QStringLiteral("-") : ids)
            << '\n';
    }
    if (numbered.isEmpty())
        out << "No serial ports found.\n";
    for (auto it = overrides.begin(); it != overrides.end(); ++it)
        out << "Port " << it.key() << " is " << it.value() << " (set by VISTREL_COM" << it.key() << ").\n";
    if (phantoms > 0)
        out << phantoms << (phantoms == 1 ? " built-in port name" : " built-in port names")
            << " without hardware behind left out.\n";
    if (std::any_of(numbered.begin(), numbered.end(), [](const NumberedPort& n) { return n.number == 0; }))
        out << "A port marked - has no number the station's options can choose (" << FirstStationPort << " to "
            << LastStationPort << ").\n";
    return text;
}

}  // namespace vistrel::qt
