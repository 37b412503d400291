#include "QtPrinter.h"

#include "KeyboardKeeper.h"

#include "TextConversion.h"

#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <memory>

namespace vistrel::qt {

QtPrinter::QtPrinter() = default;

QtPrinter::~QtPrinter() = default;

void QtPrinter::setFontName(const std::string& name)
{
    fontName_ = fromCore(name);
}

void QtPrinter::setFontSize(double points)
{
    if (points > 0)
        fontSize_ = points;
}

void QtPrinter::setFontBold(bool bold)
{
    bold_ = bold;
}

void QtPrinter::setFontUnderline(bool underline)
{
    underline_ = underline;
}

void QtPrinter::print(const std::string& text, bool endLine)
{
    document_.add(SlipFont(fontName_, fontSize_, bold_, underline_), fromCore(text), endLine);
}

void QtPrinter::newPage()
{
    document_.addNewPage();
}

void QtPrinter::previewNextJob(QWidget* parent)
{
    destination_ = Destination::Preview;
    previewParent_ = parent;
}

void QtPrinter::saveNextJobAsPdf(const QString& path)
{
    destination_ = Destination::Pdf;
    pdfPath_ = path;
}

void QtPrinter::endDoc()
{
    if (!document_.isEmpty()) {
        const QString pdf = qEnvironmentVariable("VISTREL_PRINT_PDF");
        if (!pdf.isEmpty()) {
            if (writePdf(document_, pdf) && onPrinted)
                onPrinted(pdf);
        } else if (destination_ == Destination::Pdf) {
            if (writePdf(document_, pdfPath_)) {
                if (onPrinted)
                    onPrinted(pdfPath_);
            } else if (onNoPrinter) {
                onNoPrinter(QStringLiteral("The slip could not be written to %1.").arg(pdfPath_));
            }
        } else if (destination_ == Destination::Preview) {
            showPreview();
        } else {
            sendToPrinter();
        }
    }
    document_.clear();
    destination_ = Destination::Printer;
    previewParent_ = nullptr;
    pdfPath_.clear();
}

bool QtPrinter::writePdf(const SlipDocument& document, const QString& path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setDocName(QStringLiteral("Vistrel slip"));
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const bool rendered = document.render(painter, printer);
    return painter.end() && rendered;
}

void QtPrinter::sendToPrinter()
{
    const QPrinterInfo info = chosen_.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(chosen_);
    if (info.isNull()) {
        // Asking the system for a printer that isn't there can wait on it;
        // without one the slip is not printed and the volunteer is told.
        if (onNoPrinter)
            onNoPrinter(QStringLiteral(
                "No printer is set up on this computer, so the slip was not printed.\n\n"
                "Use \"Print Preview of the Slip\" or \"Save the Slip as PDF\" in the File menu, "
                "or set up a printer and choose it in the options."));
        return;
    }
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Vistrel slip"));
    QPainter painter;
    if (!painter.begin(&printer)) {
        if (onNoPrinter)
            onNoPrinter(QStringLiteral("The printer %1 could not be started; the slip was not printed.")
                            .arg(info.printerName()));
        return;
    }
    document_.render(painter, printer);
    painter.end();
    if (onPrinted)
        onPrinted(info.printerName());
}

void QtPrinter::showPreview()
{
    const QPrinterInfo info = chosen_.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(chosen_);
    auto printer = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                                 : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setDocName(QStringLiteral("Vistrel slip"));
    QPrintPreviewDialog preview(printer.get(), previewParent_);
    preview.setWindowTitle(QStringLiteral("Slip preview"));
    const SlipDocument document = document_;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&document](QPrinter* target) {
        QPainter painter;
        if (painter.begin(target)) {
            document.render(painter, *target);
            painter.end();
        }
    });
    {
        const KeyboardKeeper keeper;
        preview.exec();
    }
    if (onPrinted)
        onPrinted(QStringLiteral("preview"));
}

bool QtPrinter::choose(const std::string& name)
{
    const QString printer = fromCore(name);
    if (QPrinterInfo::printerInfo(printer).isNull())
        return false;
    chosen_ = printer;
    return true;
}

}  // namespace vistrel::qt
