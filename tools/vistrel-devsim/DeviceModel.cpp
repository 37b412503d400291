#include "DeviceModel.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace vistrel::devsim {

namespace {

constexpr std::array<DeviceModel, 11> models{{
    {"retinomax", "Nikon Retinomax", "NIKON RETINOMAX", "1200,n,8,2", 10, Dialogue::None},
    {"retinomax2", "Nikon Retinomax 2", "NIKON RETINOMAX2", "9600,n,8,1", 10, Dialogue::None},
    {"retinomax3", "Nikon Retinomax 3", "NIKON RETINOMAX3", "9600,n,8,2", 10, Dialogue::None},
    {"topcon", "Topcon KR-3000-7000", "TOPCON KR-3000-7000", "9600,n,7,2", 2, Dialogue::None},
    {"burton-velo", "Burton Velo 20-10", "BURTON VELO 20-10", "9600,n,8,1", 10, Dialogue::None},
    {"shin-nippon", "Shin Nippon 8001", "SHIN NIPPON 8001", "9600,n,8,1", 10, Dialogue::None},
    {"reichert-rk600", "Reichert RK600", "REICHERT RK600", "9600,n,8,1", 0, Dialogue::None},
    {"humphrey-597", "Humphrey 597", "HUMPHREY 597", "9600,n,8,1", 2, Dialogue::None},
    {"suresight", "Welch Allyn Suresight", "WELCHALLYN SURESIGHT", "9600,n,8,1", 10, Dialogue::None},
    {"marco-nidek", "Marco Nidek ARK-20/30", "MARCONIDEK ARK-20/30", "9600,o,8,1", 2, Dialogue::RequestToSend},
    {"canon-rk2", "Canon RK-2", "CANON RK-2", "9600,n,8,1", 2, Dialogue::AcknowledgeLines},
}};

constexpr char requestForResult[] = "\x01" "CRM" "\x02" "SD" "\x17" "\x04" "\r";
constexpr char ack[] = "\x06";

std::string_view trimmed(std::string_view s)
{
    while (!s.empty() && std::isspace(static_cast<unsigned char>(s.front())))
        s.remove_prefix(1);
    while (!s.empty() && std::isspace(static_cast<unsigned char>(s.back())))
        s.remove_suffix(1);
    return s;
}

std::optional<int> wholeNumber(std::string_view s)
{
    int value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (s.empty() || ec != std::errc() || end != s.data() + s.size())
        return std::nullopt;
    return value;
}

}  // namespace

std::span<const DeviceModel> deviceModels()
{
    return models;
}

const DeviceModel* findDeviceModel(std::string_view folder)
{
    const auto it = std::find_if(models.begin(), models.end(),
        [folder](const DeviceModel& m) { return m.folder == folder; });
    return it == models.end() ? nullptr : &*it;
}

std::string_view awaitedReply(Dialogue dialogue)
{
    switch (dialogue) {
    case Dialogue::RequestToSend: return {requestForResult, sizeof requestForResult - 1};
    case Dialogue::AcknowledgeLines: return {ack, sizeof ack - 1};
    case Dialogue::None: break;
    }
    return {};
}

std::string_view awaitedReplyName(Dialogue dialogue)
{
    switch (dialogue) {
    case Dialogue::RequestToSend: return "the request for the result";
    case Dialogue::AcknowledgeLines: return "ACK";
    case Dialogue::None: break;
    }
    return "nothing";
}

std::chrono::milliseconds defaultInterval(const DeviceModel& model)
{
    // Two looks after the last byte, then two seconds for the hand-over;
    // never under three seconds.
    const std::chrono::milliseconds look(200 * std::max(model.quietTicks, 1));
    const std::chrono::milliseconds pause = 2 * look + std::chrono::seconds(2);
    const auto wholeSeconds = std::chrono::ceil<std::chrono::seconds>(pause);
    return std::max<std::chrono::milliseconds>(wholeSeconds, std::chrono::seconds(3));
}

std::optional<LineSettings> parseLineSettings(std::string_view text)
{
    std::array<std::string_view, 4> parts;
    size_t count = 0;
    while (true) {
        const size_t comma = text.find(',');
        if (count == parts.size())
            return std::nullopt;
        parts[count++] = trimmed(text.substr(0, comma));
        if (comma == std::string_view::npos)
            break;
        text.remove_prefix(comma + 1);
    }
    if (count != parts.size())
        return std::nullopt;

    LineSettings s;
    const std::optional<int> baud = wholeNumber(parts[0]);
    if (!baud || *baud < 50 || *baud > 4'000'000)
        return std::nullopt;
    s.baud = *baud;

    if (parts[1].size() != 1)
        return std::nullopt;
    s.parity = static_cast<char>(std::tolower(static_cast<unsigned char>(parts[1][0])));
    if (std::string_view("noems").find(s.parity) == std::string_view::npos)
        return std::nullopt;

    const std::optional<int> bits = wholeNumber(parts[2]);
    if (!bits || *bits < 5 || *bits > 8)
        return std::nullopt;
    s.dataBits = *bits;

    if (parts[3] == "1")
        s.stopBitsTimesTwo = 2;
    else if (parts[3] == "1.5")
        s.stopBitsTimesTwo = 3;
    else if (parts[3] == "2")
        s.stopBitsTimesTwo = 4;
    else
        return std::nullopt;
    return s;
}

std::string formatLineSettings(const LineSettings& s)
{
    const char* stop = s.stopBitsTimesTwo == 3 ? "1.5" : s.stopBitsTimesTwo == 4 ? "2" : "1";
    return std::to_string(s.baud) + ',' + s.parity + ',' + std::to_string(s.dataBits) + ',' + stop;
}

}  // namespace vistrel::devsim
