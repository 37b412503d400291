// The serial line and the printer, against a pseudo terminal and a PDF file.

#include "QtPrinter.h"
#include "QtSerialPort.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>
#endif

using namespace vistrel;
using namespace vistrel::qt;

namespace {

#ifdef Q_OS_UNIX
// The far end of a serial line: a pseudo terminal in raw mode.
struct PseudoTerminal {
    int master = -1;
    QByteArray slave;

    PseudoTerminal()
    {
        master = posix_openpt(O_RDWR | O_NOCTTY);
        if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0)
            return;
        slave = ptsname(master);
        termios t{};
        if (tcgetattr(master, &t) == 0) {
            cfmakeraw(&t);
            tcsetattr(master, TCSANOW, &t);
        }
    }
    ~PseudoTerminal()
    {
        if (master >= 0)
            ::close(master);
    }
    bool ok() const { return master >= 0 && !slave.isEmpty(); }
    void send(const QByteArray& bytes) const { QVERIFY(::write(master, bytes.constData(), bytes.size()) == bytes.size()); }
    QByteArray receive(int waitMs) const
    {
        QByteArray got;
        pollfd p{master, POLLIN, 0};
        while (::poll(&p, 1, waitMs) > 0) {
            char buffer[256];
            const ssize_t n = ::read(master, buffer, sizeof buffer);
            if (n <= 0)
                break;
            got.append(buffer, n);
            waitMs = 50;
        }
        return got;
    }
};
#endif

int countPages(const QByteArray& pdf)
{
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page[^s]"));
    return static_cast<int>(QString::fromLatin1(pdf).count(page));
}

}  // namespace

class DeviceTest : public QObject {
    Q_OBJECT

private slots:
#ifdef Q_OS_UNIX
    void receivedCharactersRaiseTheReceiveEvent()
    {
        PseudoTerminal far;
        if (!far.ok())
            QSKIP("no pseudo terminals here");
        qputenv("VISTREL_COM7", far.slave);
        QtSerialPort port;
        port.setCommPort(7);
        port.setSettings("9600,n,8,1");
        port.setDTREnable(true);
        port.setRThreshold(1);
        std::string received;
        int eventDuringHandler = 0;
        port.onComm = [&] {
            eventDuringHandler = port.commEvent();
            received += port.input();
        };
        QCOMPARE(port.deviceName(), QString::fromLatin1(far.slave));
        QVERIFY(port.setPortOpen(true));
        QVERIFY(port.portOpen());

        far.send("R: -1.25 -0.50 180\r\n");
        QTRY_COMPARE(received, std::string("R: -1.25 -0.50 180\r\n"));
        QCOMPARE(eventDuringHandler, 2);
        QCOMPARE(port.commEvent(), 0);

        port.output("REQ\r");
        QTRY_VERIFY(port.portOpen());
        QCOMPARE(far.receive(1000), QByteArray("REQ\r"));

        port.setPortOpen(false);
        QVERIFY(!port.portOpen());
        qunsetenv("VISTREL_COM7");
    }
#endif

    void aMissingDeviceJustDoesNotOpen()
    {
        qputenv("VISTREL_COM8", "/nonexistent/vistrel-port");
        QtSerialPort port;
        port.setCommPort(8);
        QVERIFY(!port.setPortOpen(true));
        QVERIFY(!port.portOpen());
        port.output("ignored");
        QCOMPARE(port.input(), std::string());
        qunsetenv("VISTREL_COM8");
    }

    void runningTextFillsPagesOfAPdf()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("slip.pdf"));
        qputenv("VISTREL_PRINT_PDF", file.toLocal8Bit());
        {
            QtPrinter printer;
            printer.setFontName("Arial");
            printer.setFontSize(12);
            printer.setFontBold(true);
            printer.print("Person 17   ", false);
            printer.setFontBold(false);
            printer.setFontUnderline(true);
            printer.print("Bag 204");
            // Kept until the end of the job, then written at once.
            QVERIFY(!QFile::exists(file));
            printer.newPage();
            printer.print("Second page");
            printer.endDoc();
            QVERIFY(QFile::exists(file));
        }
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        QCOMPARE(countPages(bytes), 2);
        qunsetenv("VISTREL_PRINT_PDF");
    }

    void aFullPageGoesOnToTheNext()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("long.pdf"));
        qputenv("VISTREL_PRINT_PDF", file.toLocal8Bit());
        QtPrinter printer;
        printer.setFontSize(20);
        for (int i = 0; i < 120; ++i)
            printer.print("line " + std::to_string(i));
        printer.endDoc();
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const int pages = countPages(pdf.readAll());
        // 120 lines of 20 points: about 3000 points of a 800-point page.
        QVERIFY2(pages >= 3 && pages <= 6, qPrintable(QString::number(pages)));
        qunsetenv("VISTREL_PRINT_PDF");
    }

    void anUnknownPrinterIsNotChosen()
    {
        QtPrinter printer;
        QVERIFY(!printer.choose("No Such Printer 4711"));
        QVERIFY(printer.chosenPrinter().isEmpty());
    }
};

QTEST_MAIN(DeviceTest)
#include "DeviceTest.moc"
