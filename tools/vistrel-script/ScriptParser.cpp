#include "ScriptParser.h"

#include "Escape.h"
#include "ScriptError.h"

#include <charconv>
#include <utility>

namespace vistrel::script {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && isBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

// Splits off the next word; `rest` keeps its leading blank, which separates
// a VALUE.
std::string_view nextWord(std::string_view& rest)
{
    while (!rest.empty() && isBlank(rest.front()))
        rest.remove_prefix(1);
    size_t end = 0;
    while (end < rest.size() && !isBlank(rest[end]))
        ++end;
    std::string_view word = rest.substr(0, end);
    rest.remove_prefix(end);
    return word;
}

// The VALUE after one separating blank: quoted, or the rest as it is.
std::string valueAfterBlank(std::string_view rest, const char* what)
{
    if (rest.empty())
        throw ScriptError(std::string("missing ") + what);
    rest.remove_prefix(1);
    if (!rest.empty() && rest.front() == '"')
        return unquoteValue(rest);
    return std::string(rest);
}

int wholeNumber(std::string_view text, const char* what)
{
    text = trimmed(text);
    int n = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (text.empty() || ec != std::errc() || ptr != text.data() + text.size())
        throw ScriptError(std::string(what) + " must be a whole number, not '" + std::string(text) + "'");
    return n;
}

void expectEnd(std::string_view rest, std::string_view keyword)
{
    if (!trimmed(rest).empty())
        throw ScriptError(std::string(keyword) + " takes nothing after its target: '" +
                          std::string(trimmed(rest)) + "'");
}

std::optional<Command> commandNamed(std::string_view word)
{
    static constexpr std::pair<std::string_view, Command> names[] = {
        {"start", Command::Start}, {"set", Command::Set}, {"check", Command::Check},
        {"select", Command::Select}, {"click", Command::Click}, {"dblclick", Command::DblClick},
        {"call", Command::Call}, {"answer", Command::Answer}, {"stay", Command::Stay}, {"serial", Command::Serial},
        {"tick", Command::Tick}, {"print", Command::Print},
    };
    for (const auto& [name, command] : names)
        if (name == word)
            return command;
    return std::nullopt;
}

}  // namespace

std::optional<Statement> parseStatement(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    const std::string_view content = trimmed(line);
    if (content.empty() || content.front() == '#')
        return std::nullopt;

    std::string_view rest = line;
    const std::string_view keyword = nextWord(rest);
    const std::optional<Command> command = commandNamed(keyword);
    if (!command)
        throw ScriptError("unknown statement '" + std::string(keyword) + "'");

    Statement st;
    st.command = *command;
    switch (st.command) {
    case Command::Start:
        if (!rest.empty())
            st.value = valueAfterBlank(rest, "command line");
        return st;
    case Command::Serial:
        st.value = valueAfterBlank(rest, "value to receive");
        return st;
    case Command::Print:
        st.target = parseTarget(trimmed(rest), true);
        return st;
    case Command::Stay: {
        // A screen, not a control: the whole word is the form's name.
        const std::string_view form = nextWord(rest);
        if (form.empty() || form.find('.') != std::string_view::npos)
            throw ScriptError("stay takes the name of a screen, e.g. 'stay Frm_Advisor'");
        st.target.text = std::string(form);
        st.target.form = std::string(form);
        expectEnd(rest, keyword);
        return st;
    }
    default:
        break;
    }

    st.target = parseTarget(nextWord(rest), false);
    switch (st.command) {
    case Command::Set:
        st.value = valueAfterBlank(rest, "value to set");
        break;
    case Command::Check: {
        const std::string_view v = trimmed(rest);
        if (v != "0" && v != "1")
            throw ScriptError("check takes 0 or 1, not '" + std::string(v) + "'");
        st.value = std::string(v);
        break;
    }
    case Command::Click:
    case Command::DblClick:
        // A list's ROW, or a grid cell's ROW COL.
        if (!trimmed(rest).empty()) {
            st.number = wholeNumber(nextWord(rest), "the row");
            if (*st.number < 0)
                throw ScriptError("the row must not be negative");
        }
        if (!trimmed(rest).empty()) {
            st.column = wholeNumber(nextWord(rest), "the column");
            if (*st.column < 0)
                throw ScriptError("the column must not be negative");
        }
        expectEnd(rest, keyword);
        break;
    case Command::Tick:
        if (!trimmed(rest).empty()) {
            st.number = wholeNumber(rest, "the number of ticks");
            if (*st.number < 1)
                throw ScriptError("the number of ticks must be at least 1");
        }
        break;
    case Command::Call:
        if (st.target.index)
            throw ScriptError("an operation takes no index: '" + st.target.text + "'");
        expectEnd(rest, keyword);
        break;
    default:
        expectEnd(rest, keyword);
        break;
    }
    return st;
}

}  // namespace vistrel::script
