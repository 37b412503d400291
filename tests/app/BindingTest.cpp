// The widgets of a screen follow its controls, and a person's actions on
// the widgets reach the core once, in the core's way.

#include "TestForm.h"
#include "WindowTestSupport.h"

#include "TimerBinding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <algorithm>
#include <cctype>

using namespace vistrel;
using namespace vistrel::test;

class BindingTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestStation> station_;
    Station& station() { return station_->station; }

private slots:
    void initTestCase() { station_ = std::make_unique<TestStation>(); }
    void cleanupTestCase() { station_.reset(); }

    // ---- text boxes ----
    void typingReachesTheCoreAndItsRewriteIsShown()
    {
        BoundForm b(station());
        int changes = 0;
        b.form.Txt_Name.onChange = [&] {
            ++changes;
            std::string t = b.form.Txt_Name.text();
            std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::toupper(c); });
            b.form.Txt_Name.setText(t);
        };
        auto* edit = b.widget<QLineEdit>(b.form.Txt_Name);
        QVERIFY(edit);
        QTest::keyClicks(edit, "ab");
        QCOMPARE(b.form.Txt_Name.text(), std::string("AB"));
        QCOMPARE(edit->text(), QStringLiteral("AB"));
        QCOMPARE(edit->cursorPosition(), 2);
        // Each keystroke is one change, plus one for each rewrite.
        QCOMPARE(changes, 4);
    }

    void caretStaysWhereTypingWasWhenTheCoreRefusesACharacter()
    {
        BoundForm b(station());
        b.form.Txt_Age.onChange = [&] {
            std::string t = b.form.Txt_Age.text();
            t.erase(std::remove_if(t.begin(), t.end(), [](unsigned char c) { return !std::isdigit(c); }), t.end());
            b.form.Txt_Age.setText(t);
        };
        auto* edit = b.widget<QLineEdit>(b.form.Txt_Age);
        b.form.Txt_Age.setText("15");
        QCOMPARE(edit->text(), QStringLiteral("15"));
        edit->setCursorPosition(1);
        QTest::keyClicks(edit, "x");
        QCOMPARE(b.form.Txt_Age.text(), std::string("15"));
        QCOMPARE(edit->text(), QStringLiteral("15"));
        QCOMPARE(edit->cursorPosition(), 1);
        QTest::keyClicks(edit, "0");
        QCOMPARE(edit->text(), QStringLiteral("105"));
        QCOMPARE(edit->cursorPosition(), 2);
    }

    void aCoreWriteIsShownWithoutBeingSentBack()
    {
        BoundForm b(station());
        int changes = 0;
        b.form.Txt_Name.onChange = [&] { ++changes; };
        b.form.Txt_Name.setText("caf\xc3\xa9");
        QCOMPARE(b.widget<QLineEdit>(b.form.Txt_Name)->text(), QString::fromUtf8("caf\xc3\xa9"));
        QCOMPARE(changes, 1);
    }

    void lockedTextBoxesAreReadOnly()
    {
        BoundForm b(station());
        auto* edit = b.widget<QLineEdit>(b.form.Txt_Name);
        QVERIFY(!edit->isReadOnly());
        b.form.Txt_Name.setLocked(true);
        QVERIFY(edit->isReadOnly());
        QTest::keyClicks(edit, "zz");
        QCOMPARE(b.form.Txt_Name.text(), std::string());
        b.form.Txt_Notes.setLocked(true);
        QVERIFY(b.widget<QPlainTextEdit>(b.form.Txt_Notes)->isReadOnly());
    }

    void multiLineTextBoxesUseLineBreaksOfTheirOwn()
    {
        BoundForm b(station());
        auto* edit = b.widget<QPlainTextEdit>(b.form.Txt_Notes);
        QVERIFY(edit);
        b.form.Txt_Notes.setText("first\r\nsecond");
        QCOMPARE(edit->toPlainText(), QStringLiteral("first\nsecond"));
        edit->moveCursor(QTextCursor::End);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClicks(edit, "third");
        QCOMPARE(b.form.Txt_Notes.text(), std::string("first\r\nsecond\r\nthird"));
    }

    void clicksOnTextBoxesAndLabelsReachTheCore()
    {
        BoundForm b(station());
        b.window.window()->show();
        int clicks = 0, doubles = 0;
        b.form.Txt_Age.onClick = [&] {
            ++clicks;
            b.form.Txt_Age.setText("");  // as the age box does
        };
        b.form.Txt_Age.onDblClick = [&] { ++doubles; };
        b.form.Txt_Age.setText("42");
        auto* edit = b.widget<QLineEdit>(b.form.Txt_Age);
        QTest::mouseClick(edit, Qt::LeftButton);
        QCOMPARE(clicks, 1);
        QCOMPARE(edit->text(), QString());
        QTest::mouseDClick(edit, Qt::LeftButton);
        QCOMPARE(doubles, 1);

        int labelClicks = 0;
        b.form.Lbl_Title.onClick = [&] { ++labelClicks; };
        QTest::mouseClick(b.widget<QLabel>(b.form.Lbl_Title), Qt::LeftButton);
        QCOMPARE(labelClicks, 1);
        b.form.Lbl_Title.setEnabled(false);
        QTest::mouseClick(b.widget<QLabel>(b.form.Lbl_Title), Qt::LeftButton);
        QCOMPARE(labelClicks, 1);
    }

    // ---- check boxes and options ----
    void aCheckBoxClickTogglesTheCoreOnce()
    {
        BoundForm b(station());
        b.window.window()->show();
        int clicks = 0;
        b.form.Chk_Blind.onClick = [&] { ++clicks; };
        auto* box = b.widget<QCheckBox>(b.form.Chk_Blind);
        QTest::mouseClick(box, Qt::LeftButton, {}, box->rect().center());
        QCOMPARE(b.form.Chk_Blind.value(), 1);
        QVERIFY(box->isChecked());
        QCOMPARE(clicks, 1);
        box->click();
        QCOMPARE(b.form.Chk_Blind.value(), 0);
        QVERIFY(!box->isChecked());
        QCOMPARE(clicks, 2);
    }

    void aCheckBoxShowsTheCoresVerdict()
    {
        BoundForm b(station());
        // The screen refuses to tick the box.
        b.form.Chk_Blind.onClick = [&] { b.form.Chk_Blind.setValue(0); };
        auto* box = b.widget<QCheckBox>(b.form.Chk_Blind);
        box->click();
        QCOMPARE(b.form.Chk_Blind.value(), 0);
        QVERIFY(!box->isChecked());
        b.form.Chk_Blind.onClick = nullptr;
        b.form.Chk_Blind.setValue(1);
        QVERIFY(box->isChecked());
    }

    void optionButtonsAreExclusiveByTheCore()
    {
        BoundForm b(station());
        int clicksB = 0;
        b.form.Opt_B.onClick = [&] { ++clicksB; };
        auto* a = b.widget<QRadioButton>(b.form.Opt_A);
        auto* o = b.widget<QRadioButton>(b.form.Opt_B);
        a->click();
        QVERIFY(b.form.Opt_A.value());
        QVERIFY(a->isChecked());
        o->click();
        QVERIFY(!b.form.Opt_A.value());
        QVERIFY(b.form.Opt_B.value());
        QVERIFY(!a->isChecked());
        QVERIFY(o->isChecked());
        // Clicking the selected option again raises its Click and keeps it.
        o->click();
        QVERIFY(o->isChecked());
        QCOMPARE(clicksB, 2);
        b.form.Opt_A.setValue(true);
        QVERIFY(a->isChecked());
        QVERIFY(!o->isChecked());
    }

    // ---- buttons, captions, colours ----
    void buttonsClickAndKeepTheirAccelerator()
    {
        BoundForm b(station());
        int clicks = 0;
        b.form.Cmd_Go.onClick = [&] { ++clicks; };
        auto* button = b.widget<QPushButton>(b.form.Cmd_Go);
        QCOMPARE(button->text(), QStringLiteral("&Go"));
        QVERIFY(!button->autoDefault());
        button->click();
        QCOMPARE(clicks, 1);
        b.form.Cmd_Go.setCaption("Stop && go");
        QCOMPARE(button->text(), QStringLiteral("Stop && go"));
        b.form.Lbl_Title.setCaption("Left && Right");
        QCOMPARE(b.widget<QLabel>(b.form.Lbl_Title)->text(), QStringLiteral("Left & Right"));
        b.form.Frm_Box.setCaption("Person");
        QCOMPARE(b.widget<QGroupBox>(b.form.Frm_Box)->title(), QStringLiteral("Person"));
    }

    void aYellowButtonIsDrawnYellow()
    {
        BoundForm b(station());
        b.window.window()->show();
        auto* button = b.widget<QPushButton>(b.form.Cmd_Go);
        const QImage plain = button->grab().toImage();
        b.form.Cmd_Go.setBackColor(colors::Yellow);
        QCOMPARE(button->palette().color(QPalette::Button), QColor(Qt::yellow));
        const QImage yellow = button->grab().toImage();
        // Somewhere inside the face, away from the caption.
        const QColor face = yellow.pixelColor(4, yellow.height() / 2);
        QVERIFY2(face.red() > 200 && face.green() > 200 && face.blue() < 120, qPrintable(face.name()));
        QVERIFY(plain.pixelColor(4, plain.height() / 2).blue() > 150);
        b.form.Cmd_Go.setBackColor(colors::ButtonFace);
        QCOMPARE(button->palette().color(QPalette::Button), QApplication::palette().color(QPalette::Button));
    }

    void labelsAndTextBoxesTakeTheirColours()
    {
        BoundForm b(station());
        b.form.Lbl_Title.setBackColor(colors::Cyan);
        b.form.Lbl_Title.setForeColor(colors::Red);
        auto* label = b.widget<QLabel>(b.form.Lbl_Title);
        QVERIFY(label->autoFillBackground());
        QCOMPARE(label->palette().color(QPalette::Window), QColor(0, 255, 255));
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(255, 0, 0));
        b.form.Txt_Name.setBackColor(colors::Green);
        QCOMPARE(b.widget<QLineEdit>(b.form.Txt_Name)->palette().color(QPalette::Base), QColor(0, 255, 0));
        // In the colour of the screen around it, the screen shows through.
        b.form.Lbl_Title.setBackColor(colors::ButtonFace);
        QVERIFY(!label->autoFillBackground());
    }

    void fixedPitchFontsForTablesOfColumns()
    {
        BoundForm b(station());
        Font courier;
        courier.name = "Courier New";
        courier.size = 10;
        courier.bold = true;
        b.form.Lbl_Title.setFont(courier);
        const QFont f = b.widget<QLabel>(b.form.Lbl_Title)->font();
        QVERIFY(columnsLineUp(f));
        QVERIFY(f.bold());
        QCOMPARE(f.pointSizeF(), 10.0);
        QVERIFY(columnsLineUp(b.window.widgetFor(b.form.Lst_Rows)->font()));
    }

    // ---- geometry ----
    void controlsSitInTheirFramesAtTheirTwips()
    {
        BoundForm b(station());
        QWidget* name = b.window.widgetFor(b.form.Txt_Name);
        QCOMPARE(name->parentWidget(), b.window.widgetFor(b.form.Frm_Box));
        QCOMPARE(name->geometry(), QRect(20, 30, 100, 20));
        QCOMPARE(b.window.widgetFor(b.form.Txt_Age)->parentWidget(), b.window.canvas());
        // A reversal of the screen moves controls while it is up.
        b.form.Txt_Age.setLeft(150);
        QCOMPARE(b.window.widgetFor(b.form.Txt_Age)->x(), 10);
        b.form.Txt_Age.setVisible(false);
        QVERIFY(b.window.widgetFor(b.form.Txt_Age)->isHidden());
        b.form.Txt_Age.setEnabled(false);
        QVERIFY(!b.window.widgetFor(b.form.Txt_Age)->isEnabled());
        b.form.Txt_Age.setToolTipText("years");
        QCOMPARE(b.window.widgetFor(b.form.Txt_Age)->toolTip(), QStringLiteral("years"));
    }

    void touchingControlsStayTouchingWhenScaled()
    {
        TestForm form(station());
        form.Txt_Name.setGeometry(1000, 0, 1000, 300);
        form.Txt_Age.setGeometry(2000, 0, 1000, 300);
        const qt::Metrics m(1.3, 96.0);
        QCOMPARE(m.rect(form.Txt_Name).right() + 1, m.rect(form.Txt_Age).left());
    }

    void tabOrderFollowsTabIndex()
    {
        BoundForm b(station());
        int next = 10;
        for (Control* c : b.form.controls())
            c->setTabIndex(next++);
        b.form.Txt_Age.setTabIndex(0);
        b.form.Cmd_Go.setTabIndex(1);
        b.form.Txt_Name.setTabIndex(2);
        b.form.Txt_Notes.setTabIndex(3);
        b.window.updateTabOrder();
        QWidget* age = b.window.widgetFor(b.form.Txt_Age);
        QWidget* go = b.window.widgetFor(b.form.Cmd_Go);
        QWidget* name = b.window.widgetFor(b.form.Txt_Name);
        QCOMPARE(age->nextInFocusChain(), go);
        QCOMPARE(go->nextInFocusChain(), name);

        // Swapped tab indexes re-chain once events have run.
        b.form.Txt_Age.setTabIndex(2);
        b.form.Txt_Name.setTabIndex(0);
        QCoreApplication::processEvents();
        QCOMPARE(name->nextInFocusChain(), go);
        QCOMPARE(go->nextInFocusChain(), age);
        QCOMPARE(age->nextInFocusChain(), b.window.widgetFor(b.form.Txt_Notes));
    }

    // ---- combo boxes ----
    void aComboBoxOffersTheCoresItemsAndReportsTheChoice()
    {
        BoundForm b(station());
        ComboBox& combo = b.form.Cbo_Printer;
        combo.addItem("Default");
        combo.addItem("Office laser");
        combo.setText("Default");
        auto* box = b.widget<QComboBox>(b.form.Cbo_Printer);
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->currentText(), QStringLiteral("Default"));
        int clicks = 0;
        combo.onClick = [&] { ++clicks; };
        box->setCurrentIndex(1);
        emit box->activated(1);
        QCOMPARE(combo.text(), std::string("Office laser"));
        QCOMPARE(clicks, 1);
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), "PDF");
        QCOMPARE(combo.text(), std::string("PDF"));
        combo.clear();
        QCOMPARE(box->count(), 0);
        QCOMPARE(box->currentText(), QStringLiteral("PDF"));
    }

    // ---- timers ----
    void timersRunOnceTheScreenIsShownAndWhileEnabled()
    {
        BoundForm b(station());
        int ticks = 0;
        b.form.Tmr_Tick.onTimer = [&] { ++ticks; };
        b.form.Tmr_Tick.setEnabled(true);
        QTest::qWait(80);
        QCOMPARE(ticks, 0);  // not loaded yet
        b.form.show();
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 2, 2000);
        b.form.Tmr_Tick.setEnabled(false);
        const int stopped = ticks;
        QTest::qWait(80);
        QCOMPARE(ticks, stopped);
        b.form.Tmr_Tick.setInterval(0);
        b.form.Tmr_Tick.setEnabled(true);
        QTest::qWait(60);
        QCOMPARE(ticks, stopped);
        b.form.hide();
    }

    void aTimerIsNotReenteredWhileItsHandlerWaits()
    {
        BoundForm b(station());
        int depth = 0, deepest = 0, ticks = 0;
        b.form.Tmr_Tick.onTimer = [&] {
            ++ticks;
            ++depth;
            deepest = std::max(deepest, depth);
            if (ticks == 1)
                QTest::qWait(100);  // a message box in the handler
            --depth;
        };
        b.form.Tmr_Tick.setEnabled(true);
        b.form.show();
        QTRY_VERIFY_WITH_TIMEOUT(ticks >= 3, 2000);
        QCOMPARE(deepest, 1);
        b.form.Tmr_Tick.setEnabled(false);
        b.form.hide();
    }
};

QTEST_MAIN(BindingTest)
#include "BindingTest.moc"
