// The Canon RK-2. The station acknowledges every line of the report, and
// the buffer is cleared each time, so each call sees one line and its
// columns are absolute. The header ("CANON RK-2"), the vertex distance
// ("VD:") and the column heads ("SPH") are acknowledged only; an eye's line
// holds "R " or "L ". The first line with none of these releases the
// reading, unacknowledged, with the boxes as the eye lines left them.

#include "FamilyDecoders.h"
#include "MessageText.h"

namespace vistrel::autoref {

namespace {

constexpr std::string_view Ack = "\x06";

DecodeOutcome acknowledge()
{
    DecodeOutcome outcome;
    outcome.next = DecodeOutcome::Next::ReplyAndClear;
    outcome.reply = Ack;
    return outcome;
}

void readCanonEye(std::string_view line, int eye, CaptureBoxes& boxes)
{
    boxes.sphere[eye] = F2OfNumber(Mid(line, 4, 6));
    boxes.cylinder[eye] = F2OfNumber(Mid(line, 11, 5));
    boxes.axis[eye] = A3OfNumber(Mid(line, 18, 3));  // an axis of 0 empties the box
}

}  // namespace

DecodeOutcome DecodeCanon(std::string_view line, CaptureBoxes& boxes)
{
    // The first test that holds decides: a line with both "R " and "L "
    // fills the right eye only.
    if (Holds(line, "CANON RK-2") || Holds(line, "VD:") || Holds(line, "SPH"))
        return acknowledge();
    if (Holds(line, "R ")) {
        readCanonEye(line, Right, boxes);
        return acknowledge();
    }
    if (Holds(line, "L ")) {
        readCanonEye(line, Left, boxes);
        return acknowledge();
    }
    return {};
}

}  // namespace vistrel::autoref
