#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel::script {

// What a statement names: Form.Name, Form.Name(Index), and for print also a
// property, Form.Name(Index).Property or .Property(a,b). `text` is the
// target as written, which print echoes.
struct TargetRef {
    std::string text;
    std::string form;
    std::string name;
    std::optional<int> index;
    std::string property;  // empty when none
    std::vector<int> propertyArgs;
    bool propertyHasArgs = false;
};

// Parses a target; a property is accepted only with allowProperty. Blanks
// are allowed inside the parentheses. Throws ScriptError.
TargetRef parseTarget(std::string_view text, bool allowProperty);

}  // namespace vistrel::script
