// The Burton Velo 20-10. Each eye's line starts "ES-R-R" (right) or
// "ES-R-L" (left); the reading number follows the first "No". An eye
// without its line keeps empty boxes, which the capture check refuses.

#include "FamilyDecoders.h"
#include "MessageText.h"

#include "core/Numbers.h"

namespace vistrel::autoref {

namespace {

void readBurtonEye(std::string_view message, std::string_view marker, int eye, CaptureBoxes& boxes)
{
    boxes.sphere[eye].clear();
    boxes.cylinder[eye].clear();
    boxes.axis[eye].clear();
    const Place at = Find(message, marker);
    if (at == 0)
        return;
    boxes.sphere[eye] = F2OfText(Mid(message, at + 7, 6));
    boxes.cylinder[eye] = F2OfText(Mid(message, at + 14, 6));
    // Without a cylinder the axis means nothing; it must not be read, as
    // "###" would turn an axis of 0 into an empty box.
    if (Val(boxes.cylinder[eye]) == 0) {
        boxes.cylinder[eye] = "0";
        boxes.axis[eye] = "0";
        return;
    }
    boxes.axis[eye] = A3OfText(Mid(message, at + 22, 3));
}

}  // namespace

DecodeOutcome DecodeBurtonVelo(std::string_view message, CaptureBoxes& boxes)
{
    readBurtonEye(message, "ES-R-R", Right, boxes);
    readBurtonEye(message, "ES-R-L", Left, boxes);
    boxes.reading = Raw(Mid(message, Find(message, "No") + 3, 5));
    DecodeOutcome outcome;
    outcome.readingWritten = true;
    return outcome;
}

}  // namespace vistrel::autoref
