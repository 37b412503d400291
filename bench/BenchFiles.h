#pragma once

#include <filesystem>

namespace vistrel::bench {

// The folders of a station with its inventory, options and, when asked,
// a local journal, all written once before anything is timed. The
// folders go with the object.
struct BenchFolders {
    // journalLines 0: no journal. Otherwise the journal has exactly that
    // many lines and leaves exactly `dispensed` pairs out of stock.
    explicit BenchFolders(int pairs, int journalLines = 0, int dispensed = 0);
    ~BenchFolders();
    BenchFolders(const BenchFolders&) = delete;
    BenchFolders& operator=(const BenchFolders&) = delete;

    std::filesystem::path root;
    std::filesystem::path inventoryFile() const { return root / "docs/Vistrel/Total_Inventory.txt"; }
    std::filesystem::path journalFile() const { return root / "docs/Vistrel/JournalFile.txt"; }
    std::filesystem::path optionsFile() const
    {
        return root / "shared/Application Data/Vistrel/Vistrel-Options.txt";
    }
};

}  // namespace vistrel::bench
