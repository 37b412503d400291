// The window program's serial path against a device on a real line: a
// pseudo-terminal stands in for the cable, the far end sends a recorded
// device message in small pieces as a device does and answers the
// station's requests, and the reading must reach the main screen and the
// readings file. Also the status line, and an adapter pulled out.

#include "FormWindow.h"
#include "QtPlatform.h"
#include "SerialStatus.h"
#include "StationWindows.h"
#include "StaticBindings.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <mutex>
#include <random>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#ifndef VISTREL_DEVICE_DATA
#error "VISTREL_DEVICE_DATA names the folder of recorded device messages"
#endif

using namespace vistrel;
using namespace std::chrono_literals;

namespace {

// Long enough for the slowest device (a look every 2 s, two looks) on a
// busy machine; the tests wait on conditions, never this long when well.
constexpr int ReadingDeadlineMs = 15000;

// A cable: the station opens the slave side, the test is the device at
// the master side. The slave is set raw before the station opens it, and
// the test keeps it open, so the master never reads an early hang-up.
class PseudoLine {
public:
    PseudoLine()
    {
        master_ = posix_openpt(O_RDWR | O_NOCTTY);
        if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0)
            return;
        slaveName_ = ptsname(master_);
        slave_ = ::open(slaveName_.constData(), O_RDWR | O_NOCTTY);
        termios t{};
        if (slave_ >= 0 && tcgetattr(slave_, &t) == 0) {
            cfmakeraw(&t);
            tcsetattr(slave_, TCSANOW, &t);
        }
    }
    ~PseudoLine()
    {
        unplug();
        if (slave_ >= 0)
            ::close(slave_);
    }
    PseudoLine(const PseudoLine&) = delete;
    PseudoLine& operator=(const PseudoLine&) = delete;

    bool ok() const { return master_ >= 0 && slave_ >= 0; }
    const QByteArray& slaveName() const { return slaveName_; }
    int master() const { return master_; }

    // The device side goes away, as an adapter pulled out does.
    void unplug()
    {
        if (master_ >= 0)
            ::close(master_);
        master_ = -1;
    }

private:
    int master_ = -1;
    int slave_ = -1;
    QByteArray slaveName_;
};

// A recorded case: what the device sends (one transmission, or one per
// step of a dialogue) and what the station must make of it.
struct DeviceCase {
    std::vector<QByteArray> transmissions;
    QByteArray replies;
    QStringList left, right;  // sphere, cylinder, axis
    QString check;
};

// "\x01CRM\r" as the expectations write bytes.
QByteArray unescape(const QByteArray& text)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.mid(i, 2) == "\\x" && i + 3 < text.size()) {
            bytes.append(static_cast<char>(text.mid(i + 2, 2).toInt(nullptr, 16)));
            i += 3;
        } else if (text.mid(i, 2) == "\\r" || text.mid(i, 2) == "\\n") {
            bytes.append(text[++i] == 'r' ? '\r' : '\n');
        } else {
            bytes.append(text[i]);
        }
    }
    return bytes;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

DeviceCase loadCase(const QString& folder, const QString& name)
{
    DeviceCase c;
    const QDir dir(QStringLiteral(VISTREL_DEVICE_DATA "/") + folder);
    if (dir.exists(name + QStringLiteral(".msg"))) {
        c.transmissions.push_back(readAll(dir.filePath(name + QStringLiteral(".msg"))));
    } else {
        for (int step = 1; dir.exists(QStringLiteral("%1.%2.msg").arg(name).arg(step)); ++step)
            c.transmissions.push_back(readAll(dir.filePath(QStringLiteral("%1.%2.msg").arg(name).arg(step))));
    }
    for (const QByteArray& line : readAll(dir.filePath(name + QStringLiteral(".expected"))).split('\n')) {
        const qsizetype eq = line.indexOf('=');
        if (eq < 0)
            continue;
        const QByteArray key = line.left(eq).trimmed();
        const QByteArray value = line.mid(eq + 1).chopped(line.endsWith('\r') ? 1 : 0);
        if (key == "left")
            c.left = QString::fromLatin1(value).split(QLatin1Char('|'));
        else if (key == "right")
            c.right = QString::fromLatin1(value).split(QLatin1Char('|'));
        else if (key == "replies")
            c.replies = unescape(value);
        else if (key == "check")
            c.check = QString::fromLatin1(value).trimmed();
    }
    return c;
}

