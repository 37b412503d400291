#include "DriverOptions.h"
#include "ScriptPlatform.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

using namespace vistrel::script;

namespace {

Environment fakeEnvironment(std::map<std::string, std::string> vars)
{
    return [vars](const std::string& name) -> std::optional<std::string> {
        auto it = vars.find(name);
        return it == vars.end() ? std::nullopt : std::optional<std::string>(it->second);
    };
}

}  // namespace

TEST(DriverOptions, ReadsEveryOptionAndTheScript)
{
    const DriverOptions o = parseDriverOptions({"--documents", "/d", "--shared", "/s", "--now",
        "2026-11-21 10:00:05", "--print-to", "/p.txt", "case.vs"});
    EXPECT_EQ(o.documents, "/d");
    EXPECT_EQ(o.shared, "/s");
    EXPECT_EQ(o.printTo, "/p.txt");
    EXPECT_EQ(o.script, "case.vs");
    ASSERT_TRUE(o.now);
    EXPECT_EQ(o.now->year, 2026);
    EXPECT_EQ(o.now->month, 11);
    EXPECT_EQ(o.now->day, 21);
    EXPECT_EQ(o.now->hour, 10);
    EXPECT_EQ(o.now->second, 5);

    EXPECT_EQ(parseDriverOptions({"-"}).script, "-");
    EXPECT_FALSE(parseDriverOptions({"x.vs"}).documents);
}

TEST(DriverOptions, RejectsBadCommandLines)
{
    using Args = std::vector<std::string>;
    for (const Args& bad : {Args{}, Args{"--documents"}, Args{"a.vs", "b.vs"}, Args{"--verbose", "a.vs"},
             Args{"--now", "2026-11-21", "a.vs"}, Args{"--now", "2026-13-01 10:00:00", "a.vs"},
             Args{"--now", "2026-11-21 10:00:00x", "a.vs"}, Args{"--now", "2026-11-21 1:00:000", "a.vs"}})
        EXPECT_THROW(parseDriverOptions(bad), std::invalid_argument);
}

TEST(DriverOptions, FoldersComeFromTheEnvironmentThenTheDesktop)
{
    auto env = fakeEnvironment({{"HOME", "/home/op"}});
    EXPECT_EQ(defaultDocumentsFolder(env), "/home/op/Documents");
    EXPECT_EQ(defaultSharedFolder(env), "/home/op/.local/share/vistrel");

    env = fakeEnvironment({{"HOME", "/home/op"}, {"XDG_DOCUMENTS_DIR", "/docs"}, {"XDG_DATA_HOME", "/data"}});
    EXPECT_EQ(defaultDocumentsFolder(env), "/docs");
    EXPECT_EQ(defaultSharedFolder(env), "/data/vistrel");

    env = fakeEnvironment({{"HOME", "/home/op"}, {"XDG_DATA_HOME", "/data"}, {"VISTREL_DOCUMENTS", "/vd"},
        {"VISTREL_SHARED", "/vs"}});
    EXPECT_EQ(defaultDocumentsFolder(env), "/vd");
    EXPECT_EQ(defaultSharedFolder(env), "/vs");
}
