#include "PairValues.h"

#include "Wording.h"
#include "core/Numbers.h"

#include <cmath>

namespace vistrel::check {

namespace {

bool onQuarterStep(double value)
{
    const double quarters = value * 4;
    return std::fabs(quarters - std::round(quarters)) < 1e-6;
}

bool whole(double value)
{
    return std::fabs(value - std::round(value)) < 1e-9;
}

class PairChecker {
public:
    explicit PairChecker(const std::vector<std::string_view>& fields) : fields_(fields) { }

    std::vector<ValueProblem> run()
    {
        for (size_t eye = 0; eye < 2; ++eye) {
            const size_t base = 2 + 4 * eye;  // sphere, cylinder, axis, add
            sphere(base);
            cylinder(base + 1);
            axis(base + 2);
            add(base + 3);
        }
        for (size_t n = 10; n <= 14; ++n)
            number(n);
        gender();
        return std::move(problems_);
    }

private:
    bool has(size_t n) const { return n <= fields_.size() && !fields_[n - 1].empty(); }
    std::string_view text(size_t n) const { return fields_[n - 1]; }
    std::string name(size_t n) const { return FieldName(InventoryRecordKind::Pair, n); }
    void report(size_t n, const std::string& what)
    {
        problems_.push_back({n, name(n) + " " + Quoted(text(n)) + " " + what});
    }

    // A text that isn't a plain number reads as its leading number.
    bool number(size_t n)
    {
        if (!has(n))
            return false;
        if (IsNumeric(text(n)))
            return true;
        report(n, "is no number: the station reads " + ShortestNumber(Val(text(n))));
        return false;
    }

    void sphere(size_t n)
    {
        if (!number(n))
            return;
        const double v = Val(text(n));
        if (!onQuarterStep(v))
            report(n, "is off the 0.25 step");
        if (std::fabs(v) > ValueRanges::SphereLimit)
            report(n, "is beyond -20.00 to +20.00");
    }

    void cylinder(size_t n)
    {
        if (!number(n))
            return;
        const double v = Val(text(n));
        if (!onQuarterStep(v))
            report(n, "is off the 0.25 step");
        if (v > 0)
            report(n, "is positive: stock is written in minus cylinder, transpose it");
        else if (v < ValueRanges::CylinderLowest)
            report(n, "is below -10.00");
    }

    void axis(size_t n)
    {
        if (!number(n))
            return;
        const double v = Val(text(n));
        if (v < 0 || v > 180)
            report(n, "is outside 0 to 180");
        else if (!whole(v))
            report(n, "is no whole number: the station reads " + std::to_string(ToIntegerOr(v, 0)));
    }

    void add(size_t n)
    {
        if (!number(n))
            return;
        const double v = Val(text(n));
        if (!onQuarterStep(v))
            report(n, "is off the 0.25 step");
        if (v < 0 || v > ValueRanges::AddHighest)
            report(n, "is outside 0.00 to 4.00");
    }

    // Gender code plus ten times the rejections: 0 either, 1 F, 2 M, 3 child.
    void gender()
    {
        constexpr size_t n = 16;
        if (!has(n))
            return;
        const std::string codes = " (0 either, 1 F, 2 M, 3 child, plus 10 for each rejection)";
        const double v = Val(text(n));
        if (!IsNumeric(text(n))) {
            report(n, "is no gender code" + codes + ": the station reads " + ShortestNumber(v));
            return;
        }
        if (v >= 0 && whole(v) && std::fmod(v, 10) <= 3)
            return;
        // The code the station keeps: a value above 3 loses its tens.
        const double code = v > 3 ? v - 10 * Int(v / 10) : v;
        const int kept = ToIntegerOr(code, -1);
        report(n,
            "is no gender code" + codes
                + (kept >= 0 && kept <= 3 ? ": the station reads gender " + std::to_string(kept)
                                          : ": the pair shows as E"));
    }

    const std::vector<std::string_view>& fields_;
    std::vector<ValueProblem> problems_;
};

}  // namespace

std::vector<ValueProblem> CheckPairValues(const std::vector<std::string_view>& fields)
{
    return PairChecker(fields).run();
}

}  // namespace vistrel::check
