// The simulator's command line: what it refuses, with a usage message and
// exit status 2, and what it can't do, with status 1.

#include "DevsimKit.h"
#include "SimOptions.h"

#include <gtest/gtest.h>

using namespace vistrel::devsim;
using namespace devsim_test;

TEST(CommandLine, WrongCommandLinesGiveTheUsageAndStatusTwo)
{
    const std::vector<QStringList> wrong{
        {},
        {"--pty"},
        {"--model", "canon"},
        {"--model", "topcon"},
        {"--model", "topcon", "--port", "/dev/ttyS0", "--pty"},
        {"--model", "topcon", "--pty", "--settings", "9600,x,8,1"},
        {"--model", "topcon", "--pty", "--chunk-gap", "151"},
        {"--model", "topcon", "--pty", "--interval", "-1"},
        {"--model", "topcon", "--pty", "--reply-timeout", "0"},
        {"--model", "topcon", "--pty", "--repeat", "twice"},
        {"--model", "topcon", "--pty", "--repeat"},
        {"--model", "topcon", "--pty", "--quiet", "--verbose"},
        {"--model", "topcon", "--pty", "--interactive=yes"},
        {"--model", "topcon", "--pty", "--bogus"},
        {"--model", "topcon", "--pty", "stray"},
    };
    for (const QStringList& args : wrong) {
        const SimRun run = runSimulator(args);
        const std::string shown = args.join(' ').toStdString();
        EXPECT_EQ(run.exitCode, 2) << shown;
        EXPECT_NE(run.err.find("usage: vistrel-devsim"), std::string::npos) << shown << "\n" << run.err;
        EXPECT_TRUE(run.out.empty()) << shown;
    }
}

TEST(CommandLine, TheReasonComesFirst)
{
    const SimRun run = runSimulator({"--model", "canon", "--pty"});
    EXPECT_EQ(run.err.rfind("vistrel-devsim: no model \"canon\"", 0), 0u) << run.err;
    EXPECT_NE(run.err.find("canon-rk2"), std::string::npos) << run.err;
}

TEST(CommandLine, HelpNamesEveryOptionAndListModelsEveryModel)
{
    const SimRun help = runSimulator({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    for (const char* option : {"--model", "--port", "--pty", "--settings", "--data", "--case", "--all-cases",
             "--list-cases", "--list-models", "--repeat", "--interval", "--interactive", "--chunk", "--chunk-gap",
             "--reply-timeout", "--quiet", "--verbose", "VISTREL_COM1"})
        EXPECT_NE(help.out.find(option), std::string::npos) << option;

    const SimRun list = runSimulator({"--list-models"});
    EXPECT_EQ(list.exitCode, 0);
    for (const DeviceModel& m : deviceModels()) {
        EXPECT_NE(list.out.find(std::string(m.folder) + ' '), std::string::npos) << m.folder;
        EXPECT_NE(list.out.find(std::string(m.settings)), std::string::npos) << m.folder;
    }
}

TEST(CommandLine, OptionsTakeTheirValuesInEitherForm)
{
    const SimOptions o = parseSimOptions({"--model=marco-nidek", "--port", "COM3", "--settings=4800,e,7,2",
        "--case", "a", "--case=b", "--interval", "0.5", "--chunk-gap=150", "--chunk", "0", "--repeat", "0", "-v"});
    ASSERT_TRUE(o.model);
    EXPECT_EQ(o.model->folder, "marco-nidek");
    EXPECT_EQ(o.port, std::optional<std::string>("COM3"));
    EXPECT_EQ(formatLineSettings(*o.settings), "4800,e,7,2");
    EXPECT_EQ(o.cases, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(o.interval, std::optional<std::chrono::milliseconds>(500));
    EXPECT_EQ(o.chunkGap.count(), 150);
    EXPECT_EQ(o.chunkBytes, 0);
    EXPECT_EQ(o.repeat, 0);
    EXPECT_EQ(o.verbosity, Verbosity::Verbose);

    // Listing needs no port.
    EXPECT_TRUE(parseSimOptions({"--model", "topcon", "--list-cases"}).listCases);
}

TEST(CommandLine, UnknownExampleIsAUsageErrorAndMissingDataOrPortAreNot)
{
    ExampleFolder data;
    data.add("topcon", "plano.msg", "R  0.00 0.00 0\r");
    data.add("topcon", "plano.expected", "check=OK\n");

    const SimRun unknown = runSimulator({"--model", "topcon", "--port", "/dev/null", "--data", data.rootArg(),
        "--case", "astigmatic"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_NE(unknown.err.find("there are plano"), std::string::npos) << unknown.err;

    const SimRun noData = runSimulator({"--model", "canon-rk2", "--port", "/dev/null", "--data", data.rootArg()});
    EXPECT_EQ(noData.exitCode, 1);
    EXPECT_NE(noData.err.find("no examples for canon-rk2"), std::string::npos) << noData.err;

    const SimRun noPort = runSimulator({"--model", "topcon", "--port", "/no/such/port", "--data", data.rootArg()});
    EXPECT_EQ(noPort.exitCode, 1);
    EXPECT_NE(noPort.err.find("cannot open /no/such/port"), std::string::npos) << noPort.err;

    const SimRun listed = runSimulator({"--model", "topcon", "--list-cases", "--data", data.rootArg()});
    EXPECT_EQ(listed.exitCode, 0);
    EXPECT_NE(listed.out.find("plano  1 transmission, check OK"), std::string::npos) << listed.out;
}
