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
