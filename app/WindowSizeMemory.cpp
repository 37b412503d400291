#include "WindowSizeMemory.h"

#include <QEvent>
#include <QSettings>
#include <QWidget>

namespace vistrel::qt {

WindowSizeMemory::WindowSizeMemory(QWidget* window, QString key)
    : QObject(window), window_(window), key_(std::move(key))
{
    // A drag of the window's edge sends many sizes: the last one is kept.
    saveSoon_.setSingleShot(true);
    saveSoon_.setInterval(400);
    connect(&saveSoon_, &QTimer::timeout, this, &WindowSizeMemory::save);
    window_->installEventFilter(this);
}

void WindowSizeMemory::restore()
{
    const QByteArray geometry = QSettings().value(key_).toByteArray();
    if (!geometry.isEmpty() && window_)
        window_->restoreGeometry(geometry);
}

bool WindowSizeMemory::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window_ && (event->type() == QEvent::Resize || event->type() == QEvent::Move
                                  || event->type() == QEvent::WindowStateChange))
        saveSoon_.start();
    return QObject::eventFilter(watched, event);
}

void WindowSizeMemory::save()
{
    if (window_ && window_->isVisible())
        QSettings().setValue(key_, window_->saveGeometry());
}

}  // namespace vistrel::qt
