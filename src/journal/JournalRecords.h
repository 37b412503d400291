#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vistrel {

// The lines the station appends to its journals. Both are made of plain
// texts so that a person can read the journal by eye; the replay reads
// only the first fields back.

// One eye of the person served, as measured at the moment of dispensing.
struct MeasuredEye {
    double sphere = 0;
    double cylinder = 0;
    std::int16_t axis = 0;
    double readingPower = 0;
    double sphereEquivalent = 0;
};

// Table index, flag ("True", "False" or the new rejection count with its
// blank), person, then the left and the right eye: 13 fields.
std::string DispensingRecord(std::int32_t tableIndex, const std::string& flag, std::int32_t person,
    const MeasuredEye& left, const MeasuredEye& right);

// "Measurement," and the ten entry texts, blanks trimmed, as they stand.
std::string MeasurementRecord(const std::array<std::string, 10>& entryTexts);

// A first field that marks a header record of a journal.
bool IsJournalHeader(const std::string& firstField);

}  // namespace vistrel
