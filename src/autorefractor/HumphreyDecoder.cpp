// The Humphrey 597. Its report has the right eye's block ahead of the word
// "LEFT" and the left eye's behind it, each with the labels "SPH:", "CYL:"
// and a star that introduces the axis. A sphere printed "SPH: 0.0..." means
// a plano eye without cylinder.

#include "FamilyDecoders.h"
#include "MessageText.h"

#include <algorithm>

namespace vistrel::autoref {

namespace {

void setPlano(int eye, CaptureBoxes& boxes)
{
    boxes.sphere[eye] = "0.00";
    boxes.cylinder[eye] = "-0.00";
    boxes.axis[eye] = "0";
}

// The eye's block, every label searched from place from on. The sphere
// loses its plus signs, the cylinder keeps them: the device prints a plus
// cylinder only when it means it.
void readHumphreyEye(std::string_view message, Place from, int eye, CaptureBoxes& boxes)
{
    std::string sphere = NoBlanks(Mid(message, Find(message, "SPH:", from) + 5, 6));
    sphere.erase(std::remove(sphere.begin(), sphere.end(), '+'), sphere.end());
    boxes.sphere[eye] = sphere;
    boxes.cylinder[eye] = NoBlanks(Mid(message, Find(message, "CYL:", from) + 5, 6));
    boxes.axis[eye] = AxisZeroRule(CutAtCr(NoBlanks(Mid(message, Find(message, "*", from) + 2, 3))));
}

}  // namespace

DecodeOutcome DecodeHumphrey(std::string_view message, CaptureBoxes& boxes)
{
    const Place leftPos = Find(message, "LEFT");

    const Place zeroAt = Find(message, "SPH: 0.0");
    if (zeroAt > 0 && zeroAt < leftPos)
        setPlano(Right, boxes);
    else
        readHumphreyEye(message, 1, Right, boxes);

    // A report without "LEFT" has no left block to read: searching it from
    // the start would take the right eye's values (or the absolute columns)
    // for the left. The left boxes are emptied instead, so the capture check
    // refuses the reading and nothing is handed over.
    if (leftPos == 0) {
        boxes.sphere[Left].clear();
        boxes.cylinder[Left].clear();
        boxes.axis[Left].clear();
        return {};
    }
    if (Find(message, "SPH: 0.0", leftPos) > 0)
        setPlano(Left, boxes);
    else
        readHumphreyEye(message, leftPos, Left, boxes);
    return {};
}

}  // namespace vistrel::autoref
