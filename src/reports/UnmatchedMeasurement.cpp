// Saving the measurement of a person whose glasses weren't found: it goes to
// the journal and to the table that the no-match reports read.

#include "Frm_SavePrescription.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Text.h"

#include <array>

namespace vistrel {

bool Frm_Vistrel::MeasurementFieldOK(const std::string& text)
{
    return Val(text) == 0 || IsNumeric(text);
}

bool Frm_Vistrel::MeasurementComplete()
{
    const std::array<const TextBox*, 10> fields = {&Txt_Sphere_Left, &Txt_Cylinder_Left, &Txt_Axis_Left,
        &Txt_LeftReadingPower, &Txt_Sphere_Equ_Left, &Txt_Sphere_Right, &Txt_Cylinder_Right, &Txt_Axis_Right,
        &Txt_RightReadingPower, &Txt_Sphere_Equ_Right};
    bool complete = true;
    bool allEmpty = true;
    for (const TextBox* field : fields) {
        complete = complete && MeasurementFieldOK(field->text());
        allEmpty = allEmpty && Trim(field->text()).empty();
    }
    return complete && !allEmpty;
}

void Frm_Vistrel::Cmd_PrescriptionSave_Click()
{
    // 1, 2.
    if (SavePrescriptionASK)
        savePrescription().show(true);
    else
        SavePrescriptionYesNo = true;
    if (!SavePrescriptionYesNo)
        return;

    // 3.
    if (!InventoryLoaded) {
        Lst_LeftInventory.clear();
        Lst_RightInventory.clear();
        Get_Readings();
    } else {
        Txt_Status.setText(" Loaded: " + Str(InventoryCount.number()));
    }

    // 4 to 6. A measurement with a field that doesn't read as a number, or
    // none at all, is left without a word.
    if (!MeasurementComplete())
        return;
    JournalMeasumentData();
    if (MeasurementsSaved == INT16_MAX)
        return;
    ++MeasurementsSaved;
    Txt_UnmatchedCount.setText(Str(MeasurementsSaved));

    // 7. Past the table's end the row is counted and journalled, its values lost.
    if (MeasurementsSaved > MeasurementRows)
        return;
    const auto row = static_cast<size_t>(MeasurementsSaved - 1);
    Meas_LeftSphere[row] = Val(Txt_Sphere_Left.text());
    Meas_LeftCylinder[row] = Val(Txt_Cylinder_Left.text());
    Meas_LeftAxis[row] = Int(Val(Txt_Axis_Left.text()));
    Meas_LeftAdd[row] = Val(Txt_LeftReadingPower.text());
    Meas_LeftSphereEqu[row] = Val(Txt_Sphere_Equ_Left.text());
    Meas_RightSphere[row] = Val(Txt_Sphere_Right.text());
    Meas_RightCylinder[row] = Val(Txt_Cylinder_Right.text());
    Meas_RightAxis[row] = Int(Val(Txt_Axis_Right.text()));
    Meas_RightAdd[row] = Val(Txt_RightReadingPower.text());
    Meas_RightSphereEqu[row] = Val(Txt_Sphere_Equ_Right.text());
    Meas_Written[row] = true;
}

}  // namespace vistrel
