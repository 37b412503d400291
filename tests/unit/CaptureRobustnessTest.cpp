// Anything at all on the serial line, for every device model: the capture
// screen takes it in, processes it once the line is quiet, never fails, and
// never hands the main screen a reading that didn't pass the check.

#include "FakePlatform.h"
#include "StationNoise.h"

#include "autorefractor/Frm_Autorefractor.h"
#include "core/Frm_Vistrel.h"
#include "core/Numbers.h"
#include "core/Station.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using test::FakePlatform;
using test::Noise;
using test::ProcessEnded;
using test::readFile;
using test::TempDir;
using test::wellFormedRecord;
using test::writeFile;

// A line that delivers what the test puts on it and keeps what the station
// answers.
class TestLine : public SerialPort {
public:
    void receive(const std::string& bytes)
    {
        pending_ += bytes;
        deliverReceived();
    }
    std::string replies;

protected:
    bool openPort() override { return open_ = true; }
    void closePort() override { open_ = false; }
    bool isOpen() const override { return open_; }
    std::string readAll() override
    {
        std::string all;
        all.swap(pending_);
        return all;
    }
    void write(const std::string& text) override { replies += text; }

private:
    bool open_ = false;
    std::string pending_;
};

class LinePlatform : public FakePlatform {
public:
    using FakePlatform::FakePlatform;
    SerialPort& serialPort() override { return line; }
    TestLine line;
};

const std::vector<std::string> DeviceTypes = {"NIKON RETINOMAX3", "NIKON RETINOMAX2", "NIKON RETINOMAX",
    "BURTON VELO 20-10", "SHIN NIPPON 8001", "REICHERT RK600", "HUMPHREY 597", "WELCHALLYN SURESIGHT",
    "MARCONIDEK ARK-20/30", "TOPCON KR-3000-7000", "CANON RK-2", "NONE"};

// Every golden message of the devices, as seeds for mutation.
std::vector<std::string> goldenMessages()
{
    std::vector<std::string> messages;
    std::error_code ec;
    for (std::filesystem::recursive_directory_iterator it(VISTREL_TEST_DATA "/autorefractor", ec), end;
         !ec && it != end; it.increment(ec))
        if (it->path().extension() == ".msg")
            messages.push_back(readFile(it->path()));
    return messages;
}

class CaptureNoise : public testing::Test {
protected:
    void SetUp() override
    {
        std::string inventory;
        for (int bag = 1; bag <= 20; ++bag)
            inventory += wellFormedRecord(bag);
        writeFile(platform.inventoryFile(), inventory);
        writeFile(platform.optionsFile(),
            "DEFAULT,BOTH-EQUALLY,NONE,YES,NO,NO,YES,NONE,1,YES,0,37,0.00,38,43,1.00,44,47,1.50,48,55,2.00,56,99,"
            "2.50,100,101,2.50,102,103,2.50,104,105,2.50,NO,NO,NO,YES,NO,NO,35,NO,NO,YES,NO,C:\\NetworkJournal,0,"
            "Default,1,32000\r\n");
        station = std::make_unique<Station>(platform);
        station->start();
    }

    // Ticks until the capture screen has processed what came, or a bound.
    void tickUntilQuiet(Frm_Autorefractor& capture)
    {
        for (int tick = 0; tick < 60 && capture.LastBufferSize.number() != 0; ++tick)
            capture.Tmr_CountDataFlow.fire();
        EXPECT_EQ(capture.LastBufferSize.number(), 0) << "the message was never processed";
        EXPECT_TRUE(capture.buffer.empty());
    }

    TempDir dir;
    LinePlatform platform{dir.path()};
    std::unique_ptr<Station> station;
};

