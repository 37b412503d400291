#include "Target.h"

#include "ScriptError.h"

#include <cctype>
#include <charconv>

namespace vistrel::script {

namespace {

class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool atEnd() const { return pos_ >= text_.size(); }
    char peek() const { return atEnd() ? '\0' : text_[pos_]; }
    bool accept(char c)
    {
        if (peek() != c)
            return false;
        ++pos_;
        return true;
    }
    void skipBlanks()
    {
        while (peek() == ' ' || peek() == '\t')
            ++pos_;
    }

    std::string identifier(const char* what)
    {
        const size_t start = pos_;
        const auto isIdent = [](char c, bool first) {
            const auto u = static_cast<unsigned char>(c);
            return c == '_' || std::isalpha(u) || (!first && std::isdigit(u));
        };
        if (atEnd() || !isIdent(peek(), true))
            throw ScriptError(std::string("expected ") + what + " in target '" + std::string(text_) + "'");
        while (!atEnd() && isIdent(peek(), false))
            ++pos_;
        return std::string(text_.substr(start, pos_ - start));
    }

    int integer()
    {
        skipBlanks();
        const char* first = text_.data() + pos_;
        const char* last = text_.data() + text_.size();
        int value = 0;
        auto [ptr, ec] = std::from_chars(first, last, value);
        if (ec != std::errc() || ptr == first)
            throw ScriptError("expected a whole number in target '" + std::string(text_) + "'");
        pos_ += static_cast<size_t>(ptr - first);
        skipBlanks();
        return value;
    }

    // '(' a {',' b} ')' with the opening parenthesis already taken.
    std::vector<int> arguments()
    {
        std::vector<int> args{integer()};
        while (accept(','))
            args.push_back(integer());
        if (!accept(')'))
            throw ScriptError("expected ')' in target '" + std::string(text_) + "'");
        return args;
    }

private:
    std::string_view text_;
    size_t pos_ = 0;
};

}  // namespace

TargetRef parseTarget(std::string_view text, bool allowProperty)
{
    TargetRef t;
    t.text = std::string(text);
    if (text.empty())
        throw ScriptError("missing target");
    Scanner s(text);
    t.form = s.identifier("a form name");
    if (!s.accept('.'))
        throw ScriptError("target '" + t.text + "' must be Form.Name");
    t.name = s.identifier("a name after the form");
    if (s.accept('(')) {
        const std::vector<int> args = s.arguments();
        if (args.size() != 1)
            throw ScriptError("target '" + t.text + "' has more than one index");
        t.index = args.front();
    }
    if (s.accept('.')) {
        if (!allowProperty)
            throw ScriptError("only print takes a property: '" + t.text + "'");
        t.property = s.identifier("a property name");
        if (s.accept('(')) {
            t.propertyArgs = s.arguments();
            t.propertyHasArgs = true;
        }
    }
    if (!s.atEnd())
        throw ScriptError("unexpected '" + std::string(1, s.peek()) + "' in target '" + t.text + "'");
    return t;
}

}  // namespace vistrel::script
