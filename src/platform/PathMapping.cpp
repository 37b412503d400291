#include "PathMapping.h"

#include <cctype>

namespace vistrel {

std::string mapDriveLetterPath(const std::string& path, const std::string& driveRoot)
{
    std::string p = path;
    for (char& c : p)
        if (c == '\\')
            c = '/';
    const bool driveLetter = p.size() >= 2 && std::isalpha(static_cast<unsigned char>(p[0])) && p[1] == ':';
    if (!driveLetter)
        return p;
    const char drive = static_cast<char>(std::tolower(static_cast<unsigned char>(p[0])));
    std::string rest = p.substr(2);
    while (!rest.empty() && rest.front() == '/')
        rest.erase(0, 1);
    std::string mapped = driveRoot;
    if (!mapped.empty() && mapped.back() != '/')
        mapped.push_back('/');
    mapped += "drive_";
    mapped.push_back(drive);
    if (!rest.empty())
        mapped += "/" + rest;
    return mapped;
}

}  // namespace vistrel
