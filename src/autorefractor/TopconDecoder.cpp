// The Topcon KR-3000-7000. Each eye's line begins with its letter: the
// marker is the first capital R in the whole message for the right eye and
// the first capital L for the left, whatever word it stands in, so a header
// with such a letter ahead of the data is read from there. An eye the
// message doesn't hold is taken as plano (the only decoder that does so).

#include "FamilyDecoders.h"
#include "MessageText.h"

namespace vistrel::autoref {

namespace {

void readTopconEye(std::string_view message, std::string_view marker, int eye, CaptureBoxes& boxes)
{
    const Place at = Find(message, marker);
    if (at == 0) {
        boxes.sphere[eye] = "0.00";
        boxes.cylinder[eye] = "0.00";
        boxes.axis[eye] = "0";
        return;
    }
    boxes.sphere[eye] = F2OfNumber(Mid(message, at + 2, 6));
    boxes.cylinder[eye] = F2OfNumber(Mid(message, at + 9, 5));
    boxes.axis[eye] = A0OfNumber(Mid(message, at + 15, 3));
}

}  // namespace

DecodeOutcome DecodeTopcon(std::string_view message, CaptureBoxes& boxes)
{
    readTopconEye(message, "R", Right, boxes);
    readTopconEye(message, "L", Left, boxes);
    return {};
}

}  // namespace vistrel::autoref
