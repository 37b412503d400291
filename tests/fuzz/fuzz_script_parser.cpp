// The driver's script language: every line of the input through the
// statement parser, and each statement's target looked up on a started
// station, as print would also describe it. A ScriptError is the answer to
// a bad line; anything else escaping is a fault.

#include "FuzzStation.h"

#include "ScriptError.h"
#include "ScriptParser.h"
#include "StateReader.h"
#include "TargetResolver.h"

namespace {

using namespace vistrel::fuzz;
namespace script = vistrel::script;

void look(const script::Statement& st, const script::FormLookup& forms)
{
    switch (st.command) {
    case script::Command::Start:
    case script::Command::Serial:
        return;
    case script::Command::Stay:
        script::resolveForm(st.target.form, forms);
        return;
    case script::Command::Print:
        script::describeTarget(st.target, script::resolveTarget(st.target, forms));
        return;
    default:
        script::resolveTarget(st.target, forms);
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static StationFixture fixture("script");
    static const script::FormLookup forms = [&station = fixture.started()](const std::string& name) {
        return station.form(name);
    };
    std::string_view rest = bytesOf(data, size);
    while (!rest.empty()) {
        const size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        try {
            if (const auto st = script::parseStatement(line))
                look(*st, forms);
        } catch (const script::ScriptError&) {
        }
    }
    return 0;
}
