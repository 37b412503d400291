#pragma once

#include "DeviceModel.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vistrel::devsim {

enum class Verbosity { Quiet, Normal, Verbose };

// The simulator's command line; see usageText().
struct SimOptions {
    bool help = false;
    bool version = false;
    bool listModels = false;
    bool listCases = false;

    const DeviceModel* model = nullptr;
    std::optional<std::string> port;
    bool pty = false;
    std::optional<LineSettings> settings;  // the model's when not given

    std::optional<std::string> dataFolder;
    std::vector<std::string> cases;  // empty: every example meant to pass
    bool allCases = false;

    int repeat = 1;  // 0: until stopped
    std::optional<std::chrono::milliseconds> interval;  // the model's when not given
    bool interactive = false;
    int chunkBytes = 8;  // 0: a whole message in one write
    std::chrono::milliseconds chunkGap{10};
    std::chrono::milliseconds replyTimeout{5000};
    Verbosity verbosity = Verbosity::Normal;
};

// The longest pause the simulator makes inside one message. The station
// takes a quiet line for the end of a message, and looks every 200 ms for
// the quickest device.
inline constexpr std::chrono::milliseconds longestChunkGap{150};

// Throws std::invalid_argument with the reason for a bad command line.
SimOptions parseSimOptions(const std::vector<std::string>& args);

// The short form for errors, and the whole --help text.
std::string usageLines();
std::string usageText();

}  // namespace vistrel::devsim
