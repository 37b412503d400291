#pragma once

#include "DeviceModel.h"
#include "Line.h"

#include <QSerialPort>

#include <memory>

namespace vistrel::devsim {

// A serial port (/dev/ttyUSB0, COM3) through QSerialPort, used blocking.
class SerialLine : public Line {
public:
    // Nullptr with the reason in `error` when the port can't be opened;
    // settings the port would not take are named in `warning`.
    static std::unique_ptr<SerialLine> open(const std::string& portName, const LineSettings& settings,
        std::string& error, std::string& warning);

    std::string name() const override;
    State state() override;
    bool write(std::string_view bytes) override;
    std::string read(std::chrono::milliseconds wait) override;
    std::string error() const override;

private:
    SerialLine() = default;
    QSerialPort port_;
    std::string name_;  // as given: /dev/ttyUSB0, COM3
    std::string error_;
};

}  // namespace vistrel::devsim
