// The Shin Nippon 8001 and the Reichert RK600, which prints the same
// report. Each eye's line starts "R S " (right) or "L S " (left); blanks
// are squeezed out of every value after it is formatted. An eye without
// its line keeps empty boxes, which the capture check refuses.
//
// The RK600 sends an "M VD" line when its measurement is incomplete: the
// whole message is then dropped as partial, even with both eyes in it.

#include "FamilyDecoders.h"
#include "MessageText.h"

#include "core/Numbers.h"

namespace vistrel::autoref {

namespace {

void clearEye(int eye, CaptureBoxes& boxes)
{
    boxes.sphere[eye].clear();
    boxes.cylinder[eye].clear();
    boxes.axis[eye].clear();
}

// The eye's line, once its boxes are cleared.
void readShinNipponEye(std::string_view message, std::string_view marker, int eye, CaptureBoxes& boxes)
{
    const Place at = Find(message, marker);
    if (at == 0)
        return;
    boxes.sphere[eye] = NoBlanks(F2OfText(Mid(message, at + 5, 6)));
    boxes.cylinder[eye] = NoBlanks(F2OfText(Mid(message, at + 15, 6)));
    // Without a cylinder the axis is not read ("###" would empty an axis of 0).
    if (Val(boxes.cylinder[eye]) == 0) {
        boxes.cylinder[eye] = "0";
        boxes.axis[eye] = "0";
        return;
    }
    boxes.axis[eye] = NoBlanks(A3OfText(Mid(message, at + 26, 3)));
}

}  // namespace

DecodeOutcome DecodeShinNippon(std::string_view message, CaptureBoxes& boxes)
{
    clearEye(Right, boxes);
    readShinNipponEye(message, "R S ", Right, boxes);
    clearEye(Left, boxes);
    readShinNipponEye(message, "L S ", Left, boxes);
    return {};
}

DecodeOutcome DecodeReichertRK600(std::string_view message, CaptureBoxes& boxes)
{
    clearEye(Right, boxes);
    // Partial data: the empty right eye fails the check, which then empties
    // every box. The left boxes are not touched here.
    if (Holds(message, "M VD"))
        return {};
    readShinNipponEye(message, "R S ", Right, boxes);
    clearEye(Left, boxes);
    readShinNipponEye(message, "L S ", Left, boxes);
    return {};
}

}  // namespace vistrel::autoref
