#include "QtPlatform.h"

#include "KeyboardKeeper.h"
#include "SerialStatus.h"
#include "StationWindows.h"
#include "TextConversion.h"

#include "core/Frm_Vistrel.h"
#include "platform/PathMapping.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace vistrel::qt {

namespace {

QString unquoted(QString text)
{
    text = text.trimmed();
    if (text.size() >= 2 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"')))
        text = text.mid(1, text.size() - 2);
    return text;
}

QMessageBox::Icon messageIcon(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    case MsgIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

std::string folderText(const QString& folder)
{
    return toCore(QDir::toNativeSeparators(QDir::cleanPath(folder)));
}

}  // namespace

ShellRequest parseShellRequest(const QString& what, const std::function<QString(const QString&)>& mapPath)
{
    ShellRequest request;
    const QString whole = unquoted(what);
    if (whole.isEmpty())
        return request;
    if (const QString file = mapPath(whole); QFileInfo(file).isFile()) {
        request.document = file;
        return request;
    }
    // "Notepad.exe <file>": the file goes to the desktop's text viewer.
    const QString trimmed = what.trimmed();
    const qsizetype blank = trimmed.indexOf(QLatin1Char(' '));
    const QString program = unquoted(blank < 0 ? trimmed : trimmed.left(blank));
    const QString programName = QFileInfo(QString(program).replace(QLatin1Char('\\'), QLatin1Char('/'))).fileName();
    if (blank > 0 && (programName.compare(QLatin1String("notepad.exe"), Qt::CaseInsensitive) == 0 ||
                         programName.compare(QLatin1String("notepad"), Qt::CaseInsensitive) == 0)) {
        request.document = mapPath(unquoted(trimmed.mid(blank + 1)));
        return request;
    }
    request.command = trimmed;
    return request;
}

QtPlatform::QtPlatform(QStringList arguments) : arguments_(std::move(arguments))
{
    openDocument = [](const QString& file) { return QDesktopServices::openUrl(QUrl::fromLocalFile(file)); };
    startProgram = [](const QString& command) {
#ifdef Q_OS_WIN
        QProcess::startDetached(QStringLiteral("cmd.exe"), {QStringLiteral("/c"), command});
#else
        QProcess::startDetached(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
#endif
    };
    startScript = [](const QString& file) {
        const QString folder = QFileInfo(file).absolutePath();
#ifdef Q_OS_WIN
        QProcess::startDetached(
            QStringLiteral("cmd.exe"), {QStringLiteral("/c"), QDir::toNativeSeparators(file)}, folder);
#else
        QProcess::startDetached(file, {}, folder);
#endif
    };
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::setWindows(StationWindows* windows)
{
    serialStatus_.reset();
    windows_ = windows;
    if (!windows_)
        return;
    if (auto* station = dynamic_cast<Frm_Vistrel*>(&windows_->main().form()))
        serialStatus_ = std::make_unique<SerialStatus>(serial_, *station, windows_->main());
}

QWidget* QtPlatform::activeWindow() const
{
    if (QWidget* w = QApplication::activeModalWidget())
        return w;
    if (QWidget* w = QApplication::activeWindow())
        return w;
    return windows_ ? windows_->main().window() : nullptr;
}

void QtPlatform::messageBox(const std::string& title, const std::string& text, MsgIcon icon)
{
    const QString caption = title.empty() ? QStringLiteral("Vistrel") : fromCore(title);
    const KeyboardKeeper keeper;
    QMessageBox box(messageIcon(icon), caption, toWidgetLines(text), QMessageBox::Ok, activeWindow());
    box.setTextFormat(Qt::PlainText);
    if (watcher_)
        watcher_->messageShown(box);
    box.exec();
}

void QtPlatform::runModal(Form& form)
{
    FormWindow* window = windows_ ? windows_->windowFor(form) : nullptr;
    if (window)
        window->settleFocus();
    if (watcher_ && form.visible())
        watcher_->modalShown(form, window ? window->window() : nullptr);
    while (form.visible()) {
        if (!window) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            continue;
        }
        QEventLoop loop;
        const auto connection = QObject::connect(window, &FormWindow::hidden, &loop, &QEventLoop::quit);
        if (form.visible())
            loop.exec(QEventLoop::DialogExec);
        QObject::disconnect(connection);
    }
}

void QtPlatform::doEvents()
{
    // The station calls this after every record of a long load: only a
    // pass now and then is needed to keep the window alive.
    if (pumpClock_.isValid() && pumpClock_.elapsed() < pumpIntervalMs_)
        return;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    pumpClock_.start();
}

std::vector<std::string> QtPlatform::printerNames()
{
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.push_back(toCore(name));
    return names;
}

void QtPlatform::shell(const std::string& what)
{
    const ShellRequest request = parseShellRequest(
        fromCore(what), [this](const QString& path) { return fromCore(nativePath(toCore(path))); });
    if (!request.document.isEmpty()) {
        // A report or a guide that nothing opens would leave the volunteer
        // waiting for a window that never comes: say where the file is.
        if (!openDocument(request.document))
            messageBox("Vistrel",
                toCore(QStringLiteral("No program on this computer opened the file:\n\n%1\n\n"
                                      "Open it by hand, or install a viewer for its kind of file.")
                           .arg(QDir::toNativeSeparators(request.document))),
                MsgIcon::Information);
    } else if (!request.command.isEmpty())
        startProgram(request.command);
}

void QtPlatform::runScript(const std::string& path)
{
    startScript(fromCore(nativePath(path)));
}

DateTime QtPlatform::now()
{
    const QDateTime t = QDateTime::currentDateTime();
    return DateTime{t.date().year(), t.date().month(), t.date().day(), t.time().hour(), t.time().minute(),
        t.time().second()};
}

std::string QtPlatform::documentsFolder()
{
    QString folder = qEnvironmentVariable("VISTREL_DOCUMENTS");
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return folderText(folder);
}

std::string QtPlatform::sharedDataFolder()
{
    QString folder = qEnvironmentVariable("VISTREL_SHARED");
    if (folder.isEmpty()) {
        const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        if (base.isEmpty())
            return {};
        folder = base + QLatin1String("/vistrel");
    }
    QDir().mkpath(folder);
    return folderText(folder);
}

std::string QtPlatform::programFolder()
{
    return folderText(QCoreApplication::applicationDirPath());
}

std::string QtPlatform::nativePath(const std::string& path)
{
#ifdef Q_OS_WIN
    return path;
#else
    if (!hasDriveLetter(path))
        return path;
    // The root of a drive always exists where drives are real.
    const std::string shared = sharedDataFolder();
    QDir().mkpath(fromCore(driveRootFolder(shared, path[0])));
    return mapDriveLetterPath(path, shared);
#endif
}

char QtPlatform::pathSeparator() const
{
#ifdef Q_OS_WIN
    return '\\';
#else
    return '/';
#endif
}

void QtPlatform::setFileAttributes(const std::string& path, int attributes)
{
    const QString file = fromCore(path);
    QFile::Permissions permissions = QFile::permissions(file);
    constexpr QFile::Permissions writable =
        QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
    if (attributes & 1)
        permissions &= ~writable;
    else
        permissions |= QFile::WriteOwner | QFile::WriteUser;
    QFile::setPermissions(file, permissions);
#ifdef Q_OS_WIN
    DWORD flags = FILE_ATTRIBUTE_NORMAL;
    if (attributes & 1)
        flags = FILE_ATTRIBUTE_READONLY;
    if (attributes & 2)
        flags = (flags == FILE_ATTRIBUTE_NORMAL ? 0 : flags) | FILE_ATTRIBUTE_HIDDEN;
    SetFileAttributesW(reinterpret_cast<const wchar_t*>(QDir::toNativeSeparators(file).utf16()), flags);
#endif
}

std::string QtPlatform::commandLine()
{
    return toCore(arguments_.join(QLatin1Char(' ')));
}

void QtPlatform::endProcess()
{
    serial_.setPortOpen(false);
    printer_.endDoc();
    std::fflush(nullptr);
    std::exit(0);
}

}  // namespace vistrel::qt
