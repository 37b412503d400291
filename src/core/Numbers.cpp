#include "Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace vistrel {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Length of the number at the start of text (no blanks), 0 when none.
// Sets hasDigits when at least one mantissa digit was seen.
size_t scanNumber(std::string_view text, bool& hasDigits)
{
    size_t i = 0;
    const size_t n = text.size();
    hasDigits = false;
    if (i < n && (text[i] == '+' || text[i] == '-'))
        ++i;
    while (i < n && isDigit(text[i])) {
        ++i;
        hasDigits = true;
    }
    if (i < n && text[i] == '.') {
        ++i;
        while (i < n && isDigit(text[i])) {
            ++i;
            hasDigits = true;
        }
    }
    if (!hasDigits)
        return 0;
    if (i < n && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        size_t j = i + 1;
        if (j < n && (text[j] == '+' || text[j] == '-'))
            ++j;
        if (j < n && isDigit(text[j])) {
            while (j < n && isDigit(text[j]))
                ++j;
            i = j;
        }
    }
    return i;
}

double parseScanned(std::string_view number)
{
    if (!number.empty() && number.front() == '+')
        number.remove_prefix(1);
    if (number.find_first_of("dD") == std::string_view::npos) {
        double v = 0;
        const auto res = std::from_chars(number.data(), number.data() + number.size(), v);
        if (res.ec == std::errc() && std::isfinite(v))
            return v;
        if (res.ec == std::errc::result_out_of_range)
            return 0;
    }
    std::string s(number);
    for (char& c : s)
        if (c == 'd' || c == 'D')
            c = 'e';
    if (!s.empty() && s.front() == '+')
        s.erase(0, 1);
    const double v = std::strtod(s.c_str(), nullptr);
    // A number too large for a Double reads as 0, like any other bad number.
    if (!std::isfinite(v))
        return 0;
    return v;
}

// Decimal digits and exponent of |x| with at most fifteen significant digits.
struct Decimal {
    std::string digits;  // no leading zeros, at least one digit
    int exponent = 0;    // value = 0.d1d2d3... * 10^exponent
};

Decimal toDecimal(double x)
{
    Decimal d;
    x = std::fabs(x);
    if (x == 0) {
        d.digits = "0";
        d.exponent = 1;
        return d;
    }
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", x);  // d.dddddddddddddde±XX
    std::string mant;
    const char* p = buf;
    for (; *p && *p != 'e'; ++p)
        if (isDigit(*p))
            mant.push_back(*p);
    const int exp10 = std::atoi(p + 1);
    while (mant.size() > 1 && mant.back() == '0')
        mant.pop_back();
    d.digits = mant;
    d.exponent = exp10 + 1;
    return d;
}

// The same as toDecimal, quickly, when the shortest text that reads back as
// the number has no more than fifteen digits: rounding the exact value to
// fifteen digits then gives those very digits.
Decimal shortDecimal(double x)
{
    std::array<char, 40> buf{};
    const auto res = std::to_chars(buf.data(), buf.data() + buf.size(), std::fabs(x), std::chars_format::scientific);
    std::string mant;
    const char* p = buf.data();
    for (; p < res.ptr && *p != 'e'; ++p)
        if (isDigit(*p))
            mant.push_back(*p);
    if (mant.size() > 15 || p == res.ptr)
        return toDecimal(x);
    int exp10 = 0;
    std::from_chars(p + 1 + (p[1] == '+' ? 1 : 0), res.ptr, exp10);
    while (mant.size() > 1 && mant.back() == '0')
        mant.pop_back();
    Decimal d;
    d.digits = mant;
    d.exponent = exp10 + 1;
    return d;
}

