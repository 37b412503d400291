#include "QtPrinter.h"

#include "TextConversion.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace vistrel::qt {

QtPrinter::QtPrinter()
{
    font_.setFamily(QStringLiteral("Arial"));
    font_.setPointSizeF(10);
}

QtPrinter::~QtPrinter()
{
    endDoc();
}

void QtPrinter::setFontName(const std::string& name)
{
    font_.setFamily(fromCore(name));
}

void QtPrinter::setFontSize(double points)
{
    if (points > 0)
        font_.setPointSizeF(points);
}

void QtPrinter::setFontBold(bool bold)
{
    font_.setBold(bold);
}

void QtPrinter::setFontUnderline(bool underline)
{
    font_.setUnderline(underline);
}

bool QtPrinter::printing() const
{
    return painter_ && painter_->isActive();
}

bool QtPrinter::begin()
{
    if (printing())
        return true;
    if (failed_)
        return false;
    const QString pdf = qEnvironmentVariable("VISTREL_PRINT_PDF");
    if (!pdf.isEmpty()) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setOutputFormat(QPrinter::PdfFormat);
        printer_->setOutputFileName(pdf);
    } else {
        QPrinterInfo info = chosen_.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(chosen_);
        printer_ = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                                 : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    }
    printer_->setDocName(QStringLiteral("Vistrel"));
    painter_ = std::make_unique<QPainter>();
    if (!painter_->begin(printer_.get())) {
        // No printer to be had: the print job is dropped, as the station
        // goes on without paper.
        painter_.reset();
        printer_.reset();
        failed_ = true;
        return false;
    }
    x_ = 0;
    y_ = 0;
    return true;
}

QFont QtPrinter::currentFont() const
{
    return QFont(font_, printer_.get());
}

void QtPrinter::print(const std::string& text, bool endLine)
{
    if (!begin())
        return;
    const QFont font = currentFont();
    painter_->setFont(font);
    const QFontMetricsF metrics(font, printer_.get());
    const double pageHeight = printer_->pageRect(QPrinter::DevicePixel).height();
    if (y_ > 0 && y_ + metrics.height() > pageHeight)
        newPage();
    const QString line = fromCore(text);
    if (!line.isEmpty()) {
        painter_->drawText(QPointF(x_, y_ + metrics.ascent()), line);
        x_ += metrics.horizontalAdvance(line);
    }
    if (endLine) {
        x_ = 0;
        y_ += metrics.lineSpacing();
    }
}

void QtPrinter::newPage()
{
    if (!begin())
        return;
    printer_->newPage();
    x_ = 0;
    y_ = 0;
}

void QtPrinter::endDoc()
{
    if (painter_ && painter_->isActive())
        painter_->end();
    painter_.reset();
    printer_.reset();
    failed_ = false;
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
