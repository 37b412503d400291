// The report of the people whose glasses weren't found: one line per saved
// measurement, the eyes in the order the screen shows them.

#include "JustifyField.h"
#include "ReportFrame.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "platform/Platform.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vistrel {

namespace {

// Sphere, cylinder, axis, and under "Add" the distance between the
// equivalent and the net reading power: a person with no reading power
// shows the size of the equivalent there.
std::string eyeBlock(double sphere, double cylinder, double axis, double add, double equivalent)
{
    return JustifyField(sphere, "##.00", 6, "RIGHT") + "  " + JustifyField(cylinder, "##.00", 6, "RIGHT") + "   "
        + JustifyField(axis, "##0", 3, "RIGHT") + " " + JustifyField(std::abs(equivalent - add), "##.00", 6, "RIGHT")
        + "    ";
}

}  // namespace

void Frm_Vistrel::DisplayNoMatchMeasurements_Click()
{
    ReportFrame report(*this);
    report.printLine(" ");
    report.printLine("     Prescriptions of patients whose glasses were not found in inventory.");
    report.printLine("                       As of: " + ReportFrame::AsOf(platform().now()));
    if (FlipLeftFirst)
        report.printLine("          <------- Left Eye ------->     <------- Right Eye ------>");
    else
        report.printLine("          <------- Right Eye ------>     <-------- Left Eye ------>");
    report.printLine("     #    Sphere Cylinder Axis   Add     Sphere Cylinder Axis   Add");

    // The count may run past the table (rows 2001 on were counted but not
    // kept); the lines stop at the table's end.
    const int rows = std::min<int>(MeasurementsSaved, MeasurementRows);
    for (int n = 1; n <= rows; ++n) {
        const auto r = static_cast<size_t>(n - 1);
        const std::string left = eyeBlock(Meas_LeftSphere[r], Meas_LeftCylinder[r], Meas_LeftAxis[r],
            Meas_LeftAdd[r], Meas_LeftSphereEqu[r]);
        const std::string right = eyeBlock(Meas_RightSphere[r], Meas_RightCylinder[r], Meas_RightAxis[r],
            Meas_RightAdd[r], Meas_RightSphereEqu[r]);
        report.printLine("     " + JustifyField(n, "##0", 4, "LEFT") + (FlipLeftFirst ? left + right : right + left)
            + "  ");
    }

    report.printLine(" ");
    report.printLine(" ");
    report.printLine("Number of No Matches = " + Format(MeasurementsSaved, "###0"));
    report.show();
}

}  // namespace vistrel
