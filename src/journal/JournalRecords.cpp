#include "JournalRecords.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace vistrel {

namespace {

void appendEye(std::string& line, const MeasuredEye& eye)
{
    line += ',' + Format(eye.sphere, "0.00");
    line += ',' + Format(eye.cylinder, "0.00");
    line += ',' + Format(eye.axis, "000");
    line += ',' + Format(eye.readingPower, "0.00");
    line += ",(" + Format(eye.sphereEquivalent, "0.00") + ')';
}

}  // namespace

std::string DispensingRecord(std::int32_t tableIndex, const std::string& flag, std::int32_t person,
    const MeasuredEye& left, const MeasuredEye& right)
{
    std::string line = std::to_string(tableIndex) + ',' + flag + ',' + std::to_string(person);
    appendEye(line, left);
    appendEye(line, right);
    return line;
}

std::string MeasurementRecord(const std::array<std::string, 10>& entryTexts)
{
    std::string line = "Measurement";
    for (const std::string& text : entryTexts)
        line += ',' + Trim(text);
    return line;
}

bool IsJournalHeader(const std::string& firstField)
{
    return Contains(firstField, "_JournalFileOrder");
}

}  // namespace vistrel
