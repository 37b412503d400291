#pragma once

#include "platform/Printer.h"

#include <string>

namespace vistrel {

// The slip's pen: the font in force stays until it is changed, and each
// piece of text goes on from where the last one ended. Only what changes
// is sent to the printer.
class SlipWriter {
public:
    explicit SlipWriter(Printer& printer) : printer_(printer) {}

    SlipWriter& font(const std::string& name)
    {
        printer_.setFontName(name);
        return *this;
    }
    SlipWriter& size(double points)
    {
        printer_.setFontSize(points);
        return *this;
    }
    SlipWriter& bold(bool on)
    {
        printer_.setFontBold(on);
        return *this;
    }
    SlipWriter& underline(bool on)
    {
        printer_.setFontUnderline(on);
        return *this;
    }
    // A text and the end of its line.
    void line(const std::string& text) { printer_.print(text, true); }
    // A text on the line, which stays open for the next.
    void text(const std::string& text) { printer_.print(text, false); }
    void finish()
    {
        printer_.newPage();
        printer_.endDoc();
    }

private:
    Printer& printer_;
};

// A number shown with "0.00", trimmed: sign, a digit ahead of the point,
// two decimals.
std::string Format2(double number);
// Blanks added in front up to width characters; a longer text stays.
std::string PadLeft(std::string text, std::size_t width);
// Blanks added behind up to width characters; a longer text stays.
std::string PadRight(std::string text, std::size_t width);

}  // namespace vistrel
