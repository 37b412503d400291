#pragma once

#include "platform/Printer.h"

#include <QFont>
#include <QString>

#include <memory>

class QPainter;
class QPrinter;

namespace vistrel::qt {

// The printer as running text: each print goes on from where the last one
// ended, a finished line moves down by the font's line spacing, and a full
// page starts the next. The document starts with the first print and goes
// to the printer at endDoc. With VISTREL_PRINT_PDF set, the document is
// written to that PDF file instead.
class QtPrinter : public Printer {
public:
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
    bool printing() const;

private:
    bool begin();
    QFont currentFont() const;

    QString chosen_;
    QFont font_;
    std::unique_ptr<QPrinter> printer_;
    std::unique_ptr<QPainter> painter_;
    bool failed_ = false;  // this document could not be started
    double x_ = 0;
    double y_ = 0;
};

}  // namespace vistrel::qt
