#pragma once

#include <array>
#include <string>

namespace vistrel {

inline const char* const ReadingsFileName = "AutoRefractorReadings.txt";
inline const char* const PracticeReadingsFileName = "AutoRefractorReadings_Practice.txt";

// A line of the readings file from its ten texts: person number, age, the
// right eye's sphere, cylinder and axis, the left eye's, date and time. The
// person number loses its leading blanks only; the others are trimmed. A
// line end inside a field is dropped: one reading, one line.
std::string ReadingsLine(const std::array<std::string, 10>& fields);

// A row of the readings browser from the ten fields read back, every blank
// removed first: person (five digits), age, right sphere, cylinder and axis,
// left ones, date and time, each padded to its column.
std::string ReadingsRow(const std::array<std::string, 10>& fields);

// The text of a row at places from..from+length-1 (counted from 1), cut at
// the row's end.
std::string RowPlaces(const std::string& row, size_t from, size_t length);

}  // namespace vistrel
