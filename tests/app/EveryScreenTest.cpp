// Every screen of the station on the demo data, opened as a volunteer opens
// it (a menu entry, a button, a click on a pair) at the scale the test runs
// at (VISTREL_SCALE): its captions shown whole, no control lying over
// another, Tab kept inside it, and the caret back where it was in the main
// window once it closes. Every menu entry, likewise, leaves the caret in
// the main window.

#include "LayoutCheck.h"
#include "MenuBuilder.h"
#include "WindowTestSupport.h"

#include "autorefractor/Frm_AutoReadings.h"
#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_About.h"
#include "core/Frm_CheckForUpdates.h"
#include "core/Frm_HelpAreas.h"
#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "inventory/Frm_LensFrames.h"
#include "inventory/Frm_ReadingGlasses.h"
#include "inventory/Frm_RemoveRejectInventory.h"
#include "matching/Frm_HelpVarnRule.h"
#include "reports/Frm_SavePrescription.h"
#include "wizard/Frm_Advisor.h"

#include <QAction>
#include <QListView>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::key;
using test::layoutFindings;

namespace {

// Drawn over each other on purpose: the covers that hide an eye's fields,
// and the boxes that share a place and are never shown together.
const std::set<std::string> DesignedOverlaps = {"Lbl_LeftCover", "Lbl_RightCover"};

}  // namespace

class EveryScreenTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::WindowStation> window_;
    Station* station_ = nullptr;
    qt::StationWindows* windows_ = nullptr;
    test::Person person_;

    Frm_Vistrel& main() { return station_->vistrel(); }
    QWidget* mainWindow() { return windows_->main().window(); }
    QWidget* widgetOf(const Control& control)
    {
        return windows_->windowFor(control.form())->widgetFor(control);
    }

    void trigger(const Menu& entry)
    {
        QAction* action = windows_->main().menus().bindingFor(entry)->action();
        QVERIFY2(action->isEnabled(), entry.name().c_str());
        action->trigger();
    }

    void press(const Control& button)
    {
        QWidget* widget = widgetOf(button);
        QVERIFY2(widget && widget->isVisible() && widget->isEnabled(), button.name().c_str());
        QTest::mouseClick(widget, Qt::LeftButton, {}, widget->rect().center());
    }

    // The screen that comes up is `expected`, laid out whole; Tab goes
    // round inside it. Then the screen's own close box closes it.
    std::function<void(Form&, QWidget*)> inspect(Form& expected, bool* seen,
        const std::function<void(Form&, QWidget*)>& more = nullptr)
    {
        return [this, &expected, seen, more](Form& form, QWidget* window) {
            QCOMPARE(form.name(), expected.name());
            const QStringList findings = layoutFindings(*windows_->windowFor(form), DesignedOverlaps);
            QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1Char('\n'))));
            for (int i = 0; i < 60; ++i) {
                key(Qt::Key_Tab);
                QVERIFY2(QApplication::focusWidget() && QApplication::focusWidget()->window() == window,
                    qPrintable(QStringLiteral("Tab %1 left %2").arg(i).arg(QString::fromStdString(form.name()))));
            }
            if (more)
                more(form, window);
            *seen = true;
        };
    }

    // The caret stands in `where` before the screen is opened by `open`
    // (a click on a button or a list leaves it there), and is back there
    // after the screen closed.
    void openFrom(const Control& where, const std::function<void()>& open, Form& expected,
        const std::function<void(Form&, QWidget*)>& more = nullptr)
    {
        QWidget* caret = widgetOf(where);
        mainWindow()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
        caret->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), caret);
        bool seen = false;
        person_.answer = inspect(expected, &seen, more);
        open();
        QTRY_VERIFY(!expected.visible());
        QVERIFY2(seen, expected.name().c_str());
        QTRY_COMPARE(QApplication::activeWindow(), mainWindow());
        QTRY_COMPARE(QApplication::focusWidget(), caret);
    }

    void measure(const char* age, const char* rightSphere, const char* leftSphere)
    {
        main().Txt_Age.setText(age);
        main().Txt_Sphere_Right.setText(rightSphere);
        main().Txt_Sphere_Left.setText(leftSphere);
        main().Search_Click();
    }

