#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vistrel {

std::string Trim(std::string_view text);   // blanks off both ends
std::string LTrim(std::string_view text);  // blanks off the front
std::string RTrim(std::string_view text);  // blanks off the end
std::string UCase(std::string_view text);
// UCase(text) == upper, without making the copy: for keyword tests that
// run once per record of a file.
bool UCaseEquals(std::string_view text, std::string_view upper);
std::string RemoveBlanks(std::string_view text);
// head followed by tail, in a buffer the caller keeps: a text written once
// per record of a long loop then costs no allocation.
const std::string& JoinInto(std::string& buffer, std::string_view head, std::string_view tail);
bool Contains(std::string_view text, std::string_view part);

// Pads with blanks on the right, or leaves a longer text whole, so that
// list rows line up.
std::string SizedField(std::string_view initialField, int fieldSize);

// A flag as a column of a list row: the text of a set flag, "x" when off;
// with "1/0" the texts "1" and "0".
std::string TrueFalse(bool bigFlag, std::string_view replacementValue);

// Axis distance on the 180-degree circle, in 16-bit whole numbers.
std::int16_t AxisDifference(std::int16_t firstAxis, std::int16_t secondAxis);

}  // namespace vistrel