// A message in the pieces a device's line gives a reader: a few bytes at
// a time, one cut inside the first number and one between CR and LF.
std::vector<QByteArray> awkwardPieces(const QByteArray& message, unsigned seed)
{
    std::vector<qsizetype> cuts;
    for (qsizetype i = 1; i + 1 < message.size(); ++i)
        if (std::isdigit(static_cast<unsigned char>(message[i])) && std::isdigit(static_cast<unsigned char>(message[i + 1]))) {
            cuts.push_back(i + 1);
            break;
        }
    if (const qsizetype crlf = message.indexOf("\r\n"); crlf >= 0)
        cuts.push_back(crlf + 1);
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> size(1, 9);
    for (qsizetype at = size(random); at < message.size(); at += size(random))
        cuts.push_back(at);
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
    std::vector<QByteArray> pieces;
    qsizetype from = 0;
    for (qsizetype cut : cuts) {
        if (cut <= from || cut >= message.size())
            continue;
        pieces.push_back(message.mid(from, cut - from));
        from = cut;
    }
    pieces.push_back(message.mid(from));
    return pieces;
}

// The device at the far end, on a thread of its own as real hardware is:
// sends each transmission in pieces a few milliseconds apart; in a
// dialogue waits for the station's answer before the next one.
class Device {
public:
    Device(int master, std::vector<QByteArray> transmissions) : master_(master)
    {
        thread_ = std::thread([this, t = std::move(transmissions)] { run(t); });
    }
    ~Device()
    {
        stop_ = true;
        if (thread_.joinable())
            thread_.join();
    }

    bool finished() const { return finished_; }
    QByteArray replies() const
    {
        std::lock_guard lock(mutex_);
        return replies_;
    }
    // Whatever the station wrote since, read without waiting.
    void drain() { collect(0); }

private:
    void run(const std::vector<QByteArray>& transmissions)
    {
        unsigned seed = 7;
        for (size_t t = 0; t < transmissions.size() && !stop_; ++t) {
            for (const QByteArray& piece : awkwardPieces(transmissions[t], seed++)) {
                if (::write(master_, piece.constData(), static_cast<size_t>(piece.size())) != piece.size())
                    return;
                std::this_thread::sleep_for(3ms);
            }
            const bool last = t + 1 == transmissions.size();
            // A dialogue goes on only once the station has answered.
            if (!last && !awaitReply())
                return;
        }
        finished_ = true;
    }

    bool awaitReply()
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(ReadingDeadlineMs);
        const qsizetype before = replies().size();
        while (!stop_ && std::chrono::steady_clock::now() < deadline) {
            collect(50);
            if (replies().size() > before) {
                collect(30);  // the rest of a reply written in one go
                return true;
            }
        }
        return false;
    }

    void collect(int waitMs)
    {
        pollfd p{master_, POLLIN, 0};
        while (::poll(&p, 1, waitMs) > 0 && (p.revents & POLLIN)) {
            char bytes[256];
            const ssize_t n = ::read(master_, bytes, sizeof bytes);
            if (n <= 0)
                return;
            std::lock_guard lock(mutex_);
            replies_.append(bytes, n);
            waitMs = 0;
        }
    }

    int master_;
    std::thread thread_;
    std::atomic<bool> stop_{false};
    std::atomic<bool> finished_{false};
    mutable std::mutex mutex_;
    QByteArray replies_;
};

// Message boxes are accepted and modal screens closed, and counted.
class QuietPerson : public qt::DialogWatcher {
public:
    int messages = 0;
    void messageShown(QMessageBox& box) override
    {
        ++messages;
        QTimer::singleShot(0, &box, [&box] { box.accept(); });
    }
    void modalShown(Form& form, QWidget*) override
    {
        QTimer::singleShot(0, [&form] { form.closeBox(); });
    }
};