private slots:
    void initTestCase()
    {
        window_ = std::make_unique<test::WindowStation>();
        window_->useDemoData();
        window_->start(person_, test::testScale());
        station_ = &window_->station();
        windows_ = &window_->windows();
    }

    void cleanupTestCase() { window_.reset(); }

    void theMainScreenIsWholeBeforeAndAfterASearchAndATurn()
    {
        auto expectWhole = [this](const char* when) {
            const QStringList findings = layoutFindings(windows_->main(), DesignedOverlaps);
            QVERIFY2(findings.isEmpty(), qPrintable(when + QStringLiteral(":\n") + findings.join(QLatin1Char('\n'))));
        };
        expectWhole("started");
        measure("52", "-2.00", "-2.25");
        expectWhole("after a search");
        press(main().Cmd_Flip);
        expectWhole("turned");
        press(main().Cmd_Flip);
    }

    void theOptionsScreenAndTheRulesItsButtonShows()
    {
        openFrom(main().Txt_Age, [this] { trigger(main().SetOptions); }, station_->options(),
            [this](Form&, QWidget* optionsWindow) {
                // The rules come up over the options and hand the caret back to them.
                Frm_ProgramOptions& options = station_->options();
                QWidget* button = widgetOf(options.Cmd_HelpWithRule);
                button->setFocus();
                bool seen = false;
                person_.answer = inspect(station_->helpVarnRule(), &seen);
                QTest::keyClick(button, Qt::Key_Space);
                QTRY_VERIFY(seen);
                QTRY_COMPARE(QApplication::activeWindow(), optionsWindow);
                QTRY_COMPARE(QApplication::focusWidget(), button);
            });
    }

    void theStockGrids()
    {
        openFrom(main().Cmd_ReadingGlasses, [this] { press(main().Cmd_ReadingGlasses); }, station_->readingGlasses());
        openFrom(main().Cmd_DisplayLensFrames, [this] { press(main().Cmd_DisplayLensFrames); }, station_->lensFrames());
    }

    void theCaptureScreenAndTheReadingsBrowser()
    {
        openFrom(main().Txt_PersonNumber, [this] { trigger(main().AutoRefractorDataCapture); },
            station_->autorefractor());
        openFrom(main().Txt_PersonNumber, [this] { trigger(main().LoadPreviousAutorefractorMeasurements); },
            station_->autoReadings());
    }

    void theWizard()
    {
        measure("52", "-2.00", "-2.25");
        openFrom(main().Cmd_RunAdvisor, [this] { press(main().Cmd_RunAdvisor); }, station_->advisor());
    }

    void theQuestionAPairAsks()
    {
        measure("52", "-2.00", "-2.25");
        auto* view = qobject_cast<QListView*>(widgetOf(main().Lst_LeftSelection));
        QVERIFY(view && view->model()->rowCount() > 0);
        const QModelIndex first = view->model()->index(0, 0);
        openFrom(main().Lst_LeftSelection,
            [&] { QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(first).center()); },
            station_->removeReject());
    }

    void theQuestionOnSavingAnUnmatchedMeasurement()
    {
        measure("52", "-14.00", "-14.25");
        main().SavePrescriptionASK = true;
        openFrom(main().Cmd_PrescriptionSave, [this] { press(main().Cmd_PrescriptionSave); }, station_->savePrescription());
    }

    void theHelpAboutAndUpdateScreens()
    {
        openFrom(main().Txt_Age, [this] { trigger(main().HelpProgram); }, station_->helpAreas());
        openFrom(main().Txt_Age, [this] { trigger(main().TellAbout); }, station_->about());
        openFrom(main().Txt_Age, [this] { trigger(main().UpdateProgram); }, station_->checkForUpdates());
    }

    // The entries that tell something in a message, write a file or open a
    // document: afterwards the caret is where it was.
    void everyOtherMenuEntryGivesTheCaretBack()
    {
        const Menu* entries[] = {&main().SaveDeletedRejectedInventory, &main().SaveUNMatchedMeasurementsFile,
            &main().DeletedReport, &main().RejectedReport, &main().VacantLocationsReport,
            &main().DisplayNoMatchMeasurements, &main().HelpReportsDropdown, &main().HelpFileDropdown,
            &main().HelpPrescriptionModificationWizard};
        QWidget* caret = widgetOf(main().Txt_Age);
        for (const Menu* entry : entries) {
            mainWindow()->activateWindow();
            caret->setFocus();
            QTRY_COMPARE(QApplication::focusWidget(), caret);
            trigger(*entry);
            QTRY_VERIFY2(QApplication::activeWindow() == mainWindow(), entry->name().c_str());
            QVERIFY2(QApplication::focusWidget() == caret, entry->name().c_str());
        }
    }
};

QTEST_MAIN(EveryScreenTest)
#include "EveryScreenTest.moc"
