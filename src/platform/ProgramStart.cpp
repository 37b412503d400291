#include "ProgramStart.h"

#include "FileSystem.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <shellapi.h>
#include <fcntl.h>
#include <io.h>
#include <cstdio>
#endif

namespace vistrel {

#ifdef _WIN32

namespace {

std::string narrow(const wchar_t* text, int length = -1)
{
    const int n = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    if (n <= 0)
        return {};
    std::string result(static_cast<size_t>(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, length, result.data(), n, nullptr, nullptr);
    if (length < 0)
        result.pop_back();  // the terminating zero
    return result;
}

}  // namespace

std::vector<std::string> ProgramArguments(int, char**)
{
    std::vector<std::string> args;
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!wide)
        return args;
    for (int i = 1; i < count; ++i)
        args.push_back(narrow(wide[i]));
    LocalFree(wide);
    return args;
}

std::optional<std::string> EnvironmentVariable(const std::string& name)
{
    const std::wstring wideName = FsPath(name).native();
    const wchar_t* value = _wgetenv(wideName.c_str());
    if (!value)
        return std::nullopt;
    return narrow(value);
}

std::string ProgramFolder(const char*)
{
    std::wstring file(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
        if (n == 0)
            return ".";
        if (n < file.size()) {
            file.resize(n);
            break;
        }
        file.resize(file.size() * 2);
    }
    return PathText(std::filesystem::path(file).parent_path());
}

void UseBinaryStandardStreams()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

#else

std::vector<std::string> ProgramArguments(int argc, char** argv)
{
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>{};
}

std::optional<std::string> EnvironmentVariable(const std::string& name)
{
    const char* value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

std::string ProgramFolder(const char* argv0)
{
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec)
        exe = fs::absolute(argv0 ? argv0 : ".", ec);
    return exe.parent_path().string();
}

void UseBinaryStandardStreams() {}

#endif

}  // namespace vistrel