void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// A started station in its windows, its autorefractor on port 1.
class StationOnLine {
public:
    StationOnLine(const QByteArray& model, const QByteArray& device)
    {
        qputenv("VISTREL_DOCUMENTS", folders_.filePath(QStringLiteral("documents")).toUtf8());
        qputenv("VISTREL_SHARED", folders_.filePath(QStringLiteral("shared")).toUtf8());
        qputenv("VISTREL_COM1", device);
        writeFile(folders_.filePath(QStringLiteral("shared/Application Data/Vistrel/Vistrel-Options.txt")),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,YES," + model
                + ", 1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,100,101,2.50,102,103,2.50,104,105,"
                  "2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,32000\r\n");
        QByteArray inventory;
        for (int n = 1; n <= 6; ++n)
            inventory += QByteArray::number(n) + ",-2.25,-0.75,180,0.00,1.50,-0.50,90,0.00,0,0,0,0,0,M,0,\"\",\"\",\"\"\r\n";
        writeFile(folders_.filePath(QStringLiteral("documents/Vistrel/Total_Inventory.txt")), inventory);

        platform_ = std::make_unique<qt::QtPlatform>();
        station_ = std::make_unique<Station>(*platform_);
        windows_ = std::make_unique<qt::StationWindows>(station_->forms(), station_->vistrel(), qt::Metrics(1.0, 96.0));
        platform_->setWindows(windows_.get());
        platform_->setDialogWatcher(&person_);
        platform_->qtSerialPort().setReopenInterval(50);
        windows_->main().window()->show();
        station_->start();
    }
    ~StationOnLine()
    {
        windows_.reset();
        station_.reset();
        platform_.reset();
        qunsetenv("VISTREL_COM1");
    }

    Frm_Vistrel& main() const { return station_->vistrel(); }
    Frm_Autorefractor& capture() const { return station_->autorefractor(); }
    qt::QtPlatform& platform() const { return *platform_; }
    qt::StationWindows& windows() const { return *windows_; }
    int messages() const { return person_.messages; }
    QString status() const { return platform_->serialStatus()->label()->text(); }

    QList<QByteArray> readings() const
    {
        QList<QByteArray> lines =
            readAll(folders_.filePath(QStringLiteral("documents/Vistrel/AutoRefractorReadings.txt"))).split('\n');
        lines.removeAll(QByteArray());
        lines.removeAll(QByteArray("\r"));
        return lines;
    }

private:
    QTemporaryDir folders_;
    QuietPerson person_;
    std::unique_ptr<qt::QtPlatform> platform_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<qt::StationWindows> windows_;
};

// An axis of 180 reaches the main screen as 0.
double axisValue(const QString& text)
{
    const double axis = Val(text.toStdString());
    return axis == 180 ? 0 : axis;
}

}  // namespace

class SerialTransportTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        PseudoLine probe;
        if (!probe.ok())
            QSKIP("no pseudo-terminals on this machine");
    }

    void aReadingTravelsFromTheLineToTheMainScreen_data()
    {
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        // One device of each family; where a family has models with a
        // quicker look at the line, that one (the RK600 looks every 0.2 s,
        // the Shin Nippon every 2 s).
        QTest::newRow("Retinomax") << QByteArray("NIKON RETINOMAX") << "retinomax" << "minus-sphere";
        QTest::newRow("Topcon") << QByteArray("TOPCON KR-3000-7000") << "topcon" << "both-eyes";
        QTest::newRow("Burton Velo") << QByteArray("BURTON VELO 20-10") << "burton-velo" << "both-eyes";
        QTest::newRow("RK600") << QByteArray("REICHERT RK600") << "reichert-rk600" << "both-eyes";
        QTest::newRow("Humphrey") << QByteArray("HUMPHREY 597") << "humphrey-597" << "both-eyes";
        QTest::newRow("Suresight") << QByteArray("WELCHALLYN SURESIGHT") << "suresight" << "both-eyes";
        QTest::newRow("Marco Nidek") << QByteArray("MARCONIDEK ARK-20/30") << "marco-nidek" << "both-eyes";
        QTest::newRow("Canon") << QByteArray("CANON RK-2") << "canon-rk2" << "both-eyes";
    }

    void aReadingTravelsFromTheLineToTheMainScreen()
    {
        QFETCH(QByteArray, model);
        QFETCH(QString, folder);
        QFETCH(QString, name);
        const DeviceCase c = loadCase(folder, name);
        if (c.transmissions.empty() || c.left.size() != 3 || c.right.size() != 3)
            QSKIP(qPrintable(QStringLiteral("no recorded message %1/%2 yet").arg(folder, name)));
        QCOMPARE(c.check, QStringLiteral("OK"));

        PseudoLine line;
        StationOnLine station(model, line.slaveName());
        QVERIFY(station.platform().serialPort().portOpen());
        QVERIFY(!station.capture().visible());
        const qsizetype before = station.readings().size();

        Device device(line.master(), c.transmissions);
        QVERIFY2(QTest::qWaitFor([&] { return station.readings().size() > before; }, ReadingDeadlineMs),
            "no reading was written");
        // The device may still be taking the station's last reply.
        QVERIFY(QTest::qWaitFor([&] { return device.finished(); }, ReadingDeadlineMs));

        // The capture screen rose by itself, with the good look.
        QVERIFY(station.capture().visible());
        QVERIFY(station.windows().windowFor(station.capture())->window()->isVisible());
        QCOMPARE(QString::fromStdString(station.capture().Lbl_ErrorStatus.caption()), QStringLiteral("                     OK"));
        QVERIFY(!station.capture().EntryError);

        // The values are on the main screen and in the file's new line.
        Frm_Vistrel& v = station.main();
        const QList<QByteArray> fields = station.readings().last().trimmed().split(',');
        QCOMPARE(fields.size(), 10);
        const struct {
            const TextBox& box;
            QString expected;
            int field;
            bool axis;
        } values[] = {
            {v.Txt_Sphere_Right, c.right[0], 2, false}, {v.Txt_Cylinder_Right, c.right[1], 3, false},
            {v.Txt_Axis_Right, c.right[2], 4, true}, {v.Txt_Sphere_Left, c.left[0], 5, false},
            {v.Txt_Cylinder_Left, c.left[1], 6, false}, {v.Txt_Axis_Left, c.left[2], 7, true},
        };
        for (const auto& value : values) {
            const double want = value.axis ? axisValue(value.expected) : Val(value.expected.toStdString());
            QVERIFY2(!value.expected.trimmed().isEmpty(), value.box.name().c_str());
            QCOMPARE(Val(value.box.text()), want);
            QCOMPARE(Val(fields[value.field].toStdString()), want);
        }

        // A dialogue was answered on the line, and nothing else was said.
        device.drain();
        QCOMPARE(device.replies(), c.replies);
        QCOMPARE(station.messages(), 0);
        QVERIFY2(station.status().contains(QStringLiteral("characters received")), qPrintable(station.status()));
    }

    void anEntryErrorShowsItsLookAndLeavesTheMainScreen()
    {
        // A result the device garbled: the station asked for it and gets
        // nothing it can read, for either eye.
        const DeviceCase c = loadCase(QStringLiteral("marco-nidek"), QStringLiteral("garbled-result"));
        if (c.transmissions.empty())
            QSKIP("no recorded message yet");
        QCOMPARE(c.check, QStringLiteral("ENTRY ERROR"));
        PseudoLine line;
        StationOnLine station("MARCONIDEK ARK-20/30", line.slaveName());
        const qsizetype before = station.readings().size();
        Device device(line.master(), c.transmissions);
        QVERIFY(QTest::qWaitFor([&] { return station.readings().size() > before; }, ReadingDeadlineMs));

        const Label& label = station.capture().Lbl_ErrorStatus;
        QCOMPARE(QString::fromStdString(label.caption()), QStringLiteral("ENTRY ERROR! HIDE && RETRY."));
        QVERIFY(station.capture().EntryError);
        auto* shown = dynamic_cast<qt::BorderLabel*>(station.windows().windowFor(station.capture())->widgetFor(label));
        QVERIFY(shown && shown->isVisibleTo(shown->window()));
        QCOMPARE(shown->text(), QStringLiteral("ENTRY ERROR! HIDE & RETRY."));
        QVERIFY(shown->border());
        QCOMPARE(shown->palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(shown->palette().color(QPalette::Window), QColor(Qt::white));
        QVERIFY(Val(station.main().Txt_Sphere_Right.text()) == 0);

    }

    void theCaptureScreenComesUpWithoutTakingTheKeyboard()
    {
        const DeviceCase c = loadCase(QStringLiteral("topcon"), QStringLiteral("both-eyes"));
        if (c.transmissions.empty())
            QSKIP("no recorded message yet");
        PseudoLine line;
        StationOnLine station("TOPCON KR-3000-7000", line.slaveName());
        QWidget* mainWindow = station.windows().main().window();
        QVERIFY(QTest::qWaitForWindowActive(mainWindow));
        auto* age = qobject_cast<QLineEdit*>(station.windows().main().widgetFor(station.main().Txt_Age));
        age->setFocus();
        QTest::keyClicks(age, QStringLiteral("4"));
        QCOMPARE(QApplication::focusWidget(), age);

        Device device(line.master(), c.transmissions);
        QWidget* capture = station.windows().windowFor(station.capture())->window();
        QVERIFY(QTest::qWaitFor([&] { return capture->isVisible(); }, ReadingDeadlineMs));
        // The volunteer types on where they were.
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("5"));
        QCOMPARE(QString::fromStdString(station.main().Txt_Age.text()), QStringLiteral("45"));
        QCOMPARE(QApplication::focusWidget(), age);
        QVERIFY(QTest::qWaitFor([&] { return Val(station.main().Txt_Axis_Left.text()) == 90; }, ReadingDeadlineMs));
        QVERIFY(capture->isVisible());
    }

    void theStatusLineTellsAnOpenPortFromOneThatFailed()
    {
        {
            PseudoLine line;
            StationOnLine station("CANON RK-2", line.slaveName());
            QCOMPARE(station.status(),
                QStringLiteral("Autorefractor Canon RK-2 on %1 (port 1): open, nothing received yet.")
                    .arg(QString::fromLatin1(line.slaveName())));
            QVERIFY(station.windows().main().window()->findChild<QLabel*>(QStringLiteral("SerialStatus"))->isVisible());
        }
        StationOnLine station("CANON RK-2", "/nonexistent/ttyUSB7");
        QVERIFY(!station.platform().serialPort().portOpen());
        QCOMPARE(station.status(),
            QStringLiteral("Autorefractor Canon RK-2: could not open /nonexistent/ttyUSB7 (port 1): no such port."));
        QCOMPARE(station.messages(), 0);
    }

    void anAdapterPulledOutClosesThePortUntilItIsBack()
    {
        auto line = std::make_unique<PseudoLine>();
        StationOnLine station("TOPCON KR-3000-7000", line->slaveName());
        SerialPort& port = station.platform().serialPort();
        QVERIFY(port.portOpen());

        line->unplug();
        QVERIFY(QTest::qWaitFor([&] { return !port.portOpen(); }, ReadingDeadlineMs));
        QVERIFY2(station.status().contains(QStringLiteral("went away")), qPrintable(station.status()));
        // The station's own write to a closed port goes nowhere, quietly.
        port.output("\x06");
        line.reset();

        // Put back, here as a new line under the same number.
        PseudoLine again;
        qputenv("VISTREL_COM1", again.slaveName());
        QVERIFY(QTest::qWaitFor([&] { return port.portOpen(); }, ReadingDeadlineMs));
        QVERIFY2(station.status().endsWith(QStringLiteral("open again, nothing received since.")),
            qPrintable(station.status()));
        const DeviceCase c = loadCase(QStringLiteral("topcon"), QStringLiteral("both-eyes"));
        if (c.transmissions.empty())
            return;
        Device device(again.master(), c.transmissions);
        QVERIFY(QTest::qWaitFor([&] { return Val(station.main().Txt_Axis_Left.text()) == 90; }, ReadingDeadlineMs));
        QCOMPARE(station.messages(), 0);
    }
};

QTEST_MAIN(SerialTransportTest)
#include "SerialTransportTest.moc"