TEST_F(CaptureNoise, AnyBytesOnTheLineForEveryModel)
{
    const std::vector<std::string> golden = goldenMessages();
    Frm_Vistrel& v = station->vistrel();
    Frm_Autorefractor& capture = station->autorefractor();
    Noise noise(7);
    int passed = 0, refused = 0;
    for (const std::string& type : DeviceTypes) {
        v.AutoRefractorType = type;
        for (int round = 0; round < 40; ++round) {
            std::string message;
            if (!golden.empty() && noise.chance(70)) {
                // A real message cut, doubled, or with bytes changed.
                message = noise.pick(golden);
                const int damage = noise.below(4);
                if (damage == 0 && !message.empty())
                    message.resize(static_cast<size_t>(noise.below(static_cast<int>(message.size()))));
                else if (damage == 1)
                    message += noise.pick(golden);
                else if (damage == 2)
                    for (int k = 0; k < 3 && !message.empty(); ++k)
                        message[static_cast<size_t>(noise.below(static_cast<int>(message.size())))] =
                            static_cast<char>(noise.below(256));
            } else {
                message = noise.chance(50) ? noise.bytes(noise.size(2048)) : noise.delimiters(noise.size(512));
            }
            SCOPED_TRACE(testing::Message() << type << " round " << round << ": " << message.size() << " bytes");

            const std::string leftBefore = v.Txt_Sphere_Left.text();
            // Delivered in pieces, a tick or none between them.
            for (size_t at = 0; at < message.size();) {
                const size_t piece = 1 + static_cast<size_t>(noise.below(64));
                platform.line.receive(message.substr(at, piece));
                at += piece;
                if (noise.chance(30))
                    capture.Tmr_CountDataFlow.fire();
            }
            if (message.empty())
                platform.line.receive("?");
            try {
                tickUntilQuiet(capture);
            } catch (const ProcessEnded&) {
                FAIL() << "the station ended over a message";
            }
            if (capture.Lbl_ErrorStatus.caption().find("OK") != std::string::npos && !capture.EntryError) {
                ++passed;
            } else {
                ++refused;
                EXPECT_EQ(v.Txt_Sphere_Left.text(), leftBefore) << "a refused reading reached the main screen";
            }
            for (int i = 0; i <= 1; ++i)
                EXPECT_LE(capture.Txt_AutoSphere[i].text().size(), message.size() + 8);
            if (HasFailure())
                return;
        }
    }
    EXPECT_GT(refused, 0);
    if (!golden.empty())
        EXPECT_GT(passed, 0) << "no damaged message still decoded: the seeds didn't reach the decoders";

    // Every reading left one whole line in the readings file.
    const std::string readings =
        readFile(platform.inventoryFile().parent_path() / "AutoRefractorReadings.txt");
    EXPECT_FALSE(readings.empty());
    EXPECT_EQ(readings.substr(readings.size() - 2), "\r\n");
}

// ---- Every example message through the capture screen ----

struct ExampleCase {
    std::string type;
    std::vector<std::string> transmissions;
    std::string left, right, reading, replies, check;
};

std::string unescape(const std::string& text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 >= text.size()) {
            out += text[i];
            continue;
        }
        const char c = text[++i];
        if (c == 'r')
            out += '\r';
        else if (c == 'n')
            out += '\n';
        else if (c == 'x' && i + 2 < text.size() + 1) {
            out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else
            out += c;
    }
    return out;
}

std::vector<ExampleCase> exampleCases()
{
    const std::pair<const char*, const char*> folders[] = {{"retinomax", "NIKON RETINOMAX"},
        {"retinomax2", "NIKON RETINOMAX2"}, {"retinomax3", "NIKON RETINOMAX3"}, {"topcon", "TOPCON KR-3000-7000"},
        {"burton-velo", "BURTON VELO 20-10"}, {"shin-nippon", "SHIN NIPPON 8001"},
        {"reichert-rk600", "REICHERT RK600"}, {"humphrey-597", "HUMPHREY 597"},
        {"suresight", "WELCHALLYN SURESIGHT"}, {"marco-nidek", "MARCONIDEK ARK-20/30"},
        {"canon-rk2", "CANON RK-2"}};
    std::vector<ExampleCase> cases;
    for (const auto& [folder, type] : folders) {
        const std::filesystem::path dir = std::filesystem::path(VISTREL_TEST_DATA "/autorefractor") / folder;
        std::error_code ec;
        for (std::filesystem::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
            if (it->path().extension() != ".expected")
                continue;
            ExampleCase c;
            c.type = type;
            const std::string stem = it->path().stem().string();
            if (std::filesystem::exists(dir / (stem + ".msg")))
                c.transmissions.push_back(readFile(dir / (stem + ".msg")));
            for (int n = 1; std::filesystem::exists(dir / (stem + "." + std::to_string(n) + ".msg")); ++n)
                c.transmissions.push_back(readFile(dir / (stem + "." + std::to_string(n) + ".msg")));
            std::ifstream in(it->path());
            for (std::string line; std::getline(in, line);) {
                const auto eq = line.find('=');
                const std::string key = line.substr(0, eq), value = eq == std::string::npos ? "" : line.substr(eq + 1);
                if (key == "left")
                    c.left = value;
                else if (key == "right")
                    c.right = value;
                else if (key == "replies")
                    c.replies = unescape(value);
                else if (key == "check")
                    c.check = value;
            }
            cases.push_back(std::move(c));
        }
    }
    return cases;
}

