#pragma once

// Reading a device's message by places and markers, and the conversions
// the decoders put the columns through. Internal to the decoders.
//
// Places count characters from 1, as the devices' printed column layouts
// do; 0 means "not found". A decoder that doesn't find its marker goes on
// with place 0, so "marker + n" then reads from the absolute place n.

#include <string>
#include <string_view>

namespace vistrel::autoref {

// A place in a message, 1-based. Wide and signed so that "marker + n" can
// never wrap, whatever the message's length.
using Place = long long;

// The characters from start (1-based) on, at most length of them. A piece
// that reaches past the end of the text is cut there, one that begins past
// the end is empty; so is one that would begin before the first character
// (no decoder asks for that: every distance from a marker is at least 2).
std::string_view Mid(std::string_view text, Place start, Place length);

// The place of the first occurrence of what at or after from, 0 when there
// is none. A start past the end finds nothing; so does a start below 1,
// which callers must treat themselves (the Humphrey's missing "LEFT").
Place Find(std::string_view text, std::string_view what, Place from = 1);

bool Holds(std::string_view text, std::string_view what);

// ---- Conversions of a column ----

// The characters as they stand, blanks included.
std::string Raw(std::string_view column);
// The numeric prefix (as Val) through "#.00": "-.50", ".00", "1.25".
std::string F2OfNumber(std::string_view column);
// The column through "#.00" when the whole of it reads as a number; any
// other text stays as it is.
std::string F2OfText(std::string_view column);
// The numeric prefix through "##0": a whole number, 0 gives "0".
std::string A0OfNumber(std::string_view column);
// The column through "###" when the whole of it reads as a number, else as
// it is. Zero gives an empty text, which the capture check refuses.
std::string A3OfText(std::string_view column);
// The numeric prefix through "###"; 0 gives an empty text.
std::string A3OfNumber(std::string_view column);

// ---- Steps on a box's text ----

// Every blank (space) removed.
std::string NoBlanks(std::string_view text);
// Only what stands ahead of the first carriage return.
std::string CutAtCr(std::string_view text);
// "0" when the numeric prefix is 0 (an empty or unreadable text too),
// else the text as it is.
std::string AxisZeroRule(std::string_view text);

}  // namespace vistrel::autoref
