#include "JournalFileName.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace vistrel {

#ifndef _WIN32
namespace {

bool sameWithoutCase(const std::string& a, const std::string& b)
{
    return a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

}  // namespace
#endif

std::string JournalFileIn(const std::string& nativeFolder, char separator, const std::string& spelling)
{
    const std::string folder = nativeFolder + separator;
#ifdef _WIN32
    // The file system already folds case.
    return folder + spelling;
#else
    namespace fs = std::filesystem;
    std::error_code ec;
    if (fs::is_regular_file(folder + JournalFileName, ec))
        return folder + JournalFileName;
    // Any other spelling already there, the first in name order, so that
    // every station picks the same one.
    std::string found;
    for (fs::directory_iterator it(nativeFolder.empty() ? "." : nativeFolder, ec), end; !ec && it != end;
         it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (sameWithoutCase(name, JournalFileName) && (found.empty() || name < found)
            && it->is_regular_file(ec))
            found = name;
    }
    (void)spelling;
    return folder + (found.empty() ? std::string(JournalFileName) : found);
#endif
}

}  // namespace vistrel
