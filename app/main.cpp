// vistrel: the station's window program.
//
//   vistrel [station arguments]
//           [--screenshot FILE [--wait MS] [--press FORM.CONTROL[@ROW[,COL]] | --type FORM.CONTROL=TEXT]...]
//           [--timing]
//   vistrel --list-ports
//
// --press with @ROW clicks a row of a list, with @ROW,COL a cell of a grid
// (headings counted). A modal screen gets the actions meant for it before
// its picture is taken, except its last --press, which closes it.
//
// --wait lets the screenshot run wait so long after the start-up before it
// acts and takes its pictures: time for a device on the serial line to send.
//
// --list-ports prints the serial ports with the numbers the station's
// options give them, and ends.
//
// --timing prints how long the start took until the main window was up
// and until the stock lists were filled, then refills the stock lists as
// CLEAR & RELOAD does and prints how long the window waited meanwhile, and
// ends the program.
//
// VISTREL_DOCUMENTS and VISTREL_SHARED name the documents folder and the
// shared data folder, VISTREL_SCALE enlarges the screens, VISTREL_COM<n>
// names the device of serial port n, VISTREL_PRINT_PDF sends printing to a
// PDF file.

#include "Metrics.h"
#include "QtPlatform.h"
#include "ScaledStyle.h"
#include "PortNames.h"
#include "SlipActions.h"
#include "WindowSizeMemory.h"
#include "TextConversion.h"
#include "Screenshot.h"
#include "SerialPorts.h"
#include "StationWindows.h"

#include "core/Frm_ProgramOptions.h"
#include "core/Frm_Vistrel.h"
#include "core/Station.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

struct Options {
    QString screenshot;
    int waitMs = 0;
    bool timing = false;
    std::vector<vistrel::qt::ScreenAction> actions;
    QStringList stationArguments;
    bool valid = true;
};

Options parseOptions(const QStringList& arguments)
{
    Options options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& arg = arguments[i];
        if (arg == QLatin1String("--timing")) {
            options.timing = true;
            continue;
        }
        if (arg == QLatin1String("--wait")) {
            bool ok = false;
            options.waitMs = i + 1 < arguments.size() ? arguments[++i].toInt(&ok) : 0;
            if (!ok || options.waitMs < 0) {
                options.valid = false;
                break;
            }
            continue;
        }
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

// A refill of the stock lists, timed: how long it takes, and the longest
// the window went without a pass of its event loop meanwhile.
void reportRefill(vistrel::Control& reload, const vistrel::ListBox& list)
{
    QElapsedTimer refill;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        longestGap = std::max(longestGap, sinceTick.restart());
    });
    ticker.start(5);
    refill.start();
    sinceTick.start();
    reload.click();
    longestGap = std::max(longestGap, sinceTick.elapsed());
    std::fprintf(stderr,
        "timing: refill of the stock lists took %lld ms (%d rows), the window waited %lld ms at most\n",
        static_cast<long long>(refill.elapsed()), list.listCount(), static_cast<long long>(longestGap));
}

// A picture-taking run that hangs (a dialog nobody closes) ends itself.
constexpr int ScreenshotTimeoutMs = 120000;

// The serial ports and the station's numbers for them.
int listPorts()
{
    using namespace vistrel::qt;
    const QList<SystemPort> all = systemPorts();
    const int phantoms =
        static_cast<int>(std::count_if(all.begin(), all.end(), [](const SystemPort& p) { return p.phantom; }));
    const QString text = portListing(numberPorts(all, currentPortSystem()), phantoms, portOverrides());
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    // Before the application: listing ports needs no display.
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--list-ports") == 0)
            return listPorts();

    QElapsedTimer clock;
    clock.start();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vistrel"));
    QApplication::setOrganizationName(QStringLiteral("Vistrel"));
    // Closing windows is the station's decision, not Qt's.
    QApplication::setQuitOnLastWindowClosed(false);

    const Options options = parseOptions(QApplication::arguments());
    if (!options.valid) {
        std::fprintf(stderr,
            "usage: vistrel [--screenshot FILE [--wait MS] [--press FORM.CONTROL[@ROW[,COL]] | --type FORM.CONTROL=TEXT]...]"
            " [--timing]\n"
            "       vistrel --list-ports\n");
        return 2;
    }

    const vistrel::qt::Metrics metrics = vistrel::qt::Metrics::fromEnvironment();
    QApplication::setStyle(
        new vistrel::qt::ScaledStyle(QStyleFactory::create(QStringLiteral("Fusion")), metrics.fontScale()));
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
    auto& printer = static_cast<vistrel::qt::QtPrinter&>(platform.printer());
    // The station itself never speaks of its printer; the window does.
    printer.onNoPrinter = [&platform](const QString& message) {
        platform.messageBox("Slip not printed", vistrel::qt::toCoreLines(message), vistrel::MsgIcon::Exclamation);
    };
    const vistrel::qt::MenuBinding* fileMenu = windows.main().menus().bindingFor(station.vistrel().GenerateFileReports);
    vistrel::qt::PortNames portNames(*windows.windowFor(station.options()), station.options());
    vistrel::qt::SlipActions slipActions(
        station.vistrel(), printer, fileMenu ? fileMenu->dropDown() : nullptr, windows.main().window());

    std::unique_ptr<vistrel::qt::Screenshot> screenshot;
    if (!options.screenshot.isEmpty()) {
        screenshot = std::make_unique<vistrel::qt::Screenshot>(options.screenshot, options.actions, windows);
        screenshot->setWait(options.waitMs);
        platform.setDialogWatcher(screenshot.get());
        QTimer::singleShot(ScreenshotTimeoutMs + options.waitMs, [] {
            std::fprintf(stderr, "screenshot: the start-up did not finish\n");
            std::_Exit(3);
        });
    }

    // Runs that take pictures or times keep the designed size and leave the
    // person's remembered one alone.
    std::unique_ptr<vistrel::qt::WindowSizeMemory> sizeMemory;
    if (!screenshot && !options.timing)
        sizeMemory = std::make_unique<vistrel::qt::WindowSizeMemory>(windows.main().window());
    windows.main().window()->show();
    // The start-up runs inside the event loop, so the window is up and
    // shows the progress of the load.
    QTimer::singleShot(0, [&] {
        if (options.timing)
            std::fprintf(stderr, "timing: main window shown after %lld ms\n", static_cast<long long>(clock.elapsed()));
        station.start();
        if (options.timing) {
            QCoreApplication::processEvents();
            auto& vistrel = station.vistrel();
            std::fprintf(stderr, "timing: lists filled after %lld ms (stock rows %d, persons %d)\n",
                static_cast<long long>(clock.elapsed()), vistrel.Lst_LeftInventory.listCount(),
                vistrel.Lst_PersonsList.listCount());
            reportRefill(vistrel.Cmd_ClearReload, vistrel.Lst_LeftInventory);
            QCoreApplication::exit(0);
            return;
        }
        if (screenshot) {
            screenshot->finish();
            return;
        }
        // The size a person gave the window last time, once the start-up has
        // set the designed one.
        if (sizeMemory)
            sizeMemory->restore();
    });
    return QApplication::exec();
}
