#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace vistrel::devsim {

// The device's end of the serial line.
class Line {
public:
    enum class State {
        Ready,
        NoStation,  // nobody holds the other end (a pseudo-terminal's only)
        Failed,     // the line is gone; error() says why
    };

    virtual ~Line() = default;

    // The port or pseudo-terminal, as the station is to be pointed at it.
    virtual std::string name() const = 0;
    virtual State state() = 0;
    // Hands all bytes to the line; false when it fails.
    virtual bool write(std::string_view bytes) = 0;
    // Whatever arrives within the wait, returning as soon as anything does.
    virtual std::string read(std::chrono::milliseconds wait) = 0;
    virtual std::string error() const = 0;
};

}  // namespace vistrel::devsim
