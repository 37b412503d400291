#pragma once

// The serial line and the printer of a station that has neither: the line
// never opens (or, for a station that must believe it has one, opens and
// stays silent) and the printer prints nowhere.

#include "platform/Printer.h"
#include "platform/SerialPort.h"

#include <string>

namespace vistrel::test {

class NullSerialPort : public SerialPort {
public:
    explicit NullSerialPort(bool opens = false) : opens_(opens) {}

protected:
    bool openPort() override { return opens_; }
    void closePort() override {}
    bool isOpen() const override { return opens_; }
    std::string readAll() override { return {}; }
    void write(const std::string&) override {}

private:
    bool opens_;
};

class NullPrinter : public Printer {
public:
    void setFontName(const std::string&) override {}
    void setFontSize(double) override {}
    void setFontBold(bool) override {}
    void setFontUnderline(bool) override {}
    void print(const std::string&, bool) override {}
    void newPage() override {}
    void endDoc() override {}
    bool choose(const std::string&) override { return false; }
};

}  // namespace vistrel::test
