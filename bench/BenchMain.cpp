// Runs the benchmarks and prints each beside its floor: the least work the
// same job needs (an eye count over the tables, the bare reading of the
// same bytes), so that a figure says how much the station adds.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace vistrel::bench {

namespace {

// Benchmarks whose name begins with the first text are measured against
// the second.
constexpr std::pair<std::string_view, std::string_view> kFloors[] = {
    {"BM_Search", "BM_EyeCountFloor"},
    {"BM_StartStation", "BM_StartFloor"},
    {"BM_ReplayJournal", "BM_ReplayFloor"},
    {"BM_ListPersons", "BM_ListPersonsFloor"},
};

std::string_view floorOf(std::string_view name)
{
    for (const auto& [prefix, floor] : kFloors)
        if (name.substr(0, prefix.size()) == prefix && name != floor)
            return floor;
    return {};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

// Prints the runs as usual, then each benchmark as a multiple of its floor,
// by the median CPU time of the repetitions.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    // Colours only on a terminal, so that figures piped to a file stay plain.
    RatioReporter() : ConsoleReporter(::isatty(STDOUT_FILENO) ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0)
                times_[run.run_name.function_name].push_back(
                    run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit));
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        for (const auto& [name, times] : times_) {
            const std::string_view floorName = floorOf(name);
            const auto floor = times_.find(std::string(floorName));
            if (floorName.empty() || floor == times_.end())
                continue;
            const double time = median(times);
            const double floorTime = median(floor->second);
            if (floorTime > 0)
                std::printf("%-24s %10.3f ms = %7.1f x %-20s (%.3f ms)\n", name.c_str(), time * 1e3,
                    time / floorTime, floor->first.c_str(), floorTime * 1e3);
        }
    }

private:
    std::map<std::string, std::vector<double>> times_;  // seconds of CPU per iteration
};

}  // namespace

}  // namespace vistrel::bench

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    vistrel::bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
