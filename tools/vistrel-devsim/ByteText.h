#pragma once

#include <string>
#include <string_view>

namespace vistrel::devsim {

// Bytes as one printable line: printable ASCII as it stands, the backslash
// doubled, CR and LF as \r and \n, every other byte as \xHH.
std::string escapeBytes(std::string_view bytes);

// The reverse, as an example's expected replies are written: \xHH, \r, \n,
// \t and \\. Throws std::invalid_argument on any other escape.
std::string unescapeBytes(std::string_view text);

}  // namespace vistrel::devsim
