#pragma once

#include "platform/DateTime.h"

#include <string>

namespace vistrel {

// The date and time as the station writes them into its files and reports:
// "2026-11-21" and "14:05:09", the same on every machine, with no comma.
std::string ShortDateText(const DateTime& when);
std::string TimeText(const DateTime& when);

}  // namespace vistrel
