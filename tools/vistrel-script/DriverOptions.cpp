#include "DriverOptions.h"

#include "ScriptPlatform.h"

#include <stdexcept>

namespace vistrel::script {

namespace {

std::optional<std::string> nonEmpty(const Environment& env, const std::string& name)
{
    std::optional<std::string> v = env ? env(name) : std::nullopt;
    if (v && v->empty())
        return std::nullopt;
    return v;
}

std::string home(const Environment& env)
{
    return nonEmpty(env, "HOME").value_or(".");
}

}  // namespace

DriverOptions parseDriverOptions(const std::vector<std::string>& args)
{
    DriverOptions o;
    bool haveScript = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const auto valueOf = [&]() -> const std::string& {
            if (i + 1 >= args.size())
                throw std::invalid_argument(a + " needs a value");
            return args[++i];
        };
        if (a == "--documents")
            o.documents = valueOf();
        else if (a == "--shared")
            o.shared = valueOf();
        else if (a == "--print-to")
            o.printTo = valueOf();
        else if (a == "--now") {
            const std::string& text = valueOf();
            o.now = parseDateTime(text);
            if (!o.now)
                throw std::invalid_argument("--now wants \"YYYY-MM-DD HH:MM:SS\", not \"" + text + "\"");
        } else if (a.size() > 1 && a[0] == '-' && a != "-")
            throw std::invalid_argument("unknown option " + a);
        else if (haveScript)
            throw std::invalid_argument("only one script, please: " + a);
        else {
            o.script = a;
            haveScript = true;
        }
    }
    if (!haveScript)
        throw std::invalid_argument("no script given");
    return o;
}

std::string defaultDocumentsFolder(const Environment& env)
{
    if (auto v = nonEmpty(env, "VISTREL_DOCUMENTS"))
        return *v;
    if (auto v = nonEmpty(env, "XDG_DOCUMENTS_DIR"))
        return *v;
#ifdef _WIN32
    // Windows names the user's profile; HOME is there only under a POSIX shell.
    if (!nonEmpty(env, "HOME"))
        if (auto v = nonEmpty(env, "USERPROFILE"))
            return *v + "\\Documents";
#endif
    return home(env) + "/Documents";
}

std::string defaultSharedFolder(const Environment& env)
{
    if (auto v = nonEmpty(env, "VISTREL_SHARED"))
        return *v;
    if (auto v = nonEmpty(env, "XDG_DATA_HOME"))
        return *v + "/vistrel";
#ifdef _WIN32
    // Where the window program keeps it there too.
    if (!nonEmpty(env, "HOME"))
        if (auto v = nonEmpty(env, "LOCALAPPDATA"))
            return *v + "\\vistrel";
#endif
    return home(env) + "/.local/share/vistrel";
}

}  // namespace vistrel::script
