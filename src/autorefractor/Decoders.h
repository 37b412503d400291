#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vistrel {

// The value boxes of the capture screen as a decoder sees them: sphere,
// cylinder and axis of each eye (index 0 left, 1 right) and the device's
// reading number. A decoder writes what the message gives and leaves the
// rest as it stands; the capture screen then checks what the boxes hold.
struct CaptureBoxes {
    std::array<std::string, 2> sphere;
    std::array<std::string, 2> cylinder;
    std::array<std::string, 2> axis;
    std::string reading;
};

// What the capture screen does after a decoder has run.
struct DecodeOutcome {
    enum class Next {
        Check,          // check the boxes and hand the reading over
        ReplyAndClear,  // the reply goes to the line, the buffer is cleared, nothing else
        UnknownDevice,  // no decoder for this device type
    };
    Next next = Next::Check;
    std::string reply;          // for ReplyAndClear: the bytes to write to the line
    bool readingWritten = false;  // the reading number box was written
};

// Runs the decoder of a device type ("NIKON RETINOMAX3", "CANON RK-2" ...,
// compared exactly) over a complete message. "NONE" decodes nothing and
// goes to the check with the boxes as they stand.
DecodeOutcome DecodeMessage(const std::string& deviceType, std::string_view message, CaptureBoxes& boxes);

// Ticks of 200 ms between two looks at the receive buffer for a device
// type; a type without a row of its own gets 0, a look at every tick.
int QuietLimitTicks(const std::string& deviceType);

}  // namespace vistrel
