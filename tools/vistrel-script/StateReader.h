#pragma once

#include "Target.h"
#include "TargetResolver.h"

#include <string>
#include <vector>

namespace vistrel::script {

// The lines `print` writes for a resolved target: TARGET=<value> with the
// value escaped, one line per row for lists and grids, or
// TARGET.Property=<value> for a named property. Throws ScriptError for a
// property the target doesn't have.
std::vector<std::string> describeTarget(const TargetRef& target, const Resolved& resolved);

}  // namespace vistrel::script
