// The simulator against a pseudo-terminal whose far end the test holds, as
// the station would: messages arrive whole and in chunks, the Canon waits
// for each ACK, the Marco Nidek for the request.

#include "DevsimKit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

using namespace devsim_test;

namespace {

const std::string ack = "\x06";
const std::string request = std::string("\x01") + "CRM" + "\x02" + "SD" + "\x17" + "\x04" + "\r";

// A Topcon message of 74 bytes.
const std::string topconMessage =
    "KR-3000 ID 0042\r\nR  -1.25  -0.50  90  R1\r\nL  -2.00  -0.75 180  L1\r\nPD 64\r\n";

QStringList lineArgs(const StationEnd& station, const ExampleFolder& data, const QString& model)
{
    return {"--model", model, "--port", station.devicePath(), "--data", data.rootArg(), "--interval", "0"};
}

std::vector<std::string> canonLines(const std::string& eye)
{
    return {"CANON RK-2\r", "VD: 12.00\r", "SPH  CYL  AX\r", eye + "  -1.25 -0.50  90\r", "END\r"};
}

void addCanon(const ExampleFolder& data, const std::string& name, const std::vector<std::string>& lines,
    const std::string& expected)
{
    for (size_t i = 0; i < lines.size(); ++i)
        data.add("canon-rk2", name + "." + std::to_string(i + 1) + ".msg", lines[i]);
    data.add("canon-rk2", name + ".expected", expected);
}

std::chrono::milliseconds longestGap(const std::vector<Arrival>& arrivals)
{
    std::chrono::milliseconds longest{0};
    for (size_t i = 1; i < arrivals.size(); ++i)
        longest = std::max(longest,
            std::chrono::duration_cast<std::chrono::milliseconds>(arrivals[i].at - arrivals[i - 1].at));
    return longest;
}

}  // namespace

TEST(Dialogue, OneShotMessageArrivesWholeInChunksWithoutLongPauses)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    data.add("topcon", "both-eyes.msg", topconMessage);
    data.add("topcon", "both-eyes.expected", "left=-2.00|-0.75|180\nright=-1.25|-0.50|90\ncheck=OK\n");

    Simulator sim(lineArgs(station, data, "topcon") << "--chunk" << "4" << "--chunk-gap" << "10");
    const std::vector<Arrival> got = station.receive(topconMessage.size(), 15s);
    EXPECT_EQ(joined(got), topconMessage);
    ASSERT_FALSE(got.empty());
    // Nineteen writes 10 ms apart: many reads, spread over the message, and
    // never a pause that the station would take for the end.
    EXPECT_GE(got.size(), 5u);
    EXPECT_GE(got.back().at - got.front().at, 150ms);
    EXPECT_LT(longestGap(got), 150ms);
    EXPECT_EQ(sim.finish(), 0) << sim.err();
    EXPECT_NE(sim.out().find("expected: right -1.25 -0.50 x 90, left -2.00 -0.75 x 180"),
        std::string::npos) << sim.out();
}

TEST(Dialogue, OnlyExamplesMeantToPassUnlessAskedAndRepeatPlaysThemAgain)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    data.add("retinomax2", "a-good.msg", "GOOD\r");
    data.add("retinomax2", "a-good.expected", "check=OK\n");
    data.add("retinomax2", "b-refused.msg", "REFUSED\r");
    data.add("retinomax2", "b-refused.expected", "check=ENTRY ERROR\n");
    data.add("retinomax2", "c-unknown.msg", "UNKNOWN\r");

    {
        Simulator sim(lineArgs(station, data, "retinomax2") << "--repeat" << "2" << "--chunk" << "0");
        EXPECT_EQ(sim.finish(), 0) << sim.err();
        EXPECT_EQ(station.receiveFor(300ms), "GOOD\rGOOD\r");
    }
    {
        Simulator sim(lineArgs(station, data, "retinomax2") << "--all-cases");
        EXPECT_EQ(sim.finish(), 0) << sim.err();
        EXPECT_EQ(station.receiveFor(300ms), "GOOD\rREFUSED\rUNKNOWN\r");
    }
    {
        Simulator sim(lineArgs(station, data, "retinomax2") << "--case" << "b-refused");
        EXPECT_EQ(sim.finish(), 0) << sim.err();
        EXPECT_EQ(station.receiveFor(300ms), "REFUSED\r");
        EXPECT_NE(sim.out().find("the station should refuse it: ENTRY ERROR"), std::string::npos) << sim.out();
    }
}

TEST(Dialogue, CanonSendsEachLineOnlyAfterTheAck)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    const std::vector<std::string> lines = canonLines("R");
    addCanon(data, "right-eye", lines, "right=-1.25|-0.50|90\nreplies=\\x06\\x06\\x06\\x06\ncheck=OK\n");

    Simulator sim(lineArgs(station, data, "canon-rk2") << "--reply-timeout" << "10");
    for (size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(joined(station.receive(lines[i].size(), 10s)), lines[i]) << "line " << i + 1;
        // Nothing more until the station answers.
        EXPECT_EQ(station.receiveFor(500ms), "") << "after line " << i + 1;
        if (i + 1 < lines.size())
            station.send(ack);
    }
    EXPECT_EQ(sim.finish(), 0) << sim.err();
    EXPECT_NE(sim.out().find("line 4 of 5 sent, ACK after"), std::string::npos) << sim.out();
}

