// Conversions between the core's values and the desktop's: colours,
// caption texts, twips, serial settings, shell requests.

#include "ButtonBindings.h"
#include "ColorMapping.h"
#include "Metrics.h"
#include "QtPlatform.h"
#include "QtSerialPort.h"
#include "Screenshot.h"
#include "TextConversion.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace vistrel;
using namespace vistrel::qt;

class ConversionTest : public QObject {
    Q_OBJECT

private:
    static QPalette distinctPalette()
    {
        QPalette p;
        p.setColor(QPalette::Base, QColor(1, 2, 3));
        p.setColor(QPalette::Button, QColor(4, 5, 6));
        p.setColor(QPalette::Text, QColor(7, 8, 9));
        p.setColor(QPalette::ButtonText, QColor(10, 11, 12));
        p.setColor(QPalette::Window, QColor(13, 14, 15));
        p.setColor(QPalette::Disabled, QPalette::Text, QColor(16, 17, 18));
        return p;
    }

private slots:
    // ---- colours ----
    void colorsAreBlueGreenRed()
    {
        const QPalette p;
        QCOMPARE(mapColor(colors::Red, p), QColor(255, 0, 0));
        QCOMPARE(mapColor(colors::Green, p), QColor(0, 255, 0));
        QCOMPARE(mapColor(colors::Yellow, p), QColor(255, 255, 0));
        QCOMPARE(mapColor(colors::Cyan, p), QColor(0, 255, 255));
        QCOMPARE(mapColor(0x00336699, p), QColor(0x99, 0x66, 0x33));
    }

    void systemColorsComeFromThePalette()
    {
        const QPalette p = distinctPalette();
        QCOMPARE(mapColor(colors::WindowBackground, p), QColor(1, 2, 3));
        QCOMPARE(mapColor(colors::ButtonFace, p), QColor(4, 5, 6));
        QCOMPARE(mapColor(colors::WindowText, p), QColor(7, 8, 9));
        QCOMPARE(mapColor(colors::ButtonText, p), QColor(10, 11, 12));
        QCOMPARE(mapColor(colors::SystemFlag - 0x100000000LL + 17, p), QColor(16, 17, 18));  // grey text
        QCOMPARE(mapColor(colors::SystemFlag - 0x100000000LL + 99, p), QColor(13, 14, 15));  // unknown
    }

    void foreColorLeavesDisabledTextGrey()
    {
        const QPalette base = distinctPalette();
        const QPalette p = controlPalette(base, QPalette::Button, QPalette::ButtonText, colors::Yellow, colors::Red);
        QCOMPARE(p.color(QPalette::Active, QPalette::Button), QColor(255, 255, 0));
        QCOMPARE(p.color(QPalette::Disabled, QPalette::Button), QColor(255, 255, 0));
        QCOMPARE(p.color(QPalette::Active, QPalette::ButtonText), QColor(255, 0, 0));
        QCOMPARE(p.color(QPalette::Inactive, QPalette::ButtonText), QColor(255, 0, 0));
        QCOMPARE(p.color(QPalette::Disabled, QPalette::ButtonText), base.color(QPalette::Disabled, QPalette::ButtonText));
    }

