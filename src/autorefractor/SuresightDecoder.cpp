// The Welch Allyn Suresight. Labels "SPHr", "CYLr", "AXr" for the right eye
// and "SPHl", "CYLl", "AXl" for the left; every value stands 6 places after
// the start of its label, the three-letter axis labels included (the device
// pads them). A missing label reads from the absolute place 6.

#include "FamilyDecoders.h"
#include "MessageText.h"

namespace vistrel::autoref {

namespace {

void readSuresightEye(std::string_view message, std::string_view sphereLabel, std::string_view cylinderLabel,
                      std::string_view axisLabel, int eye, CaptureBoxes& boxes)
{
    boxes.sphere[eye] = Raw(Mid(message, Find(message, sphereLabel) + 6, 5));
    boxes.cylinder[eye] = Raw(Mid(message, Find(message, cylinderLabel) + 6, 5));
    // A two-digit axis is followed by the line's carriage return.
    boxes.axis[eye] = AxisZeroRule(CutAtCr(Mid(message, Find(message, axisLabel) + 6, 3)));
}

}  // namespace

DecodeOutcome DecodeSuresight(std::string_view message, CaptureBoxes& boxes)
{
    readSuresightEye(message, "SPHr", "CYLr", "AXr", Right, boxes);
    readSuresightEye(message, "SPHl", "CYLl", "AXl", Left, boxes);
    return {};
}

}  // namespace vistrel::autoref
