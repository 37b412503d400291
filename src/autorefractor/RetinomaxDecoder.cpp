// The Nikon Retinomax family.
//
// The Retinomax and Retinomax 2 print one fixed record read by absolute
// columns, with no marker: right sphere, cylinder and axis, the reading
// number, then the left eye. A record cut short leaves empty boxes.
//
// The Retinomax 3 marks each eye ("RR " right, "LR " left) and fills a
// column it has no value for with stars, which stand for zero.

#include "FamilyDecoders.h"
#include "MessageText.h"

#include "core/Text.h"

namespace vistrel::autoref {

DecodeOutcome DecodeRetinomax(std::string_view message, CaptureBoxes& boxes)
{
    boxes.sphere[Right] = Raw(Mid(message, 9, 6));
    boxes.cylinder[Right] = Raw(Mid(message, 17, 6));
    boxes.axis[Right] = Raw(Mid(message, 25, 3));
    boxes.reading = Raw(Mid(message, 36, 3));
    boxes.sphere[Left] = Raw(Mid(message, 45, 6));
    boxes.cylinder[Left] = Raw(Mid(message, 53, 6));
    boxes.axis[Left] = Raw(Mid(message, 61, 3));
    DecodeOutcome outcome;
    outcome.readingWritten = true;
    return outcome;
}

namespace {

std::string starsAsZero(std::string text, std::string_view stars, const char* zero)
{
    return Trim(text) == stars ? std::string(zero) : text;
}

void readRetinomax3Eye(std::string_view message, std::string_view marker, int eye, CaptureBoxes& boxes)
{
    const Place at = Find(message, marker);
    boxes.sphere[eye] = starsAsZero(Raw(Mid(message, at + 5, 6)), "*.**", "0.00");
    boxes.cylinder[eye] = starsAsZero(Raw(Mid(message, at + 14, 6)), "*.**", "0.00");
    boxes.axis[eye] = AxisZeroRule(starsAsZero(Raw(Mid(message, at + 24, 3)), "***", "0"));
}

}  // namespace

DecodeOutcome DecodeRetinomax3(std::string_view message, CaptureBoxes& boxes)
{
    readRetinomax3Eye(message, "RR ", Right, boxes);
    readRetinomax3Eye(message, "LR ", Left, boxes);
    return {};
}

}  // namespace vistrel::autoref
