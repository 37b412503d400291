#include "MessageText.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace vistrel::autoref {

std::string_view Mid(std::string_view text, Place start, Place length)
{
    const auto size = static_cast<Place>(text.size());
    if (start < 1 || start > size || length <= 0)
        return {};
    const Place available = size - start + 1;
    const Place taken = length < available ? length : available;
    return text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(taken));
}

Place Find(std::string_view text, std::string_view what, Place from)
{
    if (from < 1 || from > static_cast<Place>(text.size()))
        return 0;
    const size_t at = text.find(what, static_cast<size_t>(from - 1));
    return at == std::string_view::npos ? 0 : static_cast<Place>(at) + 1;
}

bool Holds(std::string_view text, std::string_view what)
{
    return text.find(what) != std::string_view::npos;
}

std::string Raw(std::string_view column)
{
    return std::string(column);
}

std::string F2OfNumber(std::string_view column)
{
    return Format(Val(column), "#.00");
}

std::string F2OfText(std::string_view column)
{
    return FormatText(column, "#.00");
}

std::string A0OfNumber(std::string_view column)
{
    return Format(Val(column), "##0");
}

std::string A3OfText(std::string_view column)
{
    return FormatText(column, "###");
}

std::string A3OfNumber(std::string_view column)
{
    return Format(Val(column), "###");
}

std::string NoBlanks(std::string_view text)
{
    return RemoveBlanks(text);
}

std::string CutAtCr(std::string_view text)
{
    return std::string(text.substr(0, text.find('\r')));
}

std::string AxisZeroRule(std::string_view text)
{
    return Val(text) == 0 ? std::string("0") : std::string(text);
}

}  // namespace vistrel::autoref
