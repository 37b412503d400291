// The wizard in its window, worked with the keyboard alone, and the advice
// beside the result list. Runs at the designed size and, with VISTREL_SCALE
// set, at a larger one, on a desktop large enough for both (a smaller one
// makes the windows scroll).

#include "FormWindow.h"
#include "QtPlatform.h"
#include "WindowTestSupport.h"
#include "StationWindows.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "wizard/Frm_Advisor.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::key;
using test::tabTo;
using test::writeFile;

namespace {

// Pairs for a left eye of -3.00 -2.00 x 90: the first cut-back steps find
// more of them than the measurement itself.
const char* const Inventory =
    "1,-3.25,-1.50,90,0.00,-1.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n"
    "2,-3.50,-1.25,90,0.00,-1.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n"
    "3,-3.00,-2.00,90,0.00,-1.00,0.00,0,0.00,0,0,0,0,0,62,0,\"\",,\r\n";

// The whole of a wrapped text fits the box it is shown in.
bool showsWholly(QPlainTextEdit* edit)
{
    const QFontMetrics metrics(edit->font());
    const QRect needed = metrics.boundingRect(edit->viewport()->rect().adjusted(4, 0, -4, 0),
        Qt::TextWordWrap, edit->toPlainText());
    return needed.height() <= edit->viewport()->height();
}

bool showsWholly(QLabel* label)
{
    return label->heightForWidth(label->width()) <= label->height();
}

}  // namespace

class WizardWindowTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    test::Person person_;

    Frm_Vistrel& main() { return station_.station().vistrel(); }
    Frm_Advisor& wizard() { return station_.station().advisor(); }
    qt::FormWindow& mainWindow() { return station_.windows().main(); }
    QWidget* mainWidget(const Control& c) { return mainWindow().widgetFor(c); }

    // A measurement typed on the main screen, marked as typed, and searched.
    void measure(const char* sphereLeft, const char* cylinderLeft, const char* axisLeft, const char* sphereRight,
        const char* age)
    {
        main().Cmd_CalculateDataClear.click();
        main().Txt_Age.setText(age);
        main().Txt_Sphere_Left.setText(sphereLeft);
        main().Txt_Cylinder_Left.setText(cylinderLeft);
        main().Txt_Axis_Left.setText(axisLeft);
        main().Txt_Sphere_Right.setText(sphereRight);
        main().Max_Sphere_OverageValue = "0.25";
        main().Max_Cylinder_OverageValue = "0.25";
        main().Chk_AutoBypass.setValue(1);
        main().Cmd_Search.click();
    }

