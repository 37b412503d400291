#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vistrel::devsim {

// How a device talks to the station beyond sending its message.
enum class Dialogue {
    None,             // sends its message and is done
    RequestToSend,    // announces a result, sends it when the station asks
    AcknowledgeLines, // sends one line at a time, each after the station's ACK
};

// An autorefractor the simulator can play. The folder is also the name
// given on the command line and the name of its examples' folder.
struct DeviceModel {
    std::string_view folder;       // "canon-rk2"
    std::string_view name;         // "Canon RK-2"
    std::string_view stationType;  // the autorefractor as the station's options name it
    std::string_view settings;     // the line, "9600,n,8,1"
    int quietTicks;                // the station's 200 ms ticks between two looks at its buffer
    Dialogue dialogue;
};

std::span<const DeviceModel> deviceModels();
const DeviceModel* findDeviceModel(std::string_view folder);

// The station's answer the device waits for: the request for the result
// (SOH "CRM" STX "SD" ETB EOT CR) or ACK. Empty for a device that waits for
// nothing.
std::string_view awaitedReply(Dialogue dialogue);
// The answer as the log names it: "ACK", "the request".
std::string_view awaitedReplyName(Dialogue dialogue);

// A pause after each reading that lets the station see the line quiet at
// two looks in a row and hand the reading over, with some time to spare.
std::chrono::milliseconds defaultInterval(const DeviceModel& model);

// The line as the station's options write it: baud, parity letter (n, o,
// e, m, s), data bits (5 to 8) and stop bits (1, 1.5, 2), comma separated.
struct LineSettings {
    int baud = 9600;
    char parity = 'n';
    int dataBits = 8;
    int stopBitsTimesTwo = 2;  // 2, 3 or 4: one, one and a half, two

    bool operator==(const LineSettings&) const = default;
};

// Strict, unlike the station's reading: nullopt for anything malformed.
std::optional<LineSettings> parseLineSettings(std::string_view text);
std::string formatLineSettings(const LineSettings& settings);

}  // namespace vistrel::devsim
