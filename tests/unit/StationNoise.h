#pragma once

// Random and damaged files for the start-up tests, and what must hold
// after any start that came through.

#include "core/Frm_Vistrel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace vistrel::test {

// ---- Random files ----

class Noise {
public:
    explicit Noise(unsigned seed) : rng_(seed) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename T>
    const T& pick(const std::vector<T>& items) { return items[static_cast<size_t>(below(static_cast<int>(items.size())))]; }

    // A size from 0 to about max, small sizes as likely as large ones.
    size_t size(size_t max)
    {
        const int bucket = below(20);
        const size_t top = std::max<size_t>(1, max >> (19 - bucket));
        return static_cast<size_t>(std::uniform_int_distribution<size_t>(0, top)(rng_));
    }

    std::string bytes(size_t n)
    {
        std::string s(n, '\0');
        for (char& c : s)
            c = static_cast<char>(below(256));
        return s;
    }

    // Mostly delimiters, quotes, blanks and NULs, with bits of numbers.
    std::string delimiters(size_t n)
    {
        using namespace std::string_literals;
        static const std::string alphabet = ",,,,\"\"\r\r\n\n  \0\0\t-.eE+019RLFx"s;
        std::string s(n, ' ');
        for (char& c : s)
            c = alphabet[static_cast<size_t>(below(static_cast<int>(alphabet.size())))];
        return s;
    }

    std::string number()
    {
        static const std::vector<std::string> odd = {"0", "-0", "1e308", "-1e308", "1e999", "99999999999999999999",
            "32000", "32001", "32767", "32768", "40000", "-1", "-32768", "-32769", "65535", ".5", "-.25", "1e",
            "NaN", "inf", "0x10", "1,5", "  7  ", "3.5", "2.5", "", "  "};
        if (chance(30))
            return pick(odd);
        const int kind = below(3);
        if (kind == 0)
            return std::to_string(below(32500) - 500);
        if (kind == 1)
            return std::to_string((below(161) - 80) * 0.25).substr(0, 5);
        return std::to_string(below(181));
    }

    std::string field()
    {
        switch (below(8)) {
        case 0:
            return "\"" + delimiters(size(200)) + (chance(99) ? "\"" : "");
        case 1:
            return pick(std::vector<std::string>{"READING", "LENS", "LENSCHILD", "FRAMES", "FRAMESCHILD",
                "reading", "Lens", "S=57", "M", "comment, with comma", "\"quoted, comment\""});
        case 2:
            return std::string(static_cast<size_t>(below(3)), ' ') + number() + std::string(static_cast<size_t>(below(3)), ' ');
        case 3:
            return bytes(size(40));
        default:
            return number();
        }
    }

    std::string cleanField()
    {
        if (chance(5)) {
            std::string inside = delimiters(size(100));
            std::replace(inside.begin(), inside.end(), '"', ' ');
            return "\"" + inside + "\"";
        }
        if (chance(10))
            return pick(std::vector<std::string>{"READING", "LENS", "S=57", "x"});
        std::string n = number();
        std::replace(n.begin(), n.end(), ',', '.');
        return n;
    }

    std::string lineEnd() { return pick(std::vector<std::string>{"\r\n", "\r\n", "\n", "\r", "\r\n\r\n", ",\r\n"}); }

    // Records of the inventory's shape; messy ones with fields missing or
    // too many and delimiters inside unquoted fields.
    std::string records(size_t n, bool messy)
    {
        std::string s;
        while (s.size() < n) {
            const int fields = !messy || chance(90) ? 19 : below(26);
            for (int f = 0; f < fields; ++f) {
                if (f > 0)
                    s += !messy || chance(95) ? "," : lineEnd();
                if (f > 0)
                    s += messy ? field() : cleanField();
                else if (messy ? chance(90) : below(1000) > 0)  // mostly bags the load takes
                    s += std::to_string(1 + below(32000));
                else
                    s += chance(50) ? number() : field();
            }
            s += messy ? lineEnd() : pick(std::vector<std::string>{"\r\n", "\n", "\r", "\r\n  \r\n"});
        }
        return s;
    }

    // One line of a single field, of commas only, or a long quoted comment.
    std::string longLine(size_t n)
    {
        const int kind = below(3);
        return kind == 0 ? std::string(n, '7') : kind == 1 ? std::string(n, ',') : "1,\"" + std::string(n, 'x') + "\",2\r\n";
    }

private:
    std::mt19937 rng_;
};

inline std::string wellFormedRecord(int bag)
{
    return std::to_string(bag) + ",-1.25,-0.50,90,0.00,-1.00,-0.25,85,0.00,0,0,0,0,0,M,1,comment " + std::to_string(bag)
        + ",x,y\r\n";
}

// ---- Checks ----

// What holds after any start that came through: counts within the tables,
// one row per counted record, no row written beyond the tables.
inline void expectWithinTables(const Frm_Vistrel& v)
{
    const double count = v.InventoryCount.number();
    ASSERT_GE(count, 0);
    ASSERT_LE(count, 32000);
    EXPECT_LE(v.HighestInventoryNr, 32000);

    // No table grew or shrank.
    const size_t rows = Frm_Vistrel::InventoryRows;
    for (size_t size : {v.Inv_Number.size(), v.Inv_FieldsRead.size(), v.Inv_Comment.size(), v.Inv_Removed.size(),
             v.Inv_LocationUsed.size()})
        ASSERT_EQ(size, rows);
    ASSERT_EQ(v.Found_Number.size(), static_cast<size_t>(Frm_Vistrel::SearchRows));

    // Each counted record has a row of its own.
    std::set<int> bags;
    size_t read = 0;
    for (size_t r = 0; r < rows; ++r) {
        if (!v.Inv_FieldsRead[r])
            continue;
        ++read;
        bags.insert(v.Inv_Number[r]);
    }
    EXPECT_EQ(read, static_cast<size_t>(count));
    // A place is used only by a bag number read into a row.
    for (size_t p = 0; p < rows; ++p) {
        if (v.Inv_LocationUsed[p]) {
            ASSERT_TRUE(bags.count(static_cast<int>(p) + 1)) << "place of bag " << p + 1;
        }
    }

    // The stock lists name rows that were loaded.
    EXPECT_EQ(v.Lst_LeftInventory.listCount(), v.Lst_RightInventory.listCount());
    EXPECT_LE(v.Lst_LeftInventory.listCount(), count);
    for (int i = 0; i < v.Lst_LeftInventory.listCount(); ++i) {
        const ListBox::Row& row = v.Lst_LeftInventory.row(i);
        ASSERT_GE(row.itemData, 1);
        ASSERT_LE(row.itemData, count);
        ASSERT_TRUE(v.Inv_FieldsRead[static_cast<size_t>(row.itemData - 1)]);
    }
}

}  // namespace vistrel::test
