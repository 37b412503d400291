#include "Screenshot.h"

#include "StationWindows.h"
#include "TextConversion.h"

#include "core/screen/Controls.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace vistrel::qt {

namespace {

// Time for a window to lay itself out and paint before it is taken.
constexpr int SettleMs = 400;

}  // namespace

std::optional<ScreenAction> parseScreenAction(ScreenAction::Kind kind, const QString& argument)
{
    ScreenAction action;
    action.kind = kind;
    QString target = argument;
    if (kind == ScreenAction::Kind::Type) {
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        if (equals < 0)
            return std::nullopt;
        target = argument.left(equals);
        action.text = argument.mid(equals + 1);
    }
    if (const qsizetype at = target.indexOf(QLatin1Char('@')); kind == ScreenAction::Kind::Press && at > 0) {
        const QStringList place = target.mid(at + 1).split(QLatin1Char(','));
        bool rowOk = false, colOk = true;
        action.row = place.value(0).toInt(&rowOk);
        if (place.size() > 1)
            action.col = place[1].toInt(&colOk);
        if (!rowOk || !colOk || place.size() > 2 || action.row < 0 || (place.size() > 1 && action.col < 0))
            return std::nullopt;
        target = target.left(at);
    }
    const qsizetype dot = target.indexOf(QLatin1Char('.'));
    if (dot <= 0 || dot + 1 >= target.size())
        return std::nullopt;
    action.form = target.left(dot);
    action.control = target.mid(dot + 1);
    if (const qsizetype open = action.control.indexOf(QLatin1Char('('));
        open > 0 && action.control.endsWith(QLatin1Char(')'))) {
        bool ok = false;
        action.index = action.control.mid(open + 1, action.control.size() - open - 2).toInt(&ok);
        if (!ok)
            return std::nullopt;
        action.control = action.control.left(open);
    }
    return action;
}

Screenshot::Screenshot(QString file, std::vector<ScreenAction> actions, StationWindows& windows)
    : file_(std::move(file)), actions_(std::move(actions)), windows_(windows)
{
}

QString Screenshot::pathFor(const QString& file, const QString& suffix)
{
    const QFileInfo info(file);
    const QString base = info.completeBaseName();
    const QString ext = info.suffix().isEmpty() ? QStringLiteral("png") : info.suffix();
    const QString dir = info.path();
    const QString name = base + QLatin1Char('-') + suffix + QLatin1Char('.') + ext;
    return dir == QLatin1String(".") && !file.startsWith(QLatin1String("./")) ? name : dir + QLatin1Char('/') + name;
}

bool Screenshot::save(QWidget* window, const QString& path)
{
    if (!window)
        return false;
    const bool ok = window->grab().save(path, "PNG");
    std::fprintf(stderr, "%s %s\n", ok ? "saved" : "could not save", qPrintable(path));
    return ok;
}

Control* Screenshot::target(const ScreenAction& action) const
{
    const FormWindow* window = windows_.windowFor(action.form.toStdString());
    if (!window)
        return nullptr;
    return window->form().control(action.control.toStdString(), action.index);
}

void Screenshot::perform(const ScreenAction& action)
{
    Control* control = target(action);
    if (!control) {
        std::fprintf(stderr, "no control %s.%s\n", qPrintable(action.form), qPrintable(action.control));
        return;
    }
    if (action.kind == ScreenAction::Kind::Press) {
        // A row or a cell is chosen as a person chooses it, then clicked.
        if (action.row >= 0 && control->kind() == ControlKind::ListBox)
            static_cast<ListBox*>(control)->setListIndex(action.row);
        else if (action.row >= 0 && control->kind() == ControlKind::Grid)
            static_cast<Grid*>(control)->moveTo(action.row, std::max(action.col, 0));
        control->click();
    } else if (control->kind() == ControlKind::TextBox) {
        static_cast<TextBox*>(control)->setText(toCore(action.text));
    }
}

void Screenshot::messageShown(QMessageBox& box)
{
    const QString path = pathFor(file_, QStringLiteral("message%1").arg(++messages_));
    std::fprintf(stderr, "message: %s\n", qPrintable(box.text()));
    QPointer<QMessageBox> alive(&box);
    QTimer::singleShot(SettleMs, &box, [this, alive, path] {
        if (!alive)
            return;
        save(alive, path);
        alive->accept();
    });
}

void Screenshot::modalShown(Form& form, QWidget* window)
{
    const QString path = pathFor(file_, QString::fromStdString(form.name()));
    std::vector<ScreenAction> steps;
    for (const ScreenAction& action : actions_)
        if (action.form.toStdString() == form.name())
            steps.push_back(action);
    std::optional<ScreenAction> closing;
    for (auto it = steps.rbegin(); it != steps.rend(); ++it) {
        if (it->kind == ScreenAction::Kind::Press) {
            closing = *it;
            steps.erase(std::next(it).base());
            break;
        }
    }
    QTimer::singleShot(SettleMs, this, [this, &form, window, path, steps, closing] {
        if (!form.visible())
            return;
        for (const ScreenAction& action : steps)
            perform(action);
        QTimer::singleShot(steps.empty() ? 0 : SettleMs, this, [this, &form, window, path, closing] {
            if (!form.visible())
                return;
            save(window, path);
            if (closing)
                perform(*closing);
            if (form.visible())
                form.closeBox();
        });
    });
}

void Screenshot::finish()
{
    QTimer::singleShot(SettleMs + waitMs_, this, [this] {
        for (const ScreenAction& action : actions_) {
            const FormWindow* window = windows_.windowFor(action.form.toStdString());
            if (window && window->form().visible())
                perform(action);
        }
        QTimer::singleShot(SettleMs, this, [this] {
            bool ok = save(windows_.main().window(), file_);
            for (const auto& w : windows_.all())
                if (w.get() != &windows_.main() && w->window()->isVisible())
                    ok = save(w->window(), pathFor(file_, QString::fromStdString(w->form().name()))) && ok;
            QCoreApplication::exit(ok ? 0 : 1);
        });
    });
}

}  // namespace vistrel::qt
