// vistrel: the station's window program.
//
//   vistrel [station arguments]
//           [--screenshot FILE [--press FORM.CONTROL | --type FORM.CONTROL=TEXT]...]
//
// VISTREL_DOCUMENTS and VISTREL_SHARED name the documents folder and the
// shared data folder, VISTREL_SCALE enlarges the screens, VISTREL_COM<n>
// names the device of serial port n, VISTREL_PRINT_PDF sends printing to a
// PDF file.

#include "Metrics.h"
#include "QtPlatform.h"
#include "Screenshot.h"
#include "StationWindows.h"

#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <QApplication>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct Options {
    QString screenshot;
    std::vector<vistrel::qt::ScreenAction> actions;
    QStringList stationArguments;
    bool valid = true;
};

Options parseOptions(const QStringList& arguments)
{
    Options options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& arg = arguments[i];
        const bool press = arg == QLatin1String("--press");
        const bool type = arg == QLatin1String("--type");
        if (arg == QLatin1String("--screenshot") || press || type) {
            if (i + 1 >= arguments.size()) {
                options.valid = false;
                break;
            }
            const QString value = arguments[++i];
            if (!press && !type) {
                options.screenshot = value;
                continue;
            }
            using Kind = vistrel::qt::ScreenAction::Kind;
            const auto action = vistrel::qt::parseScreenAction(press ? Kind::Press : Kind::Type, value);
            if (!action) {
                options.valid = false;
                break;
            }
            options.actions.push_back(*action);
        } else {
            options.stationArguments << arg;
        }
    }
    return options;
}

// A picture-taking run that hangs (a dialog nobody closes) ends itself.
constexpr int ScreenshotTimeoutMs = 120000;

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setApplicationName(QStringLiteral("Vistrel"));
    // Closing windows is the station's decision, not Qt's.
    QApplication::setQuitOnLastWindowClosed(false);

    const Options options = parseOptions(QApplication::arguments());
    if (!options.valid) {
        std::fprintf(stderr,
            "usage: vistrel [--screenshot FILE [--press FORM.CONTROL | --type FORM.CONTROL=TEXT]...]\n");
        return 2;
    }

    const vistrel::qt::Metrics metrics = vistrel::qt::Metrics::fromEnvironment();
    if (metrics.fontScale() != 1.0) {
        // Menus and message boxes grow with the screens.
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * metrics.fontScale());
        QApplication::setFont(font);
    }

    vistrel::qt::QtPlatform platform(options.stationArguments);
    vistrel::Station station(platform);
    vistrel::Form& mainForm = station.vistrel();
    vistrel::qt::StationWindows windows(station.forms(), mainForm, metrics);
    platform.setWindows(&windows);

    std::unique_ptr<vistrel::qt::Screenshot> screenshot;
    if (!options.screenshot.isEmpty()) {
        screenshot = std::make_unique<vistrel::qt::Screenshot>(options.screenshot, options.actions, windows);
        platform.setDialogWatcher(screenshot.get());
        QTimer::singleShot(ScreenshotTimeoutMs, [] {
            std::fprintf(stderr, "screenshot: the start-up did not finish\n");
            std::_Exit(3);
        });
    }

    windows.main().window()->show();
    // The start-up runs inside the event loop, so the window is up and
    // shows the progress of the load.
    QTimer::singleShot(0, [&] {
        station.start();
        if (screenshot)
            screenshot->finish();
    });
    return QApplication::exec();
}