    // ---- texts ----
    void labelsShowAmpersandsAsThePlatformDid_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("shown");
        QTest::newRow("accelerator") << "&Age" << "Age";
        QTest::newRow("literal") << "Left && Right" << "Left & Right";
        QTest::newRow("literal then accelerator") << "A&&&B" << "A&B";
        QTest::newRow("trailing") << "End&" << "End";
        QTest::newRow("line break") << "one\r\ntwo" << "one\ntwo";
    }
    void labelsShowAmpersandsAsThePlatformDid()
    {
        QFETCH(QString, caption);
        QFETCH(QString, shown);
        QCOMPARE(labelText(caption.toStdString()), shown);
    }

    void coreBytesDecodeAsUtf8OrElseSingleByte()
    {
        QCOMPARE(fromCore("caf\xc3\xa9"), QString::fromUtf8("caf\xc3\xa9"));
        QCOMPARE(fromCore("caf\xe9 \xe0"), QString::fromLatin1("caf\xe9 \xe0"));
        QCOMPARE(toCore(fromCore("caf\xc3\xa9")), std::string("caf\xc3\xa9"));
    }

    void multiLineTextKeepsCarriageReturnsInTheCore()
    {
        QCOMPARE(toWidgetLines("a\r\nb\r\n"), QStringLiteral("a\nb\n"));
        QCOMPARE(toCoreLines(QStringLiteral("a\nb")), std::string("a\r\nb"));
        QCOMPARE(toCoreLines(toWidgetLines("x\r\ny")), std::string("x\r\ny"));
    }

    // ---- button captions ----
    void captionsWrapAtBlanksAndHyphens()
    {
        const auto chars = [](const QString& t) { return static_cast<int>(t.size()); };
        QCOMPARE(wrapCaption(QStringLiteral("OK"), chars, 10), QStringList({QStringLiteral("OK")}));
        QCOMPARE(wrapCaption(QStringLiteral("Left Cut-Back Search"), chars, 10),
            QStringList({QStringLiteral("Left Cut-"), QStringLiteral("Back"), QStringLiteral("Search")}));
        QCOMPARE(wrapCaption(QStringLiteral("Reset BOTH Cut-Backs"), chars, 16),
            QStringList({QStringLiteral("Reset BOTH Cut-"), QStringLiteral("Backs")}));
        QCOMPARE(wrapCaption(QStringLiteral("one\ntwo"), chars, 20),
            QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    }

    void leadingBlanksPushACaptionDownALine()
    {
        const auto chars = [](const QString& t) { return static_cast<int>(t.size()); };
        QCOMPARE(wrapCaption(QStringLiteral("          Left Lens    Reset"), chars, 9),
            QStringList({QString(), QStringLiteral("Left Lens"), QStringLiteral("Reset")}));
    }

    void aWordWiderThanTheButtonStaysWhole()
    {
        const auto chars = [](const QString& t) { return static_cast<int>(t.size()); };
        QCOMPARE(wrapCaption(QStringLiteral("Extraordinary go"), chars, 5),
            QStringList({QStringLiteral("Extraordinary"), QStringLiteral("go")}));
    }

    // ---- twips and scale ----
    void twipsBecomePixelsAtTheScreensDpi()
    {
        const Metrics plain(1.0, 96.0);
        QCOMPARE(plain.px(15), 1);
        QCOMPARE(plain.px(1500), 100);
        QCOMPARE(plain.px(7), 0);
        QCOMPARE(plain.px(8), 1);
        QCOMPARE(Metrics(2.0, 96.0).px(1500), 200);
        QCOMPARE(Metrics(1.0, 144.0).px(1500), 150);
        QCOMPARE(Metrics(1.5, 96.0).fontScale(), 1.5);
        QCOMPARE(Metrics(1.0, 144.0).fontScale(), 1.0);
    }

    void windowFrameIsTakenOffTheClientArea()
    {
        const Metrics m(1.0, 96.0);
        // 6000 x 3000 twips with title and borders: 392 x 169 pixels inside.
        QCOMPARE(m.clientSize(6000, 3000, false), QSize(392, 169));
        QCOMPARE(m.clientSize(6000, 3000, true), QSize(392, 149));
        QVERIFY(m.clientSize(0, 0, true).isValid());
    }

    void scaleFromTheEnvironment()
    {
        QCOMPARE(parseScale(QStringLiteral("1.5")), 1.5);
        QCOMPARE(parseScale(QStringLiteral(" 2 ")), 2.0);
        QCOMPARE(parseScale(QString()), 1.0);
        QCOMPARE(parseScale(QStringLiteral("big")), 1.0);
        QCOMPARE(parseScale(QStringLiteral("-2")), 1.0);
        QCOMPARE(parseScale(QStringLiteral("0")), 1.0);
    }

    // ---- serial line ----
    void serialSettingsText()
    {
        const SerialSettings s = parseSerialSettings("9600,n,8,1");
        QCOMPARE(s.baud, 9600);
        QCOMPARE(s.parity, QSerialPort::NoParity);
        QCOMPARE(s.dataBits, QSerialPort::Data8);
        QCOMPARE(s.stopBits, QSerialPort::OneStop);

        const SerialSettings e = parseSerialSettings("4800,E,7,2");
        QCOMPARE(e.baud, 4800);
        QCOMPARE(e.parity, QSerialPort::EvenParity);
        QCOMPARE(e.dataBits, QSerialPort::Data7);
        QCOMPARE(e.stopBits, QSerialPort::TwoStop);

        const SerialSettings o = parseSerialSettings(" 19200 , o , 8 , 1.5 ");
        QCOMPARE(o.baud, 19200);
        QCOMPARE(o.parity, QSerialPort::OddParity);
        QCOMPARE(o.stopBits, QSerialPort::OneAndHalfStop);
    }

    void unreadableSerialSettingsKeepDefaults()
    {
        const SerialSettings s = parseSerialSettings("fast,x,12,3");
        QCOMPARE(s.baud, 9600);
        QCOMPARE(s.parity, QSerialPort::NoParity);
        QCOMPARE(s.dataBits, QSerialPort::Data8);
        QCOMPARE(s.stopBits, QSerialPort::OneStop);
        QCOMPARE(parseSerialSettings("2400").baud, 2400);
        QCOMPARE(parseSerialSettings("").baud, 9600);
    }

    // ---- shell ----
    void shellOpensFilesAndStartsCommands()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("report file.txt"));
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        const auto mapping = [&](const QString& path) {
            QString p = path;
            p.replace(QLatin1String("C:\\"), dir.path() + QLatin1Char('/'));
            return p;
        };

        QCOMPARE(parseShellRequest(file, mapping).document, file);
        QCOMPARE(parseShellRequest(QLatin1Char('"') + file + QLatin1Char('"'), mapping).document, file);

        const ShellRequest notepad = parseShellRequest(QStringLiteral("Notepad.exe C:\\report file.txt"), mapping);
        QCOMPARE(notepad.document, file);
        QVERIFY(notepad.command.isEmpty());
        QCOMPARE(parseShellRequest(QStringLiteral("notepad \"C:\\new.txt\""), mapping).document,
            dir.path() + QStringLiteral("/new.txt"));

        const ShellRequest command = parseShellRequest(QStringLiteral("lpstat -p"), mapping);
        QVERIFY(command.document.isEmpty());
        QCOMPARE(command.command, QStringLiteral("lpstat -p"));
        QVERIFY(parseShellRequest(QStringLiteral("  "), mapping).command.isEmpty());
    }

    void screenActionsFromTheCommandLine()
    {
        using Kind = ScreenAction::Kind;
        const auto press = parseScreenAction(Kind::Press, QStringLiteral("Frm_ProgramOptions.Cmd_Continue"));
        QVERIFY(press);
        QCOMPARE(press->form, QStringLiteral("Frm_ProgramOptions"));
        QCOMPARE(press->control, QStringLiteral("Cmd_Continue"));
        QCOMPARE(press->index, -1);

        const auto type = parseScreenAction(Kind::Type, QStringLiteral("Frm_X.Txt_From(3)=1.5 = x"));
        QVERIFY(type);
        QCOMPARE(type->control, QStringLiteral("Txt_From"));
        QCOMPARE(type->index, 3);
        QCOMPARE(type->text, QStringLiteral("1.5 = x"));

        QVERIFY(!parseScreenAction(Kind::Type, QStringLiteral("Frm_X.Txt_Age")));
        QVERIFY(!parseScreenAction(Kind::Press, QStringLiteral("Cmd_Go")));
        QVERIFY(!parseScreenAction(Kind::Press, QStringLiteral("Frm_X.")));
        QVERIFY(!parseScreenAction(Kind::Press, QStringLiteral("Frm_X.Cmd(a)")));

        const auto cell = parseScreenAction(Kind::Press, QStringLiteral("Frm_X.Grd_Cells(1)@20,5"));
        QVERIFY(cell);
        QCOMPARE(std::make_tuple(cell->control, cell->index, cell->row, cell->col),
            std::make_tuple(QStringLiteral("Grd_Cells"), 1, 20, 5));
        const auto row = parseScreenAction(Kind::Press, QStringLiteral("Frm_X.Lst_Rows@0"));
        QVERIFY(row);
        QCOMPARE(std::make_pair(row->row, row->col), std::make_pair(0, -1));
        QVERIFY(!parseScreenAction(Kind::Press, QStringLiteral("Frm_X.Lst_Rows@")));
        QVERIFY(!parseScreenAction(Kind::Press, QStringLiteral("Frm_X.Grd(0)@1,2,3")));
        // A typed text may hold an @.
        QCOMPARE(parseScreenAction(Kind::Type, QStringLiteral("Frm_X.Txt_Mail=a@b"))->text, QStringLiteral("a@b"));
    }

    void screenshotNamesPerWindow()
    {
        QCOMPARE(Screenshot::pathFor(QStringLiteral("/tmp/shot.png"), QStringLiteral("Frm_About")),
            QStringLiteral("/tmp/shot-Frm_About.png"));
        QCOMPARE(Screenshot::pathFor(QStringLiteral("shot.png"), QStringLiteral("message1")),
            QStringLiteral("shot-message1.png"));
        QCOMPARE(Screenshot::pathFor(QStringLiteral("out/shot"), QStringLiteral("Frm_X")),
            QStringLiteral("out/shot-Frm_X.png"));
    }
};

QTEST_MAIN(ConversionTest)
#include "ConversionTest.moc"
