#pragma once

// What the window tests share: files written for a station, a person who
// works the modal screens, and the keyboard.

#include "QtPlatform.h"

#include "core/screen/Form.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <utility>

namespace vistrel::test {

inline void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// Works a modal screen, once it is up and has the keyboard, with what the
// test gives it (once); closes it otherwise. Message boxes are counted and
// accepted.
class Person : public qt::DialogWatcher {
public:
    std::function<void(Form&, QWidget*)> answer;
    int messages = 0;
    QString lastMessage;

    void messageShown(QMessageBox& box) override
    {
        ++messages;
        lastMessage = box.text();
        QTimer::singleShot(0, &box, [&box] { box.accept(); });
    }
    void modalShown(Form& form, QWidget* window) override
    {
        auto act = std::exchange(answer, nullptr);
        QTimer::singleShot(0, window, [act, &form, window] {
            window->activateWindow();
            QVERIFY(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
            if (act)
                act(form, window);
            if (form.visible())
                form.closeBox();
        });
    }
};

// Columns stand under each other when every character is as wide as any
// other. Measured, because some monospaced faces (Noto Sans Mono) don't
// call themselves fixed-pitch.
inline bool columnsLineUp(const QFont& font)
{
    const QFontMetricsF metrics(font);
    const qreal width = metrics.horizontalAdvance(QLatin1Char('W'));
    for (const QChar c : QStringLiteral("il.1 0-(|"))
        if (!qFuzzyCompare(metrics.horizontalAdvance(c), width))
            return false;
    return true;
}

inline void key(Qt::Key k, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), k, modifiers);
}

// Tabs through the window until the caret is on the widget; false when a
// whole round never gets there.
inline bool tabTo(QWidget* target, Qt::Key k = Qt::Key_Tab)
{
    for (int i = 0; i < 400 && QApplication::focusWidget() != target; ++i)
        key(k);
    return QApplication::focusWidget() == target;
}

}  // namespace vistrel::test