TEST(Dialogue, CanonWithoutAckSaysSoAndGoesOnWithTheNextExample)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    addCanon(data, "a-unanswered", canonLines("R"), "check=OK\n");
    addCanon(data, "b-next", {"CANON RK-2\r", "END\r"}, "check=OK\n");

    Simulator sim(lineArgs(station, data, "canon-rk2") << "--reply-timeout" << "1" << "--chunk" << "0");
    EXPECT_EQ(joined(station.receive(11, 5s)), "CANON RK-2\r");
    // No ACK: after the time-out the device gives the reading up, and the
    // next example begins.
    const Clock::time_point asked = Clock::now();
    EXPECT_EQ(joined(station.receive(11, 10s)), "CANON RK-2\r");
    EXPECT_GE(Clock::now() - asked, 800ms);
    station.send(ack);
    EXPECT_EQ(joined(station.receive(4, 10s)), "END\r");

    EXPECT_EQ(sim.finish(), 3);
    EXPECT_NE(sim.err().find("no ACK from the station within 1 s after line 1 of 5 of example \"a-unanswered\""),
        std::string::npos) << sim.err();
    EXPECT_EQ(sim.err().find("b-next"), std::string::npos) << sim.err();
}

TEST(Dialogue, ACanonLineTheStationIsMeantNotToAnswerIsNoProblem)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    addCanon(data, "garbled", {"CANON RK-2\r", "R  -1.2#  ?\r", "END\r"}, "replies=\\x06\ncheck=ENTRY ERROR\n");

    Simulator sim(lineArgs(station, data, "canon-rk2") << "--all-cases" << "--reply-timeout" << "1");
    EXPECT_EQ(joined(station.receive(11, 5s)), "CANON RK-2\r");
    station.send(ack);
    EXPECT_EQ(joined(station.receive(12, 5s)), "R  -1.2#  ?\r");
    EXPECT_EQ(sim.finish(), 0) << sim.err();
    EXPECT_EQ(station.receiveFor(200ms), "") << "the device stops at the unanswered line";
    EXPECT_NE(sim.out().find("as the example expects"), std::string::npos) << sim.out();
}

TEST(Dialogue, MarcoNidekSendsTheResultOnlyAfterTheRequest)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    const std::string announcement = "\x01" "C**" "\x02" "\x17\x04\r";
    const std::string result = "\x01" "DRM" "\x02" "OR-01.25-00.50090OL-02.00-00.75180NO0042" "\x17\x04\r";
    data.add("marco-nidek", "both.1.msg", announcement);
    data.add("marco-nidek", "both.2.msg", result);
    data.add("marco-nidek", "both.expected", "check=OK\n");

    Simulator sim(lineArgs(station, data, "marco-nidek") << "--reply-timeout" << "10" << "--verbose");
    EXPECT_EQ(joined(station.receive(announcement.size(), 10s)), announcement);
    EXPECT_EQ(station.receiveFor(600ms), "");
    // An ACK is not the request, and half a request is not one either.
    station.send(ack);
    station.send(request.substr(0, 4));
    EXPECT_EQ(station.receiveFor(600ms), "");
    station.send(request.substr(4));
    EXPECT_EQ(joined(station.receive(result.size(), 10s)), result);
    EXPECT_EQ(sim.finish(), 0) << sim.err();
    EXPECT_NE(sim.out().find("CRM"), std::string::npos) << sim.out();
    EXPECT_NE(sim.out().find("-> \\x01DRM\\x02OR-01.25"), std::string::npos) << sim.out();
}

TEST(Dialogue, MarcoNidekStationAnsweringOtherThanExpectedIsReported)
{
    StationEnd station;
    ASSERT_TRUE(station.ok());
    ExampleFolder data;
    data.add("marco-nidek", "x.1.msg", "C**\r");
    data.add("marco-nidek", "x.2.msg", "DRM\r");
    data.add("marco-nidek", "x.expected", "replies=\\x01CRM\\x02SD\\x17\\x04\\r\ncheck=OK\n");

    Simulator sim(lineArgs(station, data, "marco-nidek") << "--reply-timeout" << "10" << "--interval" << "1");
    EXPECT_EQ(joined(station.receive(4, 10s)), "C**\r");
    station.send(request);
    EXPECT_EQ(joined(station.receive(4, 10s)), "DRM\r");
    station.send(request);  // a second request nobody asked for
    EXPECT_EQ(sim.finish(), 3);
    EXPECT_NE(sim.err().find("the example expects \"\\x01CRM"), std::string::npos) << sim.err();
}

TEST(Dialogue, OwnPseudoTerminalWaitsForTheStationToOpenIt)
{
    ExampleFolder data;
    const std::string message = "R S  -1.25  C  -0.50  A  90\r";
    data.add("shin-nippon", "r.msg", message);
    data.add("shin-nippon", "r.expected", "check=OK\n");

    Simulator sim({"--model", "shin-nippon", "--pty", "--data", data.rootArg(), "--interval", "0", "--quiet"});
    const std::string path = sim.firstLine();
    ASSERT_EQ(path.rfind("/dev/", 0), 0u) << path;
    std::this_thread::sleep_for(500ms);

    StationOpening opened(path);
    ASSERT_TRUE(opened.ok()) << path;
    const Clock::time_point open = Clock::now();
    const std::vector<Arrival> got = opened.receive(message.size(), 10s);
    EXPECT_EQ(joined(got), message);
    ASSERT_FALSE(got.empty());
    // Sent after the station opened its end, not into the void before.
    EXPECT_GE(got.front().at - open, 200ms);
    EXPECT_EQ(sim.finish(), 0) << sim.err();
    EXPECT_EQ(sim.out(), path + "\n");
}
