#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel::devsim {

// What an example's <case>.expected says the station makes of it.
struct ExpectedReading {
    bool found = false;   // the file was there
    std::string left;     // "S|C|A"
    std::string right;
    std::string reading;  // the device's reading number, when it sends one
    std::string check;    // "OK", "ENTRY ERROR", "RK600 PARTIAL"
    std::optional<std::string> replies;  // the station's answers, as bytes
};

// Reads "key=value" lines; unknown keys are passed over. Throws
// std::invalid_argument when the replies hold a bad escape.
ExpectedReading parseExpected(std::string_view text);

// One example: the transmissions of a reading, in the order the device
// sends them, and what the station should make of it.
struct DeviceCase {
    std::string name;
    std::vector<std::string> transmissions;
    ExpectedReading expected;
    std::string problem;  // why it can't be played; empty when it can

    bool meantToPass() const { return expected.check == "OK"; }
};

// The examples of one model's folder, by name. A device that sends its
// reading at once has <case>.msg; a device that holds a dialogue has
// <case>.1.msg, <case>.2.msg ... one file a transmission (a lone <case>.msg
// is then one transmission). Examples that can't be played come back with
// their problem set.
std::vector<DeviceCase> loadCases(const std::filesystem::path& folder, bool numberedTransmissions);

// Where the examples are looked for: the folder given, else next to the
// program (<dir>/devices, then <dir>/../share/vistrel/devices), else the
// source tree's copy. Each candidate holds one folder per model.
std::vector<std::filesystem::path> dataFolderCandidates(const std::optional<std::filesystem::path>& given,
    const std::filesystem::path& programFolder, const std::filesystem::path& sourceFolder);

// The first candidate with a folder for the model.
std::optional<std::filesystem::path> findModelFolder(
    const std::vector<std::filesystem::path>& candidates, std::string_view model);

}  // namespace vistrel::devsim
