#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class QWidget;

namespace vistrel::qt {

// Keeps the size and place a person gave the main window from one run to
// the next (in the desktop's settings for the program). A size smaller than
// the designed one is never kept: the window doesn't go below it.
class WindowSizeMemory : public QObject {
    Q_OBJECT
public:
    explicit WindowSizeMemory(QWidget* window, QString key = QStringLiteral("mainWindow/geometry"));

    // Puts the window where it was last time, if it was anywhere.
    void restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save();

    QPointer<QWidget> window_;
    QString key_;
    QTimer saveSoon_;
};

}  // namespace vistrel::qt
