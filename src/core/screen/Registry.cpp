#include "Registry.h"

#include "../Numbers.h"

#include <cctype>

namespace vistrel {

namespace {

bool parseBoolean(const std::string& text)
{
    std::string t;
    for (char c : text)
        t.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    if (t == "true")
        return true;
    if (t == "false")
        return false;
    return Val(text) != 0;
}

std::int16_t parseInteger(const std::string& text)
{
    return ToIntegerOr(Val(text), 0);
}

std::int32_t parseLong(const std::string& text)
{
    return ToLong(Val(text)).value_or(0);
}

Variant parseVariant(const std::string& text)
{
    if (IsNumeric(text))
        return Variant(Val(text));
    return Variant(text);
}

template <typename T, typename Get, typename Set>
VarBinding makeTable(std::vector<T>& t, int first, Get get, Set set)
{
    VarBinding b;
    b.table = true;
    b.first = first;
    b.last = first + static_cast<int>(t.size()) - 1;
    b.get = [&t, first, get](int i) { return get(t[static_cast<size_t>(i - first)]); };
    b.set = [&t, first, set](int i, const std::string& s) { set(t[static_cast<size_t>(i - first)], s); };
    return b;
}

}  // namespace

namespace bind {

VarBinding scalar(bool& v)
{
    return {[&v](int) { return Variant::boolean(v); },
        [&v](int, const std::string& s) { v = parseBoolean(s); }};
}

VarBinding scalar(std::int16_t& v)
{
    return {[&v](int) { return Variant(static_cast<double>(v)); },
        [&v](int, const std::string& s) { v = parseInteger(s); }};
}

VarBinding scalar(std::int32_t& v)
{
    return {[&v](int) { return Variant(static_cast<double>(v)); },
        [&v](int, const std::string& s) { v = parseLong(s); }};
}

VarBinding scalar(double& v)
{
    return {[&v](int) { return Variant(v); }, [&v](int, const std::string& s) { v = Val(s); }};
}

VarBinding scalar(std::string& v)
{
    return {[&v](int) { return Variant(v); }, [&v](int, const std::string& s) { v = s; }};
}

VarBinding scalar(Variant& v)
{
    return {[&v](int) { return v; }, [&v](int, const std::string& s) { v = parseVariant(s); }};
}

VarBinding scalar(std::optional<double>& v)
{
    return {[&v](int) { return v ? Variant(*v) : Variant(); },
        [&v](int, const std::string& s) { v = Val(s); }};
}

VarBinding table(std::vector<bool>& t, int first)
{
    VarBinding b;
    b.table = true;
    b.first = first;
    b.last = first + static_cast<int>(t.size()) - 1;
    b.get = [&t, first](int i) { return Variant::boolean(t[static_cast<size_t>(i - first)]); };
    b.set = [&t, first](int i, const std::string& s) { t[static_cast<size_t>(i - first)] = parseBoolean(s); };
    return b;
}

VarBinding table(std::vector<std::int16_t>& t, int first)
{
    return makeTable(t, first, [](std::int16_t v) { return Variant(static_cast<double>(v)); },
        [](std::int16_t& v, const std::string& s) { v = parseInteger(s); });
}

VarBinding table(std::vector<std::int32_t>& t, int first)
{
    return makeTable(t, first, [](std::int32_t v) { return Variant(static_cast<double>(v)); },
        [](std::int32_t& v, const std::string& s) { v = parseLong(s); });
}

VarBinding table(std::vector<double>& t, int first)
{
    return makeTable(t, first, [](double v) { return Variant(v); },
        [](double& v, const std::string& s) { v = Val(s); });
}

VarBinding table(std::vector<std::string>& t, int first)
{
    return makeTable(t, first, [](const std::string& v) { return Variant(v); },
        [](std::string& v, const std::string& s) { v = s; });
}

VarBinding table(std::vector<Variant>& t, int first)
{
    return makeTable(t, first, [](const Variant& v) { return v; },
        [](Variant& v, const std::string& s) { v = parseVariant(s); });
}

VarBinding table(std::vector<double>& t, std::vector<bool>& written, int first)
{
    VarBinding b = table(t, first);
    b.get = [&t, &written, first](int i) {
        const auto at = static_cast<size_t>(i - first);
        return written[at] ? Variant(t[at]) : Variant();
    };
    b.set = [&t, &written, first](int i, const std::string& s) {
        const auto at = static_cast<size_t>(i - first);
        t[at] = Val(s);
        written[at] = true;
    };
    return b;
}

}  // namespace bind

std::string printedValue(const Variant& value)
{
    switch (value.kind()) {
    case Variant::Kind::Empty:
        return {};
    case Variant::Kind::Boolean:
        return value.number() != 0 ? "True" : "False";
    case Variant::Kind::Number:
        return ShortestNumber(value.number());
    case Variant::Kind::String:
        return value.string();
    }
    return {};
}

}  // namespace vistrel
