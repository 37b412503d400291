#pragma once

#include "QtPlatform.h"

#include "core/screen/Form.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace vistrel::qt {

class StationWindows;

// Something done to a screen in a picture-taking run: a click on a
// control ("--press Frm_X.Cmd_Go"), on a row of a list
// ("--press Frm_X.Lst_Rows@2") or on a cell of a grid, headings counted
// ("--press Frm_X.Grd_Cells(0)@5,3"), or a text typed into a text box
// ("--type Frm_X.Txt_Age=45").
struct ScreenAction {
    enum class Kind { Press, Type };
    Kind kind = Kind::Press;
    QString form;
    QString control;
    int index = -1;
    int row = -1;
    int col = -1;
    QString text;
};
std::optional<ScreenAction> parseScreenAction(ScreenAction::Kind kind, const QString& argument);

// The picture-taking run (--screenshot FILE): every message box is saved
// as FILE-messageN.png and closed. A modal screen that comes up gets the
// actions meant for it, in order, except its last --press; then it is
// saved as FILE-<form>.png and closed by that last press, or by its close
// box when it has none. Once the start-up is over, the actions for the
// screens then open are done in order, and the main window is saved as
// FILE, any other open window as FILE-<form>.png, and the program ends.
class Screenshot : public QObject, public DialogWatcher {
    Q_OBJECT
public:
    Screenshot(QString file, std::vector<ScreenAction> actions, StationWindows& windows);

    void messageShown(QMessageBox& box) override;
    void modalShown(Form& form, QWidget* window) override;

    // How long finish() waits before it acts: time for a device to send.
    void setWait(int ms) { waitMs_ = ms; }

    // Call after the start-up: does the actions, takes the pictures, quits.
    void finish();

    // "shot.png" with "Frm_About" gives "shot-Frm_About.png".
    static QString pathFor(const QString& file, const QString& suffix);

private:
    bool save(QWidget* window, const QString& path);
    Control* target(const ScreenAction& action) const;
    void perform(const ScreenAction& action);

    QString file_;
    std::vector<ScreenAction> actions_;
    StationWindows& windows_;
    int messages_ = 0;
    int waitMs_ = 0;
};

}  // namespace vistrel::qt