std::string eyeOf(TextBox& sphere, TextBox& cylinder, TextBox& axis)
{
    return sphere.text() + "|" + cylinder.text() + "|" + axis.text();
}

// The capture screen as a whole over each example: the answers on the line,
// the verdict on the label, and what reaches the main screen.
TEST_F(CaptureNoise, EveryExampleMessageEndToEnd)
{
    const std::vector<ExampleCase> cases = exampleCases();
    ASSERT_GT(cases.size(), 50U);
    Frm_Vistrel& v = station->vistrel();
    Frm_Autorefractor& capture = station->autorefractor();
    for (const ExampleCase& c : cases) {
        SCOPED_TRACE(c.type + ": " + c.left + " / " + c.right);
        v.AutoRefractorType = c.type;
        for (int i = 0; i <= 1; ++i) {
            capture.Txt_AutoSphere[i].setText("");
            capture.Txt_AutoCylinder[i].setText("");
            capture.Txt_AutoAxis[i].setText("");
        }
        v.Txt_Sphere_Left.setText("unchanged");
        platform.line.replies.clear();
        for (const std::string& transmission : c.transmissions) {
            platform.line.receive(transmission);
            tickUntilQuiet(capture);
        }
        EXPECT_EQ(platform.line.replies, c.replies);
        const std::string label = capture.Lbl_ErrorStatus.caption();
        if (c.check == "OK") {
            EXPECT_NE(label.find("OK"), std::string::npos);
            // An axis of 180 comes over as 0.
            auto moved = [](std::string eye) {
                const auto bar = eye.rfind('|');
                if (Val(eye.substr(bar + 1)) == 180)
                    eye = eye.substr(0, bar + 1) + "0";
                return eye;
            };
            EXPECT_EQ(eyeOf(v.Txt_Sphere_Left, v.Txt_Cylinder_Left, v.Txt_Axis_Left), moved(c.left));
            EXPECT_EQ(eyeOf(v.Txt_Sphere_Right, v.Txt_Cylinder_Right, v.Txt_Axis_Right), moved(c.right));
        } else {
            EXPECT_EQ(v.Txt_Sphere_Left.text(), "unchanged") << "a refused reading reached the main screen";
            EXPECT_TRUE(capture.EntryError);
            if (c.check == "RK600 PARTIAL")
                EXPECT_EQ(label, "RK600 Partial Data Detected.");
        }
        if (HasFailure())
            return;
    }
}

// A device type the station has no decoder for ends the program with its
// box at the first message, as an options file with it would have.
TEST_F(CaptureNoise, AnUnknownModelEndsTheProgramWithItsBox)
{
    station->vistrel().AutoRefractorType = "NIKON RETINOMAX 4";
    platform.line.receive("R -1.25 -0.50 90\r\n");
    Frm_Autorefractor& capture = station->autorefractor();
    EXPECT_THROW(
        for (int tick = 0; tick < 10; ++tick) capture.Tmr_CountDataFlow.fire(), ProcessEnded);
    ASSERT_FALSE(platform.boxes.empty());
    EXPECT_EQ(platform.boxes.back().title, "Options File Error!");
}

}  // namespace
}  // namespace vistrel
