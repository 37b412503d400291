// The inventory file loaded under fixed good options: pairs, reading, lens
// and frame records in any order and any shape. The stock lists are filled
// from the tables the load left, and one search runs over them.

#include "FuzzStation.h"

using namespace vistrel::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("inventory");
    fixture.started();
    fixture.writeInventory(bytesOf(data, size));
    if (!fixture.loadInventory())
        return 0;  // the load ends the station only on a disk that is not ready
    vistrel::Frm_Vistrel& v = fixture.station->vistrel();
    v.ListInventory();
    checkTables(v);

    // A measurement close to most of the pairs the seeds hold.
    v.Txt_Sphere_Left.setText("-1.25");
    v.Txt_Cylinder_Left.setText("-0.50");
    v.Txt_Axis_Left.setText("90");
    v.Txt_Sphere_Right.setText("-1.00");
    v.Txt_Cylinder_Right.setText("-0.25");
    v.Txt_Axis_Right.setText("85");
    v.Search_Click();
    const double count = v.InventoryCount.number();
    for (int i = 0; i < v.Lst_LeftSelection.listCount(); ++i) {
        const auto row = v.Lst_LeftSelection.row(i).itemData;
        if (row < 0 || row > count) {
            std::fprintf(stderr, "a found pair names row %ld of %g\n", static_cast<long>(row), count);
            std::abort();
        }
    }
    return 0;
}
