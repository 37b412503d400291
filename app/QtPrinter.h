#pragma once

#include "SlipDocument.h"

#include "platform/Printer.h"

#include <QString>

#include <functional>

class QWidget;

namespace vistrel::qt {

// The printer as running text. What the station prints is kept as a
// document and, at endDoc, sent where this job goes: to the chosen (or the
// default) printer, into a print preview, or into a PDF file. With
// VISTREL_PRINT_PDF set, every job is written to that PDF file.
class QtPrinter : public Printer {
public:
    enum class Destination { Printer, Preview, Pdf };

    QtPrinter();
    ~QtPrinter() override;

    void setFontName(const std::string& name) override;
    void setFontSize(double points) override;
    void setFontBold(bool bold) override;
    void setFontUnderline(bool underline) override;
    void print(const std::string& text, bool endLine = true) override;
    void newPage() override;
    void endDoc() override;
    bool choose(const std::string& name) override;

    const QString& chosenPrinter() const { return chosen_; }

    // The next job (only that one) goes to a preview over parent, or into
    // the PDF file at path.
    void previewNextJob(QWidget* parent);
    void saveNextJobAsPdf(const QString& path);

    // Told when a job finds no printer to go to; the window says so.
    std::function<void(const QString& message)> onNoPrinter;
    // Told when a job has gone somewhere: the printer's name, "preview" or
    // the PDF's path.
    std::function<void(const QString& where)> onPrinted;

    // Renders a document into a PDF file; false when it can't be written.
    static bool writePdf(const SlipDocument& document, const QString& path);

private:
    void sendToPrinter();
    void showPreview();

    QString chosen_;
    QString fontName_ = QStringLiteral("MS Sans Serif");
    double fontSize_ = 8.25;
    bool bold_ = false;
    bool underline_ = false;
    SlipDocument document_;
    Destination destination_ = Destination::Printer;
    QWidget* previewParent_ = nullptr;
    QString pdfPath_;
};

}  // namespace vistrel::qt
