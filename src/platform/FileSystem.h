#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace vistrel {

// The station's paths are UTF-8 text. Windows names files in UTF-16, and a
// std::filesystem::path or std::fopen given a narrow string there reads it
// in the ANSI code page: every path goes through these instead.

// The file system's path for a UTF-8 path, and the UTF-8 text of one.
std::filesystem::path FsPath(const std::string& path);
std::string PathText(const std::filesystem::path& path);

// std::fopen for a UTF-8 path. Open in binary mode ("rb", "wb"): the
// station writes its own carriage returns.
std::FILE* OpenFile(const std::string& path, const char* mode);

// Whether the file can't be read because its device isn't ready, as a
// removed disk, rather than because it isn't there.
bool DeviceNotReady(const std::string& path);

// Read-only and hidden, where the file system has them; elsewhere
// read-only is the lack of write permission and hidden is let be.
void SetFileFlags(const std::string& path, bool readOnly, bool hidden);

}  // namespace vistrel
