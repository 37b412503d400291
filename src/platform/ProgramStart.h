#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vistrel {

// What a command-line program of the station takes from its process, in
// UTF-8 on every system. Windows hands main() its arguments and getenv()
// its variables in the ANSI code page, which can't carry every file name.

// The arguments after the program's name.
std::vector<std::string> ProgramArguments(int argc, char** argv);

// An environment variable; nothing when it isn't set.
std::optional<std::string> EnvironmentVariable(const std::string& name);

// The folder of the running program's file.
std::string ProgramFolder(const char* argv0);

// Standard output and error written byte for byte: on Windows they would
// otherwise turn every line feed into a carriage return and line feed.
void UseBinaryStandardStreams();

}  // namespace vistrel
