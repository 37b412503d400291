// The main screen of a started station, in its windows: the questions a
// click on a pair asks and the keys that answer them, the two stock lists
// that scroll as one, the timers and the network warning.

#include "QtPlatform.h"
#include "StationWindows.h"
#include "TimerBinding.h"
#include "WindowTestSupport.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "reports/Frm_SavePrescription.h"

#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include <functional>

using namespace vistrel;
using test::writeFile;

namespace {

// The demo's options with the network journal on, its folder missing.
const char* const OptionsLine =
    "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE, 0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
    "100,101,2.50,102,103,2.50,104,105,2.50,YES,YES,NO,NO,YES,NO,35,NO,NO,YES,YES,C:\\NetworkJournal,1,Default,1,"
    "32000";
constexpr int Pairs = 80;

// Answers the station's questions as a person at the keyboard would.
class KeyboardPerson : public qt::DialogWatcher {
public:
    // What to do with the next modal screen; without it, its close box.
    std::function<void(Form&, QWidget*)> answer;
    int messages = 0;
    int questions = 0;

    void messageShown(QMessageBox& box) override
    {
        ++messages;
        QTimer::singleShot(0, &box, [&box] { box.accept(); });
    }

    void modalShown(Form& form, QWidget* window) override
    {
        auto act = std::exchange(answer, nullptr);
        // A question the answer failed to close doesn't hang the test.
        const int asked = ++questions;
        QTimer::singleShot(3000, window, [this, asked, &form] {
            if (asked == questions && form.visible())
                form.closeBox();
        });
        QTimer::singleShot(0, window, [act, &form, window] {
            window->activateWindow();
            QVERIFY(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
            if (act)
                act(form, window);
            else
                form.closeBox();
        });
    }
};

// A key typed where the caret is in the window.
void type(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* target = QApplication::focusWidget();
    if (!target || target->window() != window)
        target = window;
    QTest::keyClick(target, key, modifiers);
}

QStringList shownButtons(QWidget* window)
{
    QStringList captions;
    for (QPushButton* b : window->findChildren<QPushButton*>())
        if (b->isVisibleTo(window))
            captions << b->text();
    captions.sort();
    return captions;
}

}  // namespace

class MainScreenTest : public QObject {
    Q_OBJECT

    test::WindowStation station_;
    KeyboardPerson person_;

    Frm_Vistrel& main() { return station_.station().vistrel(); }
    QWidget* mainWindow() { return station_.windows().main().window(); }
    QListView* listOf(const ListBox& list) { return qobject_cast<QListView*>(station_.windows().main().widgetFor(list)); }

    int rowOf(const ListBox& list, int tableIndex)
    {
        for (int r = 0; r < list.listCount(); ++r)
            if (list.row(r).itemData == tableIndex)
                return r;
        return -1;
    }

    void clickRow(const ListBox& list, int tableIndex)
    {
        QListView* view = listOf(list);
        const QModelIndex index = view->model()->index(rowOf(list, tableIndex), 0);
        QVERIFY(index.isValid());
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }

