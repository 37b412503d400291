#include "Player.h"

#include "ByteText.h"

#include <algorithm>
#include <cstdio>
#include <istream>
#include <ostream>
#include <thread>

namespace vistrel::devsim {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds pollStep{100};
// Time for the station to set up its end of a pseudo-terminal it has just
// opened, before the first byte.
constexpr milliseconds stationSettle{300};
// In interactive mode: how long to listen after a reading for late answers.
constexpr milliseconds interactiveListen{1000};

milliseconds since(Clock::time_point t)
{
    return std::chrono::duration_cast<milliseconds>(Clock::now() - t);
}

std::vector<std::string> splitBars(const std::string& text)
{
    std::vector<std::string> parts;
    size_t from = 0;
    while (true) {
        const size_t bar = text.find('|', from);
        parts.push_back(text.substr(from, bar == std::string::npos ? std::string::npos : bar - from));
        if (bar == std::string::npos)
            return parts;
        from = bar + 1;
    }
}

// "S|C|A" as the operator reads it: "-1.25 -0.50 x 90".
std::string eyeText(const std::string& value)
{
    const std::vector<std::string> parts = splitBars(value);
    if (parts.size() != 3)
        return value;
    return parts[0] + ' ' + parts[1] + " x " + parts[2];
}

}  // namespace

std::string secondsText(milliseconds span)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", static_cast<double>(span.count()) / 1000.0);
    std::string s = text;
    while (s.back() == '0')
        s.pop_back();
    if (s.back() == '.')
        s.pop_back();
    return s + " s";
}

Player::Player(Line& line, const DeviceModel& model, const PlaySettings& settings, std::ostream& out,
    std::ostream& err, std::istream& in)
    : line_(line), model_(model), settings_(settings), out_(out), err_(err), in_(in), start_(Clock::now())
{
}

PlaySummary Player::play(const std::vector<const DeviceCase*>& cases)
{
    PlaySummary summary;
    const size_t total = settings_.repeat == 0 ? 0 : cases.size() * static_cast<size_t>(settings_.repeat);
    size_t number = 0;
    for (int round = 0; settings_.repeat == 0 || round < settings_.repeat; ++round) {
        for (const DeviceCase* c : cases) {
            ++number;
            const std::string numberText = std::to_string(number) + (total ? " of " + std::to_string(total) : "");
            // The station first, so that Enter sends at once; and again,
            // as it may have gone while the prompt waited.
            const bool stationThere = waitForStation()
                && (!settings_.interactive || (prompt(*c, numberText) && waitForStation()));
            if (!stationThere) {
                summary.lineFailed = line_.state() == Line::State::Failed;
                summary.lineError = line_.error();
                return summary;
            }
            std::string stray;
            listen(milliseconds(0), stray);

            announce(*c, numberText);
            std::string received;
            const Outcome outcome = playReading(*c, received);
            ++summary.readings;
            if (outcome.step == Outcome::Step::LineFailed) {
                summary.lineFailed = true;
                summary.lineError = line_.error();
                return summary;
            }
            // Keep the line up while the station takes the reading, and
            // count what it still says as its answer to this one.
            listen(settings_.interactive ? std::min(settings_.interval, interactiveListen) : settings_.interval,
                received);
            judge(*c, outcome, received, summary);
        }
    }
    return summary;
}

Player::Outcome Player::playReading(const DeviceCase& c, std::string& received)
{
    const size_t count = c.transmissions.size();
    for (size_t k = 0; k < count; ++k) {
        // The Marco Nidek sends each part after the first when asked for it.
        if (k > 0 && model_.dialogue == Dialogue::RequestToSend) {
            milliseconds took{};
            const Outcome::Step step = awaitReply(received, took);
            if (step != Outcome::Step::Done)
                return {step, transmissionName(k - 1, count)};
            say("  " + transmissionName(k - 1, count) + " sent, " + std::string(awaitedReplyName(model_.dialogue))
                + " after " + secondsText(took));
        }
        if (!send(c.transmissions[k]))
            return {Outcome::Step::LineFailed, transmissionName(k, count)};
        // The Canon sends each line but the last and waits for its ACK.
        if (model_.dialogue == Dialogue::AcknowledgeLines && k + 1 < count) {
            milliseconds took{};
            const Outcome::Step step = awaitReply(received, took);
            if (step != Outcome::Step::Done)
                return {step, transmissionName(k, count)};
            say("  " + transmissionName(k, count) + " sent, ACK after " + secondsText(took));
        }
    }
    if (model_.dialogue != Dialogue::None)
        say("  " + transmissionName(count - 1, count) + " sent");
    return {};
}

Player::Outcome::Step Player::awaitReply(std::string& received, milliseconds& took)
{
    const std::string_view reply = awaitedReply(model_.dialogue);
    const Clock::time_point asked = Clock::now();
    std::string pending;  // what came since the last transmission
    while (pending.find(reply) == std::string::npos) {
        const milliseconds left = settings_.replyTimeout - since(asked);
        if (left <= milliseconds(0))
            return Outcome::Step::NoReply;
        switch (line_.state()) {
        case Line::State::NoStation: return Outcome::Step::StationGone;
        case Line::State::Failed: return Outcome::Step::LineFailed;
        case Line::State::Ready: break;
        }
        const std::string bytes = line_.read(std::min(left, pollStep));
        if (!bytes.empty()) {
            trace("<-", bytes);
            pending += bytes;
            received += bytes;
        }
    }
    took = since(asked);
    return Outcome::Step::Done;
}

