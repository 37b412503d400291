#pragma once

#include <string>
#include <string_view>

namespace vistrel::script {

// The printed form of a value: a character below 32 and the backslash are
// written as \r, \n, \t, \\ or \xHH (uppercase hex); bytes from 128 up and
// everything else pass as they are.
std::string escapeValue(std::string_view text);

// The text of a double-quoted script value. `quoted` starts with the opening
// quote; the escapes are \r \n \t \\ \" and \xHH. Whatever follows the
// closing quote must be blanks. Throws ScriptError on a malformed value.
std::string unquoteValue(std::string_view quoted);

}  // namespace vistrel::script
