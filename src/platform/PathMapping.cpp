#include "PathMapping.h"

#include <cctype>

namespace vistrel {

bool hasDriveLetter(const std::string& path)
{
    return path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':';
}

std::string mapDriveLetterPath(const std::string& path, const std::string& driveRoot)
{
    if (!hasDriveLetter(path))
        return path;
    std::string p = path;
    for (char& c : p)
        if (c == '\\')
            c = '/';
    const char drive = static_cast<char>(std::tolower(static_cast<unsigned char>(p[0])));
    std::string rest = p.substr(2);
    while (!rest.empty() && rest.front() == '/')
        rest.erase(0, 1);
    std::string mapped = driveRootFolder(driveRoot, drive);
    if (!rest.empty())
        mapped += "/" + rest;
    return mapped;
}

std::string driveRootFolder(const std::string& driveRoot, char drive)
{
    std::string mapped = driveRoot;
    if (!mapped.empty() && mapped.back() != '/')
        mapped.push_back('/');
    mapped += "drive_";
    mapped.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(drive))));
    return mapped;
}

}  // namespace vistrel
