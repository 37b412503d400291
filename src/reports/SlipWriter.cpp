#include "SlipWriter.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace vistrel {

std::string Format2(double number)
{
    return Trim(Format(number, "0.00"));
}

std::string PadLeft(std::string text, std::size_t width)
{
    if (text.size() < width)
        text.insert(0, width - text.size(), ' ');
    return text;
}

std::string PadRight(std::string text, std::size_t width)
{
    if (text.size() < width)
        text.append(width - text.size(), ' ');
    return text;
}

}  // namespace vistrel