    // Clicks a pair and answers the question with a key.
    void answerPair(const ListBox& list, int tableIndex, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        person_.answer = [=](Form&, QWidget* window) { type(window, key, modifiers); };
        clickRow(list, tableIndex);
    }

private slots:
    void initTestCase()
    {
        writeFile(station_.shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"), OptionsLine);
        QByteArray inventory;
        for (int n = 1; n <= Pairs; ++n)
            inventory += QByteArray::number(n) + ",-1.00,-0.25,90,0.00,-1.25,-0.50,80,0.00,0,0,0,0,0,M,0,\"Frame "
                + QByteArray::number(n) + "\",\"\",\"\"\r\n";
        station_.writeInventory(inventory);
        // Pairs 5 and 9 went to persons 44 and 45.
        writeFile(station_.documents() + QStringLiteral("/Vistrel/JournalFile.txt"),
            "5,True,44,0.00,0.00,000,0.00,(0.00),0.00,0.00,000,0.00,(0.00)\r\n"
            "9,True,45,0.00,0.00,000,0.00,(0.00),0.00,0.00,000,0.00,(0.00)\r\n");
        station_.start(person_);
        QCOMPARE(person_.messages, 0);
        QCOMPARE(main().Lst_LeftInventory.listCount(), Pairs - 2);
        QCOMPARE(main().Lst_PersonsList.listCount(), 2);
        main().Txt_PersonNumber.setText("12");
    }

    void cleanupTestCase() { station_.stop(); }

    // ---- the question on a pair ----
    void enterRemovesAPairAndTheCaretComesBackToTheList()
    {
        QString question;
        person_.answer = [&](Form&, QWidget* window) {
            question = window->findChild<QLabel*>(QStringLiteral("Lbl_RemoveRejectMessage"))->text();
            QCOMPARE(window->windowTitle(), QStringLiteral("Remove or Reject Inventory..."));
            QCOMPARE(shownButtons(window), QStringList({"&Cancel", "&Remove Pair", "Reject &Pair"}));
            type(window, Qt::Key_Return);
        };
        clickRow(main().Lst_LeftInventory, 3);
        QVERIFY2(question.startsWith(QStringLiteral("You have selected to REMOVE or REJECT number:  3 Showing: \n\n   [ 00003")),
            qPrintable(question));
        QVERIFY(main().Inv_Removed[2]);
        QCOMPARE(main().Inv_PersonNumber[2], 12);
        QTRY_COMPARE(QApplication::focusWidget(), listOf(main().Lst_LeftInventory));
    }

    void escapeCancelsAndAcceleratorsAnswer()
    {
        answerPair(main().Lst_LeftInventory, 7, Qt::Key_Escape);
        QVERIFY(!main().Inv_Removed[6]);
        QCOMPARE(main().Inv_RejectCount[6], 0);
        QTRY_COMPARE(QApplication::focusWidget(), listOf(main().Lst_LeftInventory));
        answerPair(main().Lst_RightInventory, 8, Qt::Key_P, Qt::AltModifier);
        answerPair(main().Lst_RightInventory, 8, Qt::Key_C, Qt::AltModifier);
        QCOMPARE(main().Inv_RejectCount[7], 1);
        QVERIFY(!main().Inv_Removed[7]);
        answerPair(main().Lst_RightInventory, 10, Qt::Key_R, Qt::AltModifier);
        QVERIFY(main().Inv_Removed[9]);
    }

    void aReturnIsAskedFromThePersonListByKeys()
    {
        QListView* persons = listOf(main().Lst_PersonsList);
        persons->setFocus();
        person_.answer = [&](Form&, QWidget* window) {
            QCOMPARE(window->windowTitle(), QStringLiteral("Return Inventory..."));
            QCOMPARE(shownButtons(window), QStringList({"&Cancel", "&Return Pair"}));
            type(window, Qt::Key_Escape);
        };
        QTest::keyClick(persons, Qt::Key_Down);
        QCOMPARE(main().Lst_PersonsList.listIndex(), 0);
        QTRY_COMPARE(QApplication::focusWidget(), persons);
        QVERIFY(main().Inv_Removed[4]);
        // Enter on the chosen row asks again.
        person_.answer = [&](Form&, QWidget* window) { type(window, Qt::Key_Return); };
        QTest::keyClick(persons, Qt::Key_Return);
        QVERIFY(!main().Inv_Removed[4]);
        answerPair(main().Lst_PersonsList, 9, Qt::Key_R, Qt::AltModifier);
        QVERIFY(!main().Inv_Removed[8]);
    }

    void theUnmatchedQuestionTakesEnterEscapeAndAccelerators_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("saved");
        QTest::newRow("Enter") << int(Qt::Key_Return) << 0 << true;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << false;
        QTest::newRow("Alt+N") << int(Qt::Key_N) << int(Qt::AltModifier) << false;
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << int(Qt::AltModifier) << true;
    }

    void theUnmatchedQuestionTakesEnterEscapeAndAccelerators()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, saved);
        main().SavePrescriptionYesNo = !saved;
        person_.answer = [&](Form&, QWidget* window) {
            type(window, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        };
        station_.station().savePrescription().show(true);
        QCOMPARE(main().SavePrescriptionYesNo, saved);
        QVERIFY(!station_.station().savePrescription().visible());
    }

    // ---- the stock lists ----
    void theStockListsScrollAsOne()
    {
        QListView* left = listOf(main().Lst_LeftInventory);
        QListView* right = listOf(main().Lst_RightInventory);
        auto top = [](QListView* view) { return view->indexAt(QPoint(1, 1)).row(); };

        left->verticalScrollBar()->setValue(20);
        QCOMPARE(main().Lst_RightInventory.topIndex(), 20);
        QCOMPARE(top(right), 20);

        // The wheel over the other list.
        const QPoint at = right->viewport()->rect().center();
        QWheelEvent wheel(at, right->viewport()->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(right->viewport(), &wheel);
        QVERIFY(top(right) > 20);
        QCOMPARE(top(left), top(right));
        QCOMPARE(main().Lst_LeftInventory.topIndex(), top(right));

        // Keys: the caret goes down a page (each row chosen asks its
        // question, which is cancelled).
        right->setFocus();
        QTest::keyClick(right, Qt::Key_PageDown);
        QTest::keyClick(right, Qt::Key_PageDown);
        QVERIFY(top(right) > 0);
        QCOMPARE(top(left), top(right));
    }

    // ---- timers and warnings ----
    void theTimersRunOnRealTimers()
    {
        auto running = [&](const Form& form, const Timer& timer) {
            for (const auto& t : station_.windows().windowFor(form)->binder().timers())
                if (&t->timer() == &timer)
                    return t->running();
            return false;
        };
        QVERIFY(running(main(), main().Tmr_InventoryMovement));
        QVERIFY(running(main(), main().Tmr_SaveInventory));
        QVERIFY(running(main(), main().Tmr_RefreshPersonList));
        // The capture screen's look at the serial line runs unseen.
        QVERIFY(!station_.station().autorefractor().visible());
        QVERIFY(running(station_.station().autorefractor(), station_.station().autorefractor().Tmr_CountDataFlow));
    }

    void theNetworkWarningIsPlainlyShown()
    {
        auto* label = qobject_cast<QLabel*>(station_.windows().main().widgetFor(main().Lbl_NetworkJournalDown));
        QVERIFY(label->isVisibleTo(mainWindow()));
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::red));
        // Whole, in its large face, and inside the window.
        QVERIFY(QFontMetrics(label->font()).horizontalAdvance(label->text()) <= label->width());
        QVERIFY(QFontMetrics(label->font()).height() <= label->height());
        QVERIFY(station_.windows().main().canvas()->rect().contains(label->geometry()));
    }
};

QTEST_MAIN(MainScreenTest)
#include "MainScreenTest.moc"
