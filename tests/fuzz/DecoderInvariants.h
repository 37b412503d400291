#pragma once

// What no message may make a decoder do, whatever it holds: shared by the
// decoder test's random messages and the fuzz targets. A decoder is a pure
// function of the received text; it may only give its family's outcome and
// reply, and write boxes made of the message. A read outside the message
// shows up here as a foreign character, or under the sanitizers.

#include "autorefractor/Decoders.h"

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel::invariants {

constexpr std::string_view ResultRequest = "\x01" "CRM\x02SD\x17\x04\r";  // the Marco Nidek's
constexpr std::string_view Ack = "\x06";                                 // the Canon's

// The characters a box made of the message may hold: those of the message
// and the digits, point and sign of a formatted number.
inline std::bitset<256> charactersOf(std::string_view message)
{
    std::bitset<256> present;
    for (char ch : message)
        present.set(static_cast<unsigned char>(ch));
    for (char ch : std::string_view("0123456789.-"))
        present.set(static_cast<unsigned char>(ch));
    return present;
}

// A box that changed holds only such characters, and no more of them than
// the largest Double has digits (a six-character column can hold "1E+308").
inline bool madeOfMessage(const std::bitset<256>& allowed, const std::string& before, const std::string& after)
{
    if (after == before)
        return true;
    if (after.size() > 320)
        return false;
    for (char ch : after)
        if (!allowed.test(static_cast<unsigned char>(ch)))
            return false;
    return true;
}

// Runs the decoder of a known device type over message and tells whether
// it kept within its limits.
inline bool decodesWithinLimits(const std::string& type, std::string_view message, CaptureBoxes& boxes)
{
    const CaptureBoxes before = boxes;
    const DecodeOutcome outcome = DecodeMessage(type, message, boxes);
    bool ok = outcome.next == DecodeOutcome::Next::Check && outcome.reply.empty();
    if (outcome.next == DecodeOutcome::Next::ReplyAndClear) {
        // The request goes out before any box is written; an acknowledged
        // Canon line may fill an eye.
        if (type == "MARCONIDEK ARK-20/30")
            ok = outcome.reply == ResultRequest && boxes.sphere == before.sphere && boxes.cylinder == before.cylinder
                && boxes.axis == before.axis && boxes.reading == before.reading;
        else
            ok = type == "CANON RK-2" && outcome.reply == Ack;
    }
    const std::bitset<256> allowed = charactersOf(message);
    for (int eye : {0, 1})
        ok = ok && madeOfMessage(allowed, before.sphere[eye], boxes.sphere[eye])
            && madeOfMessage(allowed, before.cylinder[eye], boxes.cylinder[eye])
            && madeOfMessage(allowed, before.axis[eye], boxes.axis[eye]);
    return ok && madeOfMessage(allowed, before.reading, boxes.reading);
}

// What a dialogue device sends, cut where its pauses fall: after every LF,
// and after a CR that no LF follows. A recorded dialogue's transmissions,
// put one after the other, come apart again this way.
inline std::vector<std::string_view> transmissions(std::string_view input)
{
    std::vector<std::string_view> pieces;
    size_t start = 0;
    for (size_t i = 0; i < input.size(); ++i) {
        if (input[i] == '\n' || (input[i] == '\r' && (i + 1 == input.size() || input[i + 1] != '\n'))) {
            pieces.push_back(input.substr(start, i + 1 - start));
            start = i + 1;
        }
    }
    if (start < input.size())
        pieces.push_back(input.substr(start));
    return pieces;
}

}  // namespace vistrel::invariants
