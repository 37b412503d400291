#pragma once

#include "CaseLibrary.h"
#include "DeviceModel.h"
#include "Line.h"
#include "SimOptions.h"

#include <chrono>
#include <iosfwd>
#include <string>
#include <vector>

namespace vistrel::devsim {

struct PlaySettings {
    int chunkBytes = 8;  // 0: a whole transmission in one write
    std::chrono::milliseconds chunkGap{10};
    std::chrono::milliseconds interval{6000};
    std::chrono::milliseconds replyTimeout{5000};
    int repeat = 1;  // 0: until stopped
    bool interactive = false;
    Verbosity verbosity = Verbosity::Normal;
};

struct PlaySummary {
    int readings = 0;
    int problems = 0;  // replies missed, answers other than the examples expect
    bool lineFailed = false;
    std::string lineError;
};

// Plays examples into a line as the device sends them: in chunks, waiting
// for the station's answer where the device does, with a pause after each
// reading. Progress goes to `out`, problems to `err`; in interactive mode
// a line from `in` releases each reading.
class Player {
public:
    Player(Line& line, const DeviceModel& model, const PlaySettings& settings, std::ostream& out, std::ostream& err,
        std::istream& in);

    PlaySummary play(const std::vector<const DeviceCase*>& cases);

private:
    struct Outcome {
        enum class Step { Done, NoReply, StationGone, LineFailed } step = Step::Done;
        std::string where;  // the transmission after which the reply was awaited
    };

    Outcome playReading(const DeviceCase& c, std::string& received);
    Outcome::Step awaitReply(std::string& received, std::chrono::milliseconds& took);
    bool send(std::string_view bytes);
    void listen(std::chrono::milliseconds span, std::string& received);
    bool waitForStation();
    bool prompt(const DeviceCase& c, const std::string& number);
    void announce(const DeviceCase& c, const std::string& number);
    void judge(const DeviceCase& c, const Outcome& outcome, const std::string& received, PlaySummary& summary);
    std::string transmissionName(size_t index, size_t count) const;

    void say(const std::string& text);
    void trace(std::string_view arrow, std::string_view bytes);
    void problem(const std::string& text);

    Line& line_;
    const DeviceModel& model_;
    PlaySettings settings_;
    std::ostream& out_;
    std::ostream& err_;
    std::istream& in_;
    std::chrono::steady_clock::time_point start_;
};

// "5 s", "0.5 s", "0.52 s".
std::string secondsText(std::chrono::milliseconds span);

}  // namespace vistrel::devsim
