#include "Escape.h"

#include "ScriptError.h"

namespace vistrel::script {

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

std::string escapeValue(std::string_view text)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        const auto u = static_cast<unsigned char>(c);
        if (c == '\\')
            out += "\\\\";
        else if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\t')
            out += "\\t";
        else if (u < 32) {
            out += "\\x";
            out.push_back(hex[u >> 4]);
            out.push_back(hex[u & 15]);
        } else
            out.push_back(c);
    }
    return out;
}

std::string unquoteValue(std::string_view quoted)
{
    if (quoted.empty() || quoted.front() != '"')
        throw ScriptError("a quoted value must start with \"");
    std::string out;
    size_t i = 1;
    for (;;) {
        if (i >= quoted.size())
            throw ScriptError("the quoted value has no closing \"");
        const char c = quoted[i++];
        if (c == '"')
            break;
        if (c != '\\') {
            out.push_back(c);
            continue;
        }
        if (i >= quoted.size())
            throw ScriptError("the quoted value ends inside an escape");
        const char e = quoted[i++];
        switch (e) {
        case 'r': out.push_back('\r'); break;
        case 'n': out.push_back('\n'); break;
        case 't': out.push_back('\t'); break;
        case '\\': out.push_back('\\'); break;
        case '"': out.push_back('"'); break;
        case 'x': {
            const int hi = i < quoted.size() ? hexDigit(quoted[i]) : -1;
            const int lo = i + 1 < quoted.size() ? hexDigit(quoted[i + 1]) : -1;
            if (hi < 0 || lo < 0)
                throw ScriptError("\\x must be followed by two hex digits");
            out.push_back(static_cast<char>(hi * 16 + lo));
            i += 2;
            break;
        }
        default:
            throw ScriptError(std::string("unknown escape \\") + e + " in a quoted value");
        }
    }
    for (; i < quoted.size(); ++i)
        if (quoted[i] != ' ' && quoted[i] != '\t')
            throw ScriptError("text after the closing quote of a value");
    return out;
}

}  // namespace vistrel::script
