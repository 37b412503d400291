// The options dialog in its window, worked by the keyboard: a box ticked
// with Space reaches the station, Alt+S saves the line, and the serial
// ports this computer has are named beside the station's numbers.

#include "FormWindow.h"
#include "PortNames.h"
#include "QtPlatform.h"
#include "WindowTestSupport.h"
#include "StationWindows.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::key;
using test::writeFile;

namespace {

const QByteArray OptionsLine =
    "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
    "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,"
    "32000\r\n";

}  // namespace

class OptionsDialogTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    QString optionsFile_;
    std::unique_ptr<qt::PortNames> portNames_;
    test::Person person_;

private slots:
    void initTestCase()
    {
        qputenv("VISTREL_COM3", "/nonexistent/vistrel-adapter");
        optionsFile_ = station_.shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt");
        writeFile(optionsFile_, OptionsLine);
        station_.writeInventory("1,-2.00,0.00,0,0.00,-2.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n");
        station_.start(person_);
        Frm_ProgramOptions& options = station_.station().options();
        portNames_ = std::make_unique<qt::PortNames>(*station_.windows().windowFor(options), options);
    }

    void cleanupTestCase()
    {
        portNames_.reset();
        station_.stop();
        qunsetenv("VISTREL_COM3");
    }

    void aBoxTickedBySpaceIsSavedByAltS()
    {
        Frm_ProgramOptions& options = station_.station().options();
        qt::FormWindow* window = station_.windows().windowFor(options);
        auto* confidence = qobject_cast<QCheckBox*>(window->widgetFor(options.Chk_ConfidenceLevel));
        bool worked = false;
        person_.answer = [&](Form&, QWidget* dialog) {
            QVERIFY(dialog->isAncestorOf(QApplication::focusWidget()));
            // Tab reaches the box without leaving the dialog.
            for (int i = 0; i < 200 && QApplication::focusWidget() != confidence; ++i) {
                key(Qt::Key_Tab);
                QVERIFY(dialog->isAncestorOf(QApplication::focusWidget()));
            }
            QCOMPARE(QApplication::focusWidget(), confidence);
            key(Qt::Key_Space);
            QCOMPARE(options.Chk_ConfidenceLevel.value(), 1);
            key(Qt::Key_S, Qt::AltModifier);
            QTRY_VERIFY(!options.visible());
            worked = true;
        };
        station_.station().vistrel().SetOptions.click();
        QVERIFY(worked);

        // The line as written: record 37 (the confidence) now YES, all else as
        // read, but that with no port chosen record 9 is left out altogether.
        QFile file(optionsFile_);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray expected = OptionsLine;
        QList<QByteArray> fields = expected.chopped(2).split(',');
        fields[36] = "YES";
        fields.removeAt(8);
        QCOMPARE(file.readAll(), fields.join(',') + "\r\n");
    }

    void thePortsOfThisComputerAreNamedBesideTheNumbers()
    {
        Frm_ProgramOptions& options = station_.station().options();
        qt::FormWindow* window = station_.windows().windowFor(options);
        bool looked = false;
        person_.answer = [&](Form&, QWidget*) {
            QWidget* three = window->widgetFor(options.Opt_Com[3]);
            QVERIFY(three->font().bold());
            QVERIFY(three->toolTip().contains(QStringLiteral("/nonexistent/vistrel-adapter")));
            auto* line = window->widgetFor(options.Frm_ComPort)->findChild<QLabel*>(QStringLiteral("SystemPortNames"));
            QVERIFY(line);
            QVERIFY(line->text().contains(QStringLiteral("3 = /nonexistent/vistrel-adapter")));
            looked = true;
        };
        station_.station().vistrel().SetOptions.click();
        QVERIFY(looked);
    }
};

QTEST_MAIN(OptionsDialogTest)
#include "OptionsDialogTest.moc"
