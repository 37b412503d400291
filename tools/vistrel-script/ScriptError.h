#pragma once

#include <stdexcept>
#include <string>

namespace vistrel::script {

// A statement that can't be carried out: bad syntax, or a name that the
// station doesn't know. The driver reports it with the line number.
class ScriptError : public std::runtime_error {
public:
    explicit ScriptError(const std::string& why) : std::runtime_error(why) {}
};

}  // namespace vistrel::script
