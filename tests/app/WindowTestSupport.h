#pragma once

// What the window tests share: files written for a station, a station in
// its windows, a person who works the modal screens, and the keyboard.

#include "Metrics.h"
#include "QtPlatform.h"
#include "StationWindows.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"
#include "core/screen/Form.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>
#include <utility>

namespace vistrel::test {

inline void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

inline void copyFile(const QString& from, const QString& to)
{
    QDir().mkpath(QFileInfo(to).path());
    QFile::remove(to);
    QVERIFY2(QFile::copy(from, to), qPrintable(from));
    QFile::setPermissions(to, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

// A station started in its windows as the window program starts it, in
// folders of its own, with no serial line, and documents, programs and
// scripts started nowhere. Files written into documents() and shared()
// before start() are its stock and options.
class WindowStation {
public:
    WindowStation() { qputenv("VISTREL_COM1", "/nonexistent/vistrel-line"); }
    ~WindowStation()
    {
        stop();
        qunsetenv("VISTREL_COM1");
    }
    WindowStation(const WindowStation&) = delete;
    WindowStation& operator=(const WindowStation&) = delete;

    QString documents() const { return folders_.filePath(QStringLiteral("documents")); }
    QString shared() const { return folders_.filePath(QStringLiteral("shared")); }

#ifdef VISTREL_DEMO_DIR
    void useDemoData()
    {
        const QString demo = QStringLiteral(VISTREL_DEMO_DIR);
        copyFile(demo + QStringLiteral("/Vistrel/Total_Inventory.txt"),
            documents() + QStringLiteral("/Vistrel/Total_Inventory.txt"));
        copyFile(demo + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"),
            shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"));
    }
#endif

    void start(qt::DialogWatcher& watcher, double scale = 1.0)
    {
        QVERIFY(folders_.isValid());
        qputenv("VISTREL_DOCUMENTS", documents().toUtf8());
        qputenv("VISTREL_SHARED", shared().toUtf8());
        platform_ = std::make_unique<qt::QtPlatform>();
        platform_->openDocument = [](const QString&) { return true; };
        platform_->startProgram = [](const QString&) {};
        platform_->startScript = [](const QString&) {};
        station_ = std::make_unique<Station>(*platform_);
        windows_ = std::make_unique<qt::StationWindows>(
            station_->forms(), station_->vistrel(), qt::Metrics(scale, 96.0));
        platform_->setWindows(windows_.get());
        platform_->setDialogWatcher(&watcher);
        mainWindow()->show();
        station_->start();
        QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
    }

    // Writes the options of a plain station: default tolerances, both eyes,
    // no autorefractor, no network journal.
    void writePlainOptions() const
    {
        writeFile(shared() + QStringLiteral("/Application Data/Vistrel/Vistrel-Options.txt"),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,NO,NONE,0,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,2.50,"
            "100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,NO,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,Default,1,"
            "32000\r\n");
    }
    void writeInventory(const QByteArray& text) const
    {
        writeFile(documents() + QStringLiteral("/Vistrel/Total_Inventory.txt"), text);
    }

    // The windows closed and the station gone, before the application goes.
    void stop()
    {
        windows_.reset();
        station_.reset();
        platform_.reset();
    }

    qt::QtPlatform& platform() const { return *platform_; }
    Station& station() const { return *station_; }
    qt::StationWindows& windows() const { return *windows_; }
    QWidget* mainWindow() const { return windows_->main().window(); }

private:
    QTemporaryDir folders_;
    std::unique_ptr<qt::QtPlatform> platform_;
    std::unique_ptr<Station> station_;
    std::unique_ptr<qt::StationWindows> windows_;
};

// The scale the test runs at: VISTREL_SCALE, else 1.
inline double testScale()
{
    bool ok = false;
    const double s = qEnvironmentVariable("VISTREL_SCALE").toDouble(&ok);
    return ok && s > 0 ? s : 1.0;
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
