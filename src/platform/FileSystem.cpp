#include "FileSystem.h"

#include <cerrno>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#endif

namespace vistrel {

#ifdef _WIN32

namespace {

std::wstring wide(const std::string& text)
{
    if (text.empty())
        return {};
    const int n = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring result(static_cast<size_t>(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(), n);
    return result;
}

}  // namespace

std::filesystem::path FsPath(const std::string& path)
{
    return std::filesystem::path(wide(path));
}

std::string PathText(const std::filesystem::path& path)
{
    // libstdc++ and the Microsoft library both give UTF-8 here.
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::FILE* OpenFile(const std::string& path, const char* mode)
{
    return _wfopen(wide(path).c_str(), wide(mode).c_str());
}

bool DeviceNotReady(const std::string& path)
{
    const HANDLE h = CreateFileW(wide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h != INVALID_HANDLE_VALUE) {
        CloseHandle(h);
        return false;
    }
    const DWORD error = GetLastError();
    return error == ERROR_NOT_READY || error == ERROR_NO_MEDIA_IN_DRIVE || error == ERROR_DEV_NOT_EXIST
        || error == ERROR_IO_DEVICE;
}

void SetFileFlags(const std::string& path, bool readOnly, bool hidden)
{
    DWORD flags = (readOnly ? FILE_ATTRIBUTE_READONLY : 0) | (hidden ? FILE_ATTRIBUTE_HIDDEN : 0);
    SetFileAttributesW(wide(path).c_str(), flags == 0 ? FILE_ATTRIBUTE_NORMAL : flags);
}

#else

std::filesystem::path FsPath(const std::string& path)
{
    return std::filesystem::path(path);
}

std::string PathText(const std::filesystem::path& path)
{
    return path.string();
}

std::FILE* OpenFile(const std::string& path, const char* mode)
{
    return std::fopen(path.c_str(), mode);
}

bool DeviceNotReady(const std::string& path)
{
    std::FILE* f = std::fopen(path.c_str(), "rb");
    if (f) {
        std::fclose(f);
        return false;
    }
    return errno == EIO || errno == ENXIO || errno == ENODEV
#ifdef ENOMEDIUM
        || errno == ENOMEDIUM
#endif
        ;
}

void SetFileFlags(const std::string& path, bool readOnly, bool)
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    if (readOnly)
        fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
            fs::perm_options::remove, ignored);
    else
        fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, ignored);
}

#endif

}  // namespace vistrel
