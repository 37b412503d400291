#pragma once

#include "ScriptParser.h"
#include "TargetResolver.h"

#include <functional>
#include <string>

namespace vistrel::script {

class ScriptPlatform;

// Carries out statements against the station's screens, reached through
// `forms`; `start` runs the station's start-up.
class ScriptRunner {
public:
    ScriptRunner(FormLookup forms, ScriptPlatform& platform, std::function<void()> start);

    // Throws ScriptError when the statement can't be carried out.
    void run(const Statement& statement);

private:
    void set(const Statement& st);
    void click(const Statement& st, bool twice);
    void print(const Statement& st);
    Control& control(const TargetRef& target, const char* what);

    FormLookup forms_;
    ScriptPlatform* platform_;
    std::function<void()> start_;
};

}  // namespace vistrel::script
