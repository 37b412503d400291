#pragma once

#include <QObject>

class QMenu;
class QWidget;

namespace vistrel {
class Frm_Vistrel;
}

namespace vistrel::qt {

class QtPrinter;

// The slip beside printing: a print preview and a PDF, offered in the
// File menu of the main window. Both run the station's own print of the
// slip, so they show exactly what the printer would get. A job that finds
// no printer is told in a message box over the main window.
class SlipActions : public QObject {
    Q_OBJECT
public:
    SlipActions(Frm_Vistrel& station, QtPrinter& printer, QMenu* fileMenu, QWidget* mainWindow);

    void preview();
    // Asks where to save, then writes the slip there.
    void saveAsPdf();
    // Writes the slip to path without asking.
    void saveAsPdf(const QString& path);

private:
    Frm_Vistrel& station_;
    QtPrinter& printer_;
    QWidget* mainWindow_;
};

}  // namespace vistrel::qt
