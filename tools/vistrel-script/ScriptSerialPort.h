#pragma once

#include "Output.h"
#include "platform/SerialPort.h"

#include <string>

namespace vistrel::script {

// The autorefractor's line as the script plays it: opening always works,
// `serial VALUE` is one receive event, and what the station sends is shown
// as a SerialOut line.
class ScriptSerialPort : public SerialPort {
public:
    explicit ScriptSerialPort(Output& out) : out_(&out) {}

    // Adds text to the receive buffer and delivers one receive event.
    void receive(const std::string& text);

protected:
    bool openPort() override;
    void closePort() override { open_ = false; }
    bool isOpen() const override { return open_; }
    std::string readAll() override;
    void write(const std::string& text) override;

private:
    Output* out_;
    bool open_ = false;
    std::string buffer_;
};

}  // namespace vistrel::script
