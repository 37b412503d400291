#pragma once

#include "platform/Printer.h"

#include <ostream>
#include <string>

namespace vistrel::script {

// The printer as lines of text: every printed line starts with the font in
// force when it began, {Name|Size|B or -}, then its text with the control
// characters escaped. A new page is {NewPage}, the end of a job {EndDoc}.
// Without a stream everything printed is dropped.
class TextPrinter : public Printer {
public:
    explicit TextPrinter(std::ostream* sink = nullptr) : sink_(sink) {}

    void setSink(std::ostream* sink) { sink_ = sink; }

    void setFontName(const std::string& name) override { fontName_ = name; }
    void setFontSize(double points) override { fontSize_ = points; }
    void setFontBold(bool bold) override { bold_ = bold; }
    void setFontUnderline(bool) override {}
    void print(const std::string& text, bool endLine = true) override;
    void newPage() override;
    void endDoc() override;
    bool choose(const std::string&) override { return true; }

    // Writes out a line left open by print(text, false).
    void finish();

private:
    void write(const std::string& line);

    std::ostream* sink_;
    std::string fontName_ = "MS Sans Serif";
    double fontSize_ = 8.25;
    bool bold_ = false;
    bool lineOpen_ = false;
    std::string line_;
};

}  // namespace vistrel::script
