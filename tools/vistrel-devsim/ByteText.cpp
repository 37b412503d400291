#include "ByteText.h"

#include <stdexcept>

namespace vistrel::devsim {

namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

}  // namespace

std::string escapeBytes(std::string_view bytes)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(bytes.size());
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (c == '\\')
            out += "\\\\";
        else if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else if (b >= 0x20 && b < 0x7F)
            out += c;
        else {
            out += "\\x";
            out += hex[b >> 4];
            out += hex[b & 0x0F];
        }
    }
    return out;
}

std::string unescapeBytes(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            out += text[i];
            continue;
        }
        if (i + 1 >= text.size())
            throw std::invalid_argument("a backslash at the end");
        const char kind = text[++i];
        switch (kind) {
        case 'r': out += '\r'; break;
        case 'n': out += '\n'; break;
        case 't': out += '\t'; break;
        case '\\': out += '\\'; break;
        case 'x': {
            const int high = i + 1 < text.size() ? hexDigit(text[i + 1]) : -1;
            const int low = i + 2 < text.size() ? hexDigit(text[i + 2]) : -1;
            if (high < 0 || low < 0)
                throw std::invalid_argument("\\x wants two hex digits");
            out += static_cast<char>(high * 16 + low);
            i += 2;
            break;
        }
        default:
            throw std::invalid_argument(std::string("unknown escape \\") + kind);
        }
    }
    return out;
}

}  // namespace vistrel::devsim
