// The readings file's line and the browser's row built from it: the writer
// and the reader are held against each other here.

#include "autorefractor/ReadingsLine.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(ReadingsLine, PersonKeepsTrailingBlanksOthersAreTrimmed)
{
    EXPECT_EQ(ReadingsLine({"  27  ", " 52 ", "-1.25 ", " -0.50", "90", "", "    ", "5", "2026-11-21", "10:00:00"}),
        "27  ,52,-1.25,-0.50,90,,,5,2026-11-21,10:00:00");
    // A line end brought along by a device's column never splits the line.
    EXPECT_EQ(ReadingsLine({"1", "40", "-1.00", "-0.25", "90\r", "\r\n-2.00", "0", "0", "d", "t"}),
        "1,40,-1.00,-0.25,90,-2.00,0,0,d,t");
}

TEST(ReadingsRow, ColumnsStandWhereTheReloadTakesThem)
{
    const std::string row = ReadingsRow({"27", "52", "+0.75", "0", "5", "-1.25", "-0.50", "180", "2026-11-20",
        "09:15:00"});
    EXPECT_EQ(row, "00027  52   0.75   0.00      5     -1.25  -0.50   180    2026-11-20 09:15:00  ");
    EXPECT_EQ(RowPlaces(row, 1, 5), "00027");
    EXPECT_EQ(RowPlaces(row, 8, 3), "52 ");
    EXPECT_EQ(RowPlaces(row, 13, 6), "0.75  ");
    EXPECT_EQ(RowPlaces(row, 20, 6), "0.00  ");
    EXPECT_EQ(RowPlaces(row, 30, 3), "5  ");
    EXPECT_EQ(RowPlaces(row, 36, 6), "-1.25 ");
    EXPECT_EQ(RowPlaces(row, 43, 6), "-0.50 ");
    EXPECT_EQ(RowPlaces(row, 51, 3), "180");

    // Blanks go first; an empty person is "00000"; letters stand and push
    // the columns behind them.
    EXPECT_EQ(RowPlaces(ReadingsRow({" 1 2", "", "", "", "", "", "", "", "", ""}), 1, 5), "00012");
    EXPECT_EQ(RowPlaces(ReadingsRow({"", "", "", "", "", "", "", "", "", ""}), 1, 5), "00000");
    EXPECT_EQ(RowPlaces(ReadingsRow({"AB1", "3", "", "", "", "", "", "", "", ""}), 1, 8), "AB1  3  ");
}

TEST(ReadingsRow, PlacesPastTheRowAreEmpty)
{
    EXPECT_EQ(RowPlaces("12345", 4, 6), "45");
    EXPECT_EQ(RowPlaces("12345", 6, 2), "");
    EXPECT_EQ(RowPlaces("12345", 0, 2), "");
    EXPECT_EQ(RowPlaces("", 1, 1), "");
}

}  // namespace
}  // namespace vistrel