// The number at the start of text when it has at most fifteen digits and
// no exponent, as nearly every field has: its digits make an exact whole
// number and the power of ten is exact, so the one division rounds
// correctly, as from_chars does. False leaves it to the careful way.
bool quickVal(std::string_view text, double& value)
{
    static constexpr double kPow10[] = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const size_t n = text.size();
    size_t i = 0;
    const bool negative = i < n && text[i] == '-';
    if (i < n && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::uint64_t mantissa = 0;
    int digits = 0, decimals = 0;
    auto take = [&](char c) {
        mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
        return ++digits <= 15;
    };
    for (; i < n && isDigit(text[i]); ++i)
        if (!take(text[i]))
            return false;
    if (i < n && text[i] == '.') {
        for (++i; i < n && isDigit(text[i]); ++i, ++decimals)
            if (!take(text[i]))
                return false;
    }
    if (digits == 0) {
        value = 0;
        return true;
    }
    if (i < n && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D'))
        return false;
    const double magnitude = static_cast<double>(mantissa) / kPow10[decimals];
    value = negative ? -magnitude : magnitude;
    return true;
}

}  // namespace

double Val(std::string_view text)
{
    size_t i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    text.remove_prefix(i);
    if (double quick = 0; quickVal(text, quick))
        return quick;
    bool hasDigits = false;
    const size_t len = scanNumber(text, hasDigits);
    if (len == 0)
        return 0;
    return parseScanned(text.substr(0, len));
}

bool IsNumeric(std::string_view text)
{
    size_t b = 0, e = text.size();
    while (b < e && isBlank(text[b]))
        ++b;
    while (e > b && isBlank(text[e - 1]))
        --e;
    text = text.substr(b, e - b);
    if (text.empty())
        return false;
    bool hasDigits = false;
    const size_t len = scanNumber(text, hasDigits);
    return len == text.size() && hasDigits;
}

std::string FormatText(std::string_view text, std::string_view pattern)
{
    if (!IsNumeric(text))
        return std::string(text);
    return Format(Val(text), pattern);
}

namespace {

// Whole numbers below 10^15, the station's counts and indexes, are just
// their digits: the general way gives the same text for them.
bool isShortWhole(double number)
{
    return std::fabs(number) < 1e15 && number == std::trunc(number);
}

// The digits of a short whole number, with a '-' when negative; gives the end.
char* wholeText(double number, char* out, char* end)
{
    return std::to_chars(out, end, static_cast<long long>(number)).ptr;
}

}  // namespace

std::string StrTrimmed(double number)
{
    if (number == 0 || !std::isfinite(number))
        return "0";
    if (isShortWhole(number)) {
        char buf[24];
        return std::string(buf, wholeText(number, buf, buf + sizeof buf));
    }
    const Decimal d = shortDecimal(number);
    std::string out;
    if (number < 0)
        out.push_back('-');
    const int e = d.exponent;  // value = 0.digits * 10^e
    const int digits = static_cast<int>(d.digits.size());
    if (e > 15 || e < -3) {
        // Scientific form: d.dddE+XX
        out.push_back(d.digits[0]);
        if (digits > 1) {
            out.push_back('.');
            out.append(d.digits, 1, std::string::npos);
        }
        const int shown = e - 1;
        char buf[16];
        std::snprintf(buf, sizeof buf, "E%c%02d", shown < 0 ? '-' : '+', std::abs(shown));
        out += buf;
        return out;
    }
    if (e <= 0) {
        out.push_back('.');
        out.append(static_cast<size_t>(-e), '0');
        out += d.digits;
    } else if (e >= digits) {
        out += d.digits;
        out.append(static_cast<size_t>(e - digits), '0');
    } else {
        out.append(d.digits, 0, static_cast<size_t>(e));
        out.push_back('.');
        out.append(d.digits, static_cast<size_t>(e), std::string::npos);
    }
    return out;
}

std::string Str(double number)
{
    if (isShortWhole(number) && number != 0) {
        char buf[24];
        buf[0] = ' ';
        char* const digits = number < 0 ? buf : buf + 1;
        return std::string(buf, wholeText(number, digits, buf + sizeof buf));
    }
    std::string t = StrTrimmed(number);
    if (t.empty() || t[0] != '-')
        t.insert(t.begin(), ' ');
    return t;
}

namespace {

struct Pattern {
    std::string_view prefix;  // literals before the first placeholder
    std::string_view suffix;  // literals after the last placeholder
    int minIntegerDigits = 0;
    int decimals = 0;
    bool hasPoint = false;
};

Pattern parsePattern(std::string_view p)
{
    // Plain loops: patterns are a few characters long, and this runs for
    // every number of every list row.
    auto isPlaceholder = [](char c) { return c == '0' || c == '#' || c == '.'; };
    Pattern pat;
    size_t first = 0;
    while (first < p.size() && !isPlaceholder(p[first]))
        ++first;
    if (first == p.size()) {
        pat.prefix = p;
        return pat;
    }
    size_t last = p.size() - 1;
    while (!isPlaceholder(p[last]))
        --last;
    pat.prefix = p.substr(0, first);
    pat.suffix = p.substr(last + 1);
    bool afterPoint = false;
    for (size_t i = first; i <= last; ++i) {
        const char c = p[i];
        if (c == '.') {
            afterPoint = true;
            pat.hasPoint = true;
        } else if (c == '0' || c == '#') {
            if (afterPoint)
                ++pat.decimals;
            else if (c == '0')
                ++pat.minIntegerDigits;
        }
    }
    return pat;
}

// Rounds the decimal digits of |x| to 'decimals' places, half away from
// zero, and gives the integer and fraction digits.
// Rounding on the binary value gives the same digits as rounding the
// fifteen-digit decimal value unless the number lies within a hair of a half.
bool roundDecimalQuickly(double x, int decimals, std::string& integerPart, std::string& fraction)
{
    static constexpr double kScale[] = {1, 10, 100, 1000, 10000};
    if (decimals > 4)
        return false;
    const double y = std::fabs(x) * kScale[decimals];
    if (!(y < 1e9))
        return false;
    const double whole = std::floor(y);
    const double frac = y - whole;
    // An exact half (as 2.125 to two places) rounds away from zero; a value
    // only near a half is left to the careful way.
    const bool exactHalf = frac == 0.5 && std::fma(std::fabs(x), kScale[decimals], -y) == 0;
    if (!exactHalf && std::fabs(frac - 0.5) < 1e-6)
        return false;
    auto n = static_cast<long long>(whole) + (frac >= 0.5 ? 1 : 0);
    char buf[32];
    const auto res = std::to_chars(buf, buf + sizeof buf, n);
    std::string digits(buf, res.ptr);
    if (static_cast<int>(digits.size()) <= decimals)
        digits.insert(0, static_cast<size_t>(decimals + 1) - digits.size(), '0');
    integerPart = digits.substr(0, digits.size() - static_cast<size_t>(decimals));
    fraction = digits.substr(digits.size() - static_cast<size_t>(decimals));
    const size_t nz = integerPart.find_first_not_of('0');
    integerPart = nz == std::string::npos ? std::string() : integerPart.substr(nz);
    return true;
}

void roundDecimal(double x, int decimals, std::string& integerPart, std::string& fraction)
{
    if (roundDecimalQuickly(x, decimals, integerPart, fraction))
        return;
    const Decimal d = toDecimal(x);
    // All digits as a string with the point after position 'e'.
    std::string all;
    int pointAt = d.exponent;
    if (pointAt <= 0) {
        all.assign(static_cast<size_t>(1 - pointAt), '0');
        all += d.digits;
        pointAt = 1;
    } else {
        all = d.digits;
        if (static_cast<int>(all.size()) < pointAt)
            all.append(static_cast<size_t>(pointAt - static_cast<int>(all.size())), '0');
    }
    const int keep = pointAt + decimals;
    bool roundUp = false;
    if (static_cast<int>(all.size()) > keep) {
        roundUp = all[static_cast<size_t>(keep)] >= '5';
        all.resize(static_cast<size_t>(keep));
    } else {
        all.append(static_cast<size_t>(keep - static_cast<int>(all.size())), '0');
    }
    if (roundUp) {
        int i = keep - 1;
        for (; i >= 0; --i) {
            if (all[static_cast<size_t>(i)] == '9') {
                all[static_cast<size_t>(i)] = '0';
            } else {
                ++all[static_cast<size_t>(i)];
                break;
            }
        }
        if (i < 0) {
            all.insert(all.begin(), '1');
            ++pointAt;
        }
    }
    integerPart = all.substr(0, static_cast<size_t>(pointAt));
    fraction = all.substr(static_cast<size_t>(pointAt));
    size_t nz = integerPart.find_first_not_of('0');
    integerPart = nz == std::string::npos ? std::string() : integerPart.substr(nz);
}

// The common case without strings in between: a value well inside the
// range of a long long once scaled, and not within a hair of a half.
// Appends to out, and leaves it alone when it gives up.
bool formatQuickly(double number, const Pattern& pat, std::string& out)
{
    static constexpr double kScale[] = {1, 10, 100, 1000, 10000};
    static constexpr long long kPow[] = {1, 10, 100, 1000, 10000};
    if (pat.decimals > 4 || pat.prefix.size() >= 16 || pat.minIntegerDigits >= 16)
        return false;
    const double y = std::fabs(number) * kScale[pat.decimals];
    if (!(y < 1e9))
        return false;
    const double whole = std::floor(y);
    const double frac = y - whole;
    const bool exactHalf = frac == 0.5 && std::fma(std::fabs(number), kScale[pat.decimals], -y) == 0;
    if (!exactHalf && std::fabs(frac - 0.5) < 1e-6)
        return false;
    const long long n = static_cast<long long>(whole) + (frac >= 0.5 ? 1 : 0);
    const long long integerValue = n / kPow[pat.decimals];
    const long long fractionValue = n % kPow[pat.decimals];

    char buf[64];
    char* p = buf;
    for (char c : pat.prefix)
        *p++ = c;
    if (number < 0 && n != 0)
        *p++ = '-';
    char digits[24];
    int count = 0;
    if (integerValue > 0) {
        const auto res = std::to_chars(digits, digits + sizeof digits, integerValue);
        count = static_cast<int>(res.ptr - digits);
    }
    for (int pad = count; pad < pat.minIntegerDigits; ++pad)
        *p++ = '0';
    for (int i = 0; i < count; ++i)
        *p++ = digits[i];
    if (pat.hasPoint) {
        *p++ = '.';
        long long f = fractionValue;
        for (int i = pat.decimals - 1; i >= 0; --i) {
            p[i] = static_cast<char>('0' + f % 10);
            f /= 10;
        }
        p += pat.decimals;
    }
    out.append(buf, p);
    out.append(pat.suffix);
    return true;
}

}  // namespace

void AppendFormat(std::string& out, double number, std::string_view pattern)
{
    const Pattern pat = parsePattern(pattern);
    if (!std::isfinite(number))
        number = 0;
    if (formatQuickly(number, pat, out))
        return;
    std::string integerPart, fraction;
    roundDecimal(number, pat.decimals, integerPart, fraction);
    const bool zero = integerPart.empty() && fraction.find_first_not_of('0') == std::string::npos;
    if (static_cast<int>(integerPart.size()) < pat.minIntegerDigits)
        integerPart.insert(0, static_cast<size_t>(pat.minIntegerDigits) - integerPart.size(), '0');
    out += pat.prefix;
    if (number < 0 && !zero)
        out.push_back('-');
    out += integerPart;
    if (pat.hasPoint) {
        out.push_back('.');
        out += fraction;
    }
    out += pat.suffix;
}

std::string Format(double number, std::string_view pattern)
{
    std::string out;
    AppendFormat(out, number, pattern);
    return out;
}

namespace {

// To the nearest whole number, a half to the even neighbour, as nearbyint
// in the default rounding mode, without a call into the maths library for
// every value of a table: adding 2^52 leaves no bits below the point.
double roundHalfEven(double x)
{
    constexpr double kTwo52 = 4503599627370496.0;
    if (!(std::fabs(x) < kTwo52))
        return std::nearbyint(x);
    return std::copysign((std::fabs(x) + kTwo52) - kTwo52, x);
}

}  // namespace

std::optional<std::int16_t> ToInteger(double number)
{
    if (!std::isfinite(number))
        return std::nullopt;
    const double r = roundHalfEven(number);
    if (r < -32768.0 || r > 32767.0)
        return std::nullopt;
    return static_cast<std::int16_t>(r);
}

std::optional<std::int32_t> ToLong(double number)
{
    if (!std::isfinite(number))
        return std::nullopt;
    const double r = roundHalfEven(number);
    if (r < -2147483648.0 || r > 2147483647.0)
        return std::nullopt;
    return static_cast<std::int32_t>(r);
}

std::int16_t ToIntegerOr(double number, std::int16_t fallback)
{
    return ToInteger(number).value_or(fallback);
}

double Int(double number)
{
    return std::floor(number);
}

std::string ShortestNumber(double number)
{
    if (number == 0)
        return "0";
    std::array<char, 64> buf{};
    auto res = std::to_chars(buf.data(), buf.data() + buf.size(), number);
    std::string s(buf.data(), res.ptr);
    // Plain positional text for ordinary magnitudes.
    if (s.find('e') != std::string::npos && std::fabs(number) < 1e21 && std::fabs(number) >= 1e-7) {
        res = std::to_chars(buf.data(), buf.data() + buf.size(), number, std::chars_format::fixed);
        s.assign(buf.data(), res.ptr);
    }
    return s;
}

}  // namespace vistrel
