#pragma once

#include "Target.h"

#include <optional>
#include <string>
#include <string_view>

namespace vistrel::script {

enum class Command { Start, Set, Check, Select, Click, DblClick, Call, Answer, Stay, Serial, Tick, Print };

// One statement of a script.
struct Statement {
    Command command = Command::Start;
    TargetRef target;                // all but start and serial (stay: the form only)
    std::optional<std::string> value;  // start, set, check, serial
    std::optional<int> number;         // the ROW of click/dblclick, the N of tick
    std::optional<int> column;         // the COL of a grid's click/dblclick
};

// Parses one line; nothing for a blank line or a # comment. Throws
// ScriptError for a line that isn't a statement.
std::optional<Statement> parseStatement(std::string_view line);

}  // namespace vistrel::script
