#include "DateTexts.h"

#include <cstdio>

namespace vistrel {

std::string ShortDateText(const DateTime& when)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", when.year, when.month, when.day);
    return text;
}

std::string TimeText(const DateTime& when)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", when.hour, when.minute, when.second);
    return text;
}

}  // namespace vistrel
