// The help, about and update screens in their windows, reached through the
// Help menu and worked by the keyboard: a document opens in the desktop's
// viewer by its button's key, Escape and Alt+C close, the texts fit their
// places at the scale the test runs at (VISTREL_SCALE), and the result
// list's heading opens its guide when clicked.

#include "FormWindow.h"
#include "MenuBuilder.h"
#include "Metrics.h"
#include "QtPlatform.h"
#include "WindowTestSupport.h"
#include "StationWindows.h"

#include "core/Frm_About.h"
#include "core/Frm_CheckForUpdates.h"
#include "core/Frm_HelpAreas.h"
#include "core/Frm_Vistrel.h"
#include "core/HelpDocuments.h"
#include "core/Station.h"

#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::key;
using test::writeFile;

namespace {

// A label's whole text fits its place, wrapped as the window wraps it.
bool labelFits(const QLabel* label)
{
    const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    return needed <= label->height() + 1 && (label->wordWrap() || label->sizeHint().width() <= label->width());
}

}  // namespace

class HelpWindowTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    test::Person person_;
    QStringList opened_;

    Frm_Vistrel& main() { return station_.station().vistrel(); }
    qt::FormWindow& windowOf(const Form& form) { return *station_.windows().windowFor(form); }
    void trigger(const Menu& entry)
    {
        QAction* action = station_.windows().main().menus().bindingFor(entry)->action();
        QVERIFY(action->isEnabled());
        action->trigger();
    }
    void expectLabelsFit(const Form& form)
    {
        for (Control* c : form.controls())
            if (auto* label = qobject_cast<QLabel*>(windowOf(form).widgetFor(*c)))
                QVERIFY2(labelFits(label), qPrintable(QString::fromStdString(c->fullName())));
    }

private slots:
    void initTestCase()
    {
        writeFile(station_.shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE, 1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
            "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,"
            "32000\r\n");
        station_.writeInventory("1,-2.25,-0.75,180,0.00,1.50,-0.50,90,0.00,0,0,0,0,0,M,0,\"\",\"\",\"\"\r\n");
        station_.start(person_, test::testScale());
        station_.platform().openDocument = [this](const QString& file) {
            opened_ << file;
            return true;
        };
        // The documents as built, beside the window program.
        main().ProgramFilesLocation = QDir::toNativeSeparators(QStringLiteral(VISTREL_HELP_PROGRAM_DIR)).toStdString();
    }

    void cleanupTestCase() { station_.stop(); }

    void aboutShowsTheVersionAndClosesByEscape()
    {
        Frm_About& about = station_.station().about();
        bool worked = false;
        person_.answer = [&](Form&, QWidget*) {
            QVERIFY(about.Showing);
            auto* version = qobject_cast<QLabel*>(windowOf(about).widgetFor(about.Lbl_Version));
            QVERIFY(version && version->isVisible());
            QCOMPARE(version->text(), QStringLiteral("Version " VISTREL_TEST_PROJECT_VERSION));
            expectLabelsFit(about);
            key(Qt::Key_Escape);
            QVERIFY(!about.visible());
            worked = true;
        };
        trigger(main().TellAbout);
        QVERIFY(worked);
        QVERIFY(!about.Showing);
    }

    void theHelpScreenOpensAGuideByItsKeyAndClosesByAltC()
    {
        Frm_HelpAreas& help = station_.station().helpAreas();
        bool worked = false;
        opened_.clear();
        person_.answer = [&](Form&, QWidget* window) {
            expectLabelsFit(help);
            for (int i = help.Cmd_OpenHelp.first(); i <= help.Cmd_OpenHelp.last(); ++i) {
                auto* button = qobject_cast<QPushButton*>(windowOf(help).widgetFor(help.Cmd_OpenHelp[i]));
                QVERIFY(button);
                QVERIFY(button->sizeHint().width() <= button->width());
            }
            // Alt+M: "A &mission day". The screen stays up for another.
            key(Qt::Key_M, Qt::AltModifier);
            QTRY_COMPARE(opened_.size(), 1);
            QVERIFY(help.visible());
            QVERIFY(window->isVisible());
            key(Qt::Key_C, Qt::AltModifier);
            QTRY_VERIFY(!help.visible());
            worked = true;
        };
        trigger(main().HelpProgram);
        QVERIFY(worked);
        QVERIFY(!help.Showing);
        const QString expected = QDir(QStringLiteral(VISTREL_HELP_PROGRAM_DIR)).filePath(
            QString::fromStdString(HelpDocumentFor(HelpTopic::MissionDay).file));
        QCOMPARE(QFileInfo(opened_.value(0)).canonicalFilePath(), QFileInfo(expected).canonicalFilePath());
        QCOMPARE(person_.messages, 0);
    }

    void theUpdateScreenFitsAndClosesByAltC()
    {
        Frm_CheckForUpdates& updates = station_.station().checkForUpdates();
        bool worked = false;
        person_.answer = [&](Form&, QWidget*) {
            expectLabelsFit(updates);
            key(Qt::Key_C, Qt::AltModifier);
            QTRY_VERIFY(!updates.visible());
            worked = true;
        };
        trigger(main().UpdateProgram);
        QVERIFY(worked);
        QVERIFY(!updates.Showing);
    }

    void theResultListsHeadingOpensItsGuideWhenClicked()
    {
        opened_.clear();
        QWidget* heading = station_.windows().main().widgetFor(main().Lbl_SearchDataEntryArea);
        QVERIFY(heading && heading->isVisible());
        QTest::mouseClick(heading, Qt::LeftButton, {}, heading->rect().center());
        QTRY_COMPARE(opened_.size(), 1);
        QCOMPARE(QFileInfo(opened_[0]).fileName(), QStringLiteral("Search_Results_Help.pdf"));
    }

    // A computer with no PDF viewer: the volunteer is told where the guide is
    // instead of waiting for a window that never comes.
    void aGuideNothingOpensIsNamedInAMessage()
    {
        const auto keep = station_.platform().openDocument;
        station_.platform().openDocument = [](const QString&) { return false; };
        const int before = person_.messages;
        trigger(main().HelpFileDropdown);
        station_.platform().openDocument = keep;
        QCOMPARE(person_.messages, before + 1);
        QVERIFY2(person_.lastMessage.contains(QStringLiteral("File_Dropdown_Help.pdf")), qPrintable(person_.lastMessage));
    }
};

QTEST_MAIN(HelpWindowTest)
#include "HelpWindowTest.moc"
