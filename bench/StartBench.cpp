// A whole start of the station on 32000 pairs and a journal of 100000
// lines, the replay of that journal alone and the person list over the
// 10000 pairs it leaves out of stock, each next to its floor.

#include "BenchStation.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel::bench {

namespace {

constexpr int kPairs = 32000;
constexpr int kJournalLines = 100000;
constexpr int kDispensed = 10000;

const BenchFolders& folders()
{
    static const BenchFolders f(kPairs, kJournalLines, kDispensed);
    return f;
}

BenchStation& started()
{
    static BenchStation s(folders());
    return s;
}

std::string readBytes(const std::filesystem::path& path)
{
    std::string bytes;
    if (std::FILE* f = std::fopen(path.string().c_str(), "rb")) {
        char chunk[1 << 16];
        for (size_t n; (n = std::fread(chunk, 1, sizeof chunk, f)) > 0;)
            bytes.append(chunk, n);
        std::fclose(f);
    }
    return bytes;
}

// Cuts the bytes at commas and line ends and gives the number of fields
// plus their total length, so that the walk can't be left out.
size_t splitFields(std::string_view bytes)
{
    size_t fields = 0, length = 0, start = 0;
    for (size_t i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        if (c == ',' || c == '\r' || c == '\n') {
            ++fields;
            length += i - start;
            start = i + 1;
        }
    }
    return fields + length;
}

void countLines(benchmark::State& state)
{
    state.counters["journal lines"] = kJournalLines;
}

// Floor of a start: read the bytes of the options, the inventory and the
// journal and split them into fields; no tables, no screens, no lists.
void BM_StartFloor(benchmark::State& state)
{
    const BenchFolders& f = folders();
    for (auto _ : state) {
        size_t work = 0;
        for (const auto& file : {f.optionsFile(), f.inventoryFile(), f.journalFile()})
            work += splitFields(readBytes(file));
        benchmark::DoNotOptimize(work);
    }
}
BENCHMARK(BM_StartFloor)->Unit(benchmark::kMillisecond);

// Making the thirteen screens and Form_Load: options, the load of the
// pairs, the replay, the person list and both stock lists. Tearing the
// station down again is not timed.
void BM_StartStation(benchmark::State& state)
{
    QuietPlatform platform(folders().root);
    std::unique_ptr<Station> station;
    for (auto _ : state) {
        state.PauseTiming();
        station.reset();
        state.ResumeTiming();
        station = std::make_unique<Station>(platform);
        station->start();
    }
    const Frm_Vistrel& v = station->vistrel();
    if (v.PersonsListed != kDispensed || v.ListedCount != kPairs - kDispensed)
        state.SkipWithError("the journal didn't leave the stock it was made for");
    state.counters["listed"] = v.ListedCount;
    state.counters["persons"] = v.PersonsListed;
    countLines(state);
}
BENCHMARK(BM_StartStation)->Unit(benchmark::kMillisecond);

// Floor of a replay: read the journal's bytes and split them into fields.
void BM_ReplayFloor(benchmark::State& state)
{
    const auto file = folders().journalFile();
    for (auto _ : state)
        benchmark::DoNotOptimize(splitFields(readBytes(file)));
    countLines(state);
}
BENCHMARK(BM_ReplayFloor)->Unit(benchmark::kMillisecond);

// The local journal replayed over the loaded tables. Each replay counts
// the saved measurements anew, so the count starts from 0 each time, as
// at a start.
void BM_ReplayJournal(benchmark::State& state)
{
    Frm_Vistrel& v = started().main();
    for (auto _ : state) {
        v.MeasurementsSaved = 0;
        v.LoadJournalFile("LOCAL");
    }
    countLines(state);
    state.counters["measurements"] = v.MeasurementsSaved;
}
BENCHMARK(BM_ReplayJournal)->Unit(benchmark::kMillisecond);

// Floor of the person list: a walk of the same tables that formats the
// same rows with the C library and keeps them with their item data.
void BM_ListPersonsFloor(benchmark::State& state)
{
    const Frm_Vistrel& v = started().main();
    const int count = static_cast<int>(v.InventoryCount.number());
    std::vector<std::string> rows;
    std::vector<int> itemData;
    for (auto _ : state) {
        rows.clear();
        itemData.clear();
        for (int i = 1; i <= count; ++i) {
            const auto r = static_cast<size_t>(i - 1);
            if (!v.Inv_Removed[r])
                continue;
            char row[40];
            std::snprintf(row, sizeof row, " %06d        %05d", static_cast<int>(v.Inv_PersonNumber[r]),
                static_cast<int>(v.Inv_Number[r]));
            rows.emplace_back(row);
            itemData.push_back(i);
        }
        benchmark::DoNotOptimize(rows.data());
    }
    state.counters["persons"] = static_cast<double>(rows.size());
}
BENCHMARK(BM_ListPersonsFloor)->Unit(benchmark::kMicrosecond);

void BM_ListPersons(benchmark::State& state)
{
    Frm_Vistrel& v = started().main();
    for (auto _ : state)
        v.ListPersons();
    state.counters["persons"] = v.PersonsListed;
}
BENCHMARK(BM_ListPersons)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vistrel::bench
