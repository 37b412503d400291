#include "TextPrinter.h"

#include "Escape.h"
#include "core/Numbers.h"

namespace vistrel::script {

void TextPrinter::print(const std::string& text, bool endLine)
{
    if (!lineOpen_) {
        line_ = "{" + escapeValue(fontName_) + "|" + ShortestNumber(fontSize_) + "|" + (bold_ ? "B" : "-") + "}";
        lineOpen_ = true;
    }
    line_ += escapeValue(text);
    if (endLine)
        finish();
}

void TextPrinter::newPage()
{
    finish();
    write("{NewPage}");
}

void TextPrinter::endDoc()
{
    finish();
    write("{EndDoc}");
}

void TextPrinter::finish()
{
    if (!lineOpen_)
        return;
    lineOpen_ = false;
    write(line_);
    line_.clear();
}

void TextPrinter::write(const std::string& line)
{
    if (!sink_)
        return;
    *sink_ << line << '\n';
    sink_->flush();
}

}  // namespace vistrel::script
