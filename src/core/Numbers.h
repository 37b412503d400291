#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// The numeric reading of text: blanks in front are skipped, then the
// longest leading number (sign, digits, point, exponent) is taken; 0 when
// there is none. All prescription arithmetic reads fields this way.
double Val(std::string_view text);

// A whole text that reads as a number: blanks around it, a sign, a decimal
// point or an exponent allowed; empty text is not numeric.
bool IsNumeric(std::string_view text);

// The plain number text: one leading blank when the number isn't negative,
// no leading zero, fifteen significant digits at most (" .5", "-.5", " 12").
std::string Str(double number);
// The same without the blank in front (".5", "12").
std::string StrTrimmed(double number);

// A number through one of the station's patterns ("0.00", "##.00", "#0.00",
// "000", "###", " 000000" ...): '0' is a digit always shown, '#' a digit
// shown when significant, other characters stand as they are. Rounding is
// half away from zero on the decimal value of fifteen significant digits.
std::string Format(double number, std::string_view pattern);
// The same appended to out, for texts built of many numbers (list rows).
void AppendFormat(std::string& out, double number, std::string_view pattern);

// A text read from a file through a pattern, as the station has always
// formatted field texts: a text that reads as a number is formatted, any
// other text (an empty one too) is left as it stands.
std::string FormatText(std::string_view text, std::string_view pattern);

// A store into a 16-bit Integer: to the nearest, a half to the even
// neighbour; nothing when the value doesn't fit (the store is skipped).
std::optional<std::int16_t> ToInteger(double number);
// The same into a 32-bit Long.
std::optional<std::int32_t> ToLong(double number);
// Stores that saturate instead, for places where a value can't be out of range.
std::int16_t ToIntegerOr(double number, std::int16_t fallback);

// The floor, as the station's Int.
double Int(double number);

// The shortest decimal text that reads back as the same value, with a digit
// before the point: what the script driver prints for a number.
std::string ShortestNumber(double number);

}  // namespace vistrel
