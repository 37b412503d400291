#include "JustifyField.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace vistrel {

std::string JustifyField(const Variant& value, std::string_view formatText, int fieldSize, std::string_view justify)
{
    const std::string formatted = value.kind() == Variant::Kind::String ? FormatText(value.string(), formatText)
                                                                        : Format(value.number(), formatText);
    std::string text = Trim(formatted);
    const size_t width = fieldSize < 1 ? 1 : static_cast<size_t>(fieldSize);
    if (text.size() >= width)
        return text;
    const std::string blanks(width - text.size(), ' ');
    return UCaseEquals(justify, "RIGHT") ? blanks + text : text + blanks;
}

}  // namespace vistrel
