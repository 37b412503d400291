#include "Text.h"

#include <cctype>
#include <cstdlib>

namespace vistrel {

std::string Trim(std::string_view text)
{
    return RTrim(LTrim(text));
}

std::string LTrim(std::string_view text)
{
    size_t b = 0;
    while (b < text.size() && text[b] == ' ')
        ++b;
    return std::string(text.substr(b));
}

std::string RTrim(std::string_view text)
{
    size_t e = text.size();
    while (e > 0 && text[e - 1] == ' ')
        --e;
    return std::string(text.substr(0, e));
}

std::string UCase(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

bool UCaseEquals(std::string_view text, std::string_view upper)
{
    if (text.size() != upper.size())
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (std::toupper(static_cast<unsigned char>(text[i])) != static_cast<unsigned char>(upper[i]))
            return false;
    return true;
}

std::string RemoveBlanks(std::string_view text)
{
    std::string out;
    for (char c : text)
        if (c != ' ')
            out.push_back(c);
    return out;
}

const std::string& JoinInto(std::string& buffer, std::string_view head, std::string_view tail)
{
    buffer.assign(head);
    buffer.append(tail);
    return buffer;
}

bool Contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

std::string SizedField(std::string_view initialField, int fieldSize)
{
    std::string out(initialField);
    if (fieldSize > 0 && out.size() < static_cast<size_t>(fieldSize))
        out.append(static_cast<size_t>(fieldSize) - out.size(), ' ');
    return out;
}

std::string TrueFalse(bool bigFlag, std::string_view replacementValue)
{
    const bool digits = replacementValue == "1/0";
    if (bigFlag)
        return digits ? "1" : std::string(replacementValue);
    return digits ? "0" : "x";
}

std::int16_t AxisDifference(std::int16_t firstAxis, std::int16_t secondAxis)
{
    int first = firstAxis;
    int second = secondAxis;
    int d = std::abs(first - second);
    if (d > 90) {
        if (first <= second)
            first += 180;
        else
            second += 180;
        d = std::abs(first - second);
    }
    return static_cast<std::int16_t>(d);
}

}  // namespace vistrel
