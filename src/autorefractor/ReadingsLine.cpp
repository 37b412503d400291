#include "ReadingsLine.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace vistrel {

namespace {

// A device's raw column can bring a line end along; in the file it would
// split the reading.
std::string oneLine(std::string text)
{
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    return text;
}

}  // namespace

std::string ReadingsLine(const std::array<std::string, 10>& fields)
{
    std::string line = LTrim(oneLine(fields[0]));
    for (size_t i = 1; i < fields.size(); ++i)
        line += "," + Trim(oneLine(fields[i]));
    return line;
}

std::string ReadingsRow(const std::array<std::string, 10>& fields)
{
    std::array<std::string, 10> f;
    for (size_t i = 0; i < f.size(); ++i)
        f[i] = RemoveBlanks(fields[i]);
    std::string person = FormatText(f[0], "00000");
    if (person.empty())
        person = "00000";
    return person + "  " + SizedField(f[1], 3) + "  " + SizedField(FormatText(f[2], "#0.00"), 6) + " "
        + SizedField(FormatText(f[3], "#0.00"), 6) + "    " + SizedField(f[4], 3) + "   "
        + SizedField(FormatText(f[5], "#0.00"), 6) + " " + SizedField(FormatText(f[6], "#0.00"), 6) + "  "
        + SizedField(f[7], 3) + "    " + SizedField(f[8], 10) + " " + SizedField(f[9], 10);
}

std::string RowPlaces(const std::string& row, size_t from, size_t length)
{
    if (from < 1 || from > row.size())
        return {};
    return row.substr(from - 1, length);
}

}  // namespace vistrel
