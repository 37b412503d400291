// The Marco Nidek ARK-20/30. The device announces a result with "C**"; the
// station then asks for it, and the result comes back marked "DRM", with
// the eyes after "OR" and "OL" and the reading number after "NO".

#include "FamilyDecoders.h"
#include "MessageText.h"

namespace vistrel::autoref {

namespace {

// SOH "CRM" STX "SD" ETB EOT CR: the request for the announced result.
constexpr std::string_view ResultRequest = "\x01" "CRM" "\x02" "SD" "\x17" "\x04" "\r";

void readMarcoNidekEye(std::string_view message, std::string_view marker, int eye, CaptureBoxes& boxes)
{
    const Place at = Find(message, marker);
    boxes.sphere[eye] = F2OfNumber(Mid(message, at + 2, 6));
    boxes.cylinder[eye] = F2OfNumber(Mid(message, at + 8, 6));
    boxes.axis[eye] = A3OfNumber(Mid(message, at + 14, 3));  // an axis of 0 empties the box
}

}  // namespace

DecodeOutcome DecodeMarcoNidek(std::string_view message, CaptureBoxes& boxes)
{
    DecodeOutcome outcome;
    // The announcement wins over a result in the same buffer.
    if (Holds(message, "C**")) {
        outcome.next = DecodeOutcome::Next::ReplyAndClear;
        outcome.reply = ResultRequest;
        return outcome;
    }
    // Neither: the boxes go to the check as they stand.
    if (!Holds(message, "DRM"))
        return outcome;
    readMarcoNidekEye(message, "OR", Right, boxes);
    boxes.reading = Raw(Mid(message, Find(message, "NO") + 2, 4));
    outcome.readingWritten = true;
    readMarcoNidekEye(message, "OL", Left, boxes);
    return outcome;
}

}  // namespace vistrel::autoref
