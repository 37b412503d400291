// The search over a full stock of 32000 pairs, next to a loop that only
// runs the eye count over the same tables: the floor any search stands on.

#include "BenchStation.h"

#include "core/Numbers.h"
#include "matching/EyeCount.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace vistrel::bench {

namespace {

BenchStation& station()
{
    static BenchFolders folders(32000);
    static BenchStation s(folders);
    return s;
}

void typeMeasurement(Frm_Vistrel& v)
{
    v.Txt_Age.setText("45");
    v.Txt_Sphere_Left.setText("-1.75");
    v.Txt_Cylinder_Left.setText("-0.50");
    v.Txt_Axis_Left.setText("90");
    v.Txt_Sphere_Right.setText("-2.00");
    v.Txt_Cylinder_Right.setText("-0.75");
    v.Txt_Axis_Right.setText("85");
}

void BM_EyeCountFloor(benchmark::State& state)
{
    Frm_Vistrel& v = station().main();
    typeMeasurement(v);
    v.Cmd_Default_Click();
    const SearchRegime regime = makeRegime(v.LeftCylinderRead.number(), v.RightCylinderRead.number(), false,
        false, Val(v.Max_CylinderValue));
    EyeTarget left;
    left.sphere = v.LeftSphereRead.number();
    left.cylinder = v.LeftCylinderRead.number();
    left.axis = v.LeftAxisRead;
    left.equivalent = v.LeftSphereEqu;
    left.sphereTolerance = std::fabs(Val(v.Max_Sphere_OverageValue));
    left.cylinderTolerance = std::fabs(Val(v.Max_Cylinder_OverageValue));
    left.axisTolerance = std::fabs(Val(v.Axis_DeviationValue));
    EyeTarget right = left;
    right.leftEye = false;
    right.sphere = v.RightSphereRead.number();
    right.cylinder = v.RightCylinderRead.number();
    right.axis = v.RightAxisRead;
    right.equivalent = v.RightSphereEqu;
    const int count = static_cast<int>(v.InventoryCount.number());
    for (auto _ : state) {
        int passed = 0;
        for (int i = 1; i <= count; ++i) {
            const auto r = static_cast<size_t>(i - 1);
            const EyeCount l = countEye(
                left, regime, v.Inv_LeftSphere[r], v.Inv_LeftCylinder[r], v.Inv_LeftAxis[r], v.Inv_LeftAdd[r]);
            const EyeCount rr = countEye(
                right, regime, v.Inv_RightSphere[r], v.Inv_RightCylinder[r], v.Inv_RightAxis[r], v.Inv_RightAdd[r]);
            passed += (l.points == regime.needed && rr.points == regime.needed) ? 1 : 0;
        }
        benchmark::DoNotOptimize(passed);
    }
}
BENCHMARK(BM_EyeCountFloor)->Unit(benchmark::kMicrosecond);

void BM_SearchDefaultPreset(benchmark::State& state)
{
    Frm_Vistrel& v = station().main();
    typeMeasurement(v);
    v.Cmd_Default_Click();
    for (auto _ : state)
        v.Search_Click();
    state.counters["listed"] = v.FoundListCount;
    state.counters["found"] = v.FoundCount;
}
BENCHMARK(BM_SearchDefaultPreset)->Unit(benchmark::kMicrosecond);

void BM_SearchMaximumPreset(benchmark::State& state)
{
    Frm_Vistrel& v = station().main();
    typeMeasurement(v);
    v.Cmd_MAX_Click();
    for (auto _ : state)
        v.Search_Click();
    state.counters["listed"] = v.FoundListCount;
    state.counters["found"] = v.FoundCount;
    v.Cmd_Default_Click();
}
BENCHMARK(BM_SearchMaximumPreset)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vistrel::bench
