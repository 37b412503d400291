#pragma once

#include <string>

namespace vistrel {

// The printer as the slip uses it: running text in the font in force.
class Printer {
public:
    virtual ~Printer() = default;

    virtual void setFontName(const std::string& name) = 0;
    virtual void setFontSize(double points) = 0;
    virtual void setFontBold(bool bold) = 0;
    virtual void setFontUnderline(bool underline) = 0;
    // Prints text; with endLine the next text starts a new line.
    virtual void print(const std::string& text, bool endLine = true) = 0;
    virtual void newPage() = 0;
    virtual void endDoc() = 0;
    // Makes the printer of that name the one of this run; false when none.
    virtual bool choose(const std::string& name) = 0;
};

}  // namespace vistrel