bool Player::send(std::string_view bytes)
{
    trace("->", bytes);
    const size_t chunk = settings_.chunkBytes > 0 ? static_cast<size_t>(settings_.chunkBytes) : bytes.size();
    for (size_t at = 0; at < bytes.size(); at += chunk) {
        if (at > 0 && settings_.chunkGap.count() > 0)
            std::this_thread::sleep_for(settings_.chunkGap);
        if (!line_.write(bytes.substr(at, chunk)))
            return false;
    }
    return true;
}

void Player::listen(milliseconds span, std::string& received)
{
    const Clock::time_point from = Clock::now();
    do {
        const milliseconds left = std::max(span - since(from), milliseconds(0));
        if (line_.state() == Line::State::Failed)
            return;
        const std::string bytes = line_.read(std::min(left, pollStep));
        if (!bytes.empty()) {
            trace("<-", bytes);
            received += bytes;
        }
    } while (since(from) < span);
}

bool Player::waitForStation()
{
    Line::State state = line_.state();
    if (state == Line::State::NoStation) {
        say("waiting for the station to open " + line_.name() + " ...");
        while ((state = line_.state()) == Line::State::NoStation)
            line_.read(pollStep);
        if (state == Line::State::Ready) {
            std::this_thread::sleep_for(stationSettle);
            say("the station has opened " + line_.name());
        }
    }
    return state == Line::State::Ready;
}

bool Player::prompt(const DeviceCase& c, const std::string& number)
{
    out_ << "Press Enter to send reading " << number << " (example \"" << c.name << "\"), or q and Enter to stop: ";
    out_.flush();
    std::string answer;
    if (!std::getline(in_, answer)) {
        out_ << '\n';
        out_.flush();
        return false;
    }
    answer.erase(std::remove_if(answer.begin(), answer.end(), [](char ch) { return ch == ' ' || ch == '\r'; }),
        answer.end());
    return answer != "q" && answer != "Q" && answer != "quit";
}

void Player::announce(const DeviceCase& c, const std::string& number)
{
    const size_t count = c.transmissions.size();
    std::string parts;
    if (model_.dialogue == Dialogue::AcknowledgeLines)
        parts = std::to_string(count) + (count == 1 ? " line" : " lines");
    else if (model_.dialogue == Dialogue::RequestToSend)
        parts = std::to_string(count) + (count == 1 ? " transmission" : " transmissions");
    else
        parts = std::to_string(c.transmissions.front().size()) + " bytes";
    say("reading " + number + ": example \"" + c.name + "\", " + parts);

    const ExpectedReading& e = c.expected;
    if (!e.found)
        return;
    if (c.meantToPass()) {
        std::string show;
        if (!e.right.empty())
            show += ", right " + eyeText(e.right);
        if (!e.left.empty())
            show += ", left " + eyeText(e.left);
        if (!e.reading.empty())
            show += ", reading number " + e.reading;
        if (!show.empty())
            say("  expected:" + show.substr(1));
    } else if (!e.check.empty()) {
        say("  the station should refuse it: " + e.check);
    }
}

void Player::judge(const DeviceCase& c, const Outcome& outcome, const std::string& received, PlaySummary& summary)
{
    const std::string example = "example \"" + c.name + "\"";
    const std::optional<std::string>& expected = c.expected.replies;
    switch (outcome.step) {
    case Outcome::Step::NoReply: {
        const std::string missing = "no " + std::string(awaitedReplyName(model_.dialogue)) + " from the station within "
            + secondsText(settings_.replyTimeout) + " after " + outcome.where + " of " + example + "; "
            + (model_.dialogue == Dialogue::RequestToSend ? "the device does not send the rest"
                                                          : "the device stops this reading there");
        if (expected && received == *expected) {
            say("  " + missing + ", as the example expects");
        } else {
            problem(missing);
            ++summary.problems;
        }
        return;
    }
    case Outcome::Step::StationGone:
        problem("the station closed " + line_.name() + " during " + example + ", after " + outcome.where);
        ++summary.problems;
        return;
    case Outcome::Step::Done:
    case Outcome::Step::LineFailed:
        break;
    }
    if (expected && received != *expected) {
        problem(example + ": the station answered \"" + escapeBytes(received) + "\"; the example expects \""
            + escapeBytes(*expected) + "\"");
        ++summary.problems;
    } else if (!expected && model_.dialogue == Dialogue::None && !received.empty()) {
        say("  the station sent \"" + escapeBytes(received) + "\", which this device never waits for");
    }
}

std::string Player::transmissionName(size_t index, size_t count) const
{
    const std::string ordinal = std::to_string(index + 1) + " of " + std::to_string(count);
    if (count == 1)
        return "the message";
    switch (model_.dialogue) {
    case Dialogue::AcknowledgeLines: return "line " + ordinal;
    case Dialogue::RequestToSend:
        if (index == 0)
            return "the announcement";
        return count == 2 ? "the result" : "transmission " + ordinal;
    case Dialogue::None: break;
    }
    return "transmission " + ordinal;
}

void Player::say(const std::string& text)
{
    if (settings_.verbosity == Verbosity::Quiet)
        return;
    out_ << text << '\n';
    out_.flush();
}

void Player::trace(std::string_view arrow, std::string_view bytes)
{
    if (settings_.verbosity != Verbosity::Verbose)
        return;
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "%9.3f ", static_cast<double>(since(start_).count()) / 1000.0);
    out_ << stamp << arrow << ' ' << escapeBytes(bytes) << '\n';
    out_.flush();
}

void Player::problem(const std::string& text)
{
    out_.flush();
    err_ << "vistrel-devsim: " << text << '\n';
    err_.flush();
}

}  // namespace vistrel::devsim