private slots:
    void initTestCase()
    {
        station_.writePlainOptions();
        station_.writeInventory(Inventory);
        station_.start(person_, test::testScale());
        station_.station().options().Chk_NoOverplus.setValue(0);
        station_.station().options().Chk_NoOverCylinder.setValue(0);
        station_.station().options().Chk_NoOverMinus.setValue(0);
    }

    void cleanupTestCase() { station_.stop(); }

    // ---- the advice on the main window ----
    void theAdviceStandsBesideTheResultListWhole()
    {
        // A young person with a lazy-looking eye and little found: a long advice.
        measure("-0.75", "-0.50", "180", "-6.00", "15");
        QVERIFY(main().Lbl_Recommendation.visible());
        auto* advice = qobject_cast<QLabel*>(mainWidget(main().Lbl_Recommendation));
        QVERIFY(advice && advice->isVisible());
        QCOMPARE(advice->text(), QString::fromStdString(main().Lbl_Recommendation.caption()));
        QVERIFY2(showsWholly(advice), qPrintable(advice->text()));

        // It covers neither the result list nor the stock lists.
        const QRect adviceArea(advice->mapTo(mainWindow().window(), QPoint()), advice->size());
        for (const Control* list : {static_cast<const Control*>(&main().Lst_LeftSelection),
                 static_cast<const Control*>(&main().Lst_LeftInventory),
                 static_cast<const Control*>(&main().Lst_RightInventory)}) {
            QWidget* w = mainWidget(*list);
            const QRect area(w->mapTo(mainWindow().window(), QPoint()), w->size());
            QVERIFY2(!adviceArea.intersects(area), list->name().c_str());
        }
    }

    // ---- the wizard, by keys alone ----
    void theWizardIsWorkedWithTheKeyboard()
    {
        measure("-3.00", "-2.00", "90", "-1.00", "30");
        QCOMPARE(main().FoundCount, 1);
        qt::FormWindow* window = station_.windows().windowFor(wizard());
        auto* caseThree = window->widgetFor(wizard().Chk_Case3_Left);
        auto* guide = qobject_cast<QPlainTextEdit*>(window->widgetFor(wizard().Txt_GuideMe));
        auto* help = qobject_cast<QPlainTextEdit*>(window->widgetFor(wizard().Txt_Help));
        bool worked = false;
        person_.answer = [&](Form&, QWidget* dialog) {
            QVERIFY(wizard().Showing);
            QVERIFY(dialog->isAncestorOf(QApplication::focusWidget()));

            // The guide is there to be read in full, at a size to be read.
            QVERIFY(guide->isVisible());
            QVERIFY(!guide->toPlainText().isEmpty());
            QVERIFY2(showsWholly(guide), qPrintable(guide->toPlainText()));
            QVERIFY(QFontInfo(guide->font()).pixelSize() >= 10 * test::testScale());

            // Tab to case 3 and check it with Space: the eye ends cut back.
            QVERIFY(caseThree->isVisible());
            QVERIFY(tabTo(caseThree));
            key(Qt::Key_Space);
            QCOMPARE(wizard().Chk_Case3_Left.value(), 1);
            QCOMPARE(main().Txt_Cylinder_Left.text(), std::string("-1.75"));
            QCOMPARE(main().FoundCount, 2);
            QVERIFY(wizard().WizardLeftDone);

            // Alt+H widens the wizard to its help, which is shown in full.
            const int narrow = dialog->width();
            QVERIFY(help->geometry().left() >= narrow);
            key(Qt::Key_H, Qt::AltModifier);
            QTRY_VERIFY(dialog->width() > narrow);
            QVERIFY(help->isVisible());
            QVERIFY(help->geometry().right() < dialog->width());
            QVERIFY2(showsWholly(help), "the help text is cut");
            key(Qt::Key_N, Qt::AltModifier);
            QTRY_COMPARE(dialog->width(), narrow);

            // Space again takes the case back to the measurement.
            QVERIFY(tabTo(caseThree));
            key(Qt::Key_Space);
            QCOMPARE(main().Txt_Cylinder_Left.text(), std::string("-2.00"));

            // A multiplier by arrow keys: the caret moves within the eye's options.
            auto* times1 = window->widgetFor(wizard().Opt_Left1);
            QVERIFY(tabTo(times1));
            key(Qt::Key_Right);
            QTRY_COMPARE(main().LeftToleranceMultiplier, 1.5);

            // Alt+X leaves.
            key(Qt::Key_X, Qt::AltModifier);
            QTRY_VERIFY(!wizard().visible());
            worked = true;
        };
        QWidget* button = mainWidget(main().Cmd_RunAdvisor);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        QVERIFY(worked);
        QVERIFY(!wizard().Showing);
        QCOMPARE(main().LeftToleranceMultiplier, 1.5);
        // The caret is back on the main window.
        QTRY_VERIFY(mainWindow().window()->isAncestorOf(QApplication::focusWidget()));
    }

    // ---- every case box says all it says ----
    void theCaseCaptionsAreShownWhole()
    {
        qt::FormWindow* window = station_.windows().windowFor(wizard());
        for (const CheckBox* box : {&wizard().Chk_Case1_Left, &wizard().Chk_Case2_Left, &wizard().Chk_Case3_Left,
                 &wizard().Chk_Case4_Left, &wizard().Chk_Case5_Still_no_match, &wizard().Chk_Case6_Desperate,
                 &wizard().Chk_VarnOverCylinder50}) {
            auto* check = qobject_cast<QCheckBox*>(window->widgetFor(*box));
            QVERIFY(check);
            QStyleOptionButton option;
            option.initFrom(check);
            option.text = check->text();
            const QRect area = check->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, check);
            const QFontMetrics metrics = check->fontMetrics();
            const QString words = check->text().simplified().replace(QStringLiteral("&&"), QStringLiteral("&"));
            const QRect needed = metrics.boundingRect(QRect(0, 0, area.width(), 10000), Qt::TextWordWrap, words);
            QVERIFY2(needed.height() <= check->height(), box->name().c_str());
        }
    }
};

QTEST_MAIN(WizardWindowTest)
#include "WizardWindowTest.moc"
