#pragma once

#include <QObject>

namespace vistrel {
class Frm_ProgramOptions;
}

namespace vistrel::qt {

class FormWindow;

// The options dialog offers the serial port by the station's numbers 1 to
// 16. Beside them this names the system's ports they lead to, each time the
// dialog comes up (an adapter may have been plugged in since): the numbers
// of ports this computer has stand out, their tips name the device, and a
// line under them lists them.
class PortNames : public QObject {
    Q_OBJECT
public:
    PortNames(FormWindow& window, Frm_ProgramOptions& options);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show();

    FormWindow& window_;
    Frm_ProgramOptions& options_;
};

}  // namespace vistrel::qt
