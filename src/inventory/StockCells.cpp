#include "StockCells.h"

#include "Frm_LensFrames.h"
#include "core/Numbers.h"

#include <array>

namespace vistrel {

namespace {

template <size_t N, typename F>
std::array<std::string, N> texts(F value)
{
    std::array<std::string, N> out;
    for (size_t i = 0; i < N; ++i)
        out[i] = Format(value(static_cast<int>(i)), "0.00");
    return out;
}

template <size_t N>
int indexOf(const std::array<std::string, N>& list, const std::string& text)
{
    for (size_t i = 0; i < N; ++i)
        if (list[i] == text)
            return static_cast<int>(i);
    return -1;
}

const std::array<std::string, 20>& readingPowers()
{
    static const auto list = texts<20>([](int i) { return i * 0.25; });
    return list;
}

// Element r - 1 is row r.
const std::array<std::string, 49>& lensSpheres()
{
    static const auto list = texts<49>([](int i) { return 6.25 - 0.25 * (i + 1); });
    return list;
}

const std::array<std::string, 80>& highLensSpheres()
{
    static const auto list =
        texts<80>([](int i) { return i < 40 ? 16.25 - 0.25 * (i + 1) : -6.25 - 0.25 * (i - 40); });
    return list;
}

const std::array<std::string, 13>& lensCylinders()
{
    static const auto list = texts<13>([](int i) { return i == 0 ? 0.0 : -0.25 * i; });
    return list;
}

int oneBased(int index)
{
    return index < 0 ? -1 : index + 1;
}

}  // namespace

int ReadingCellOf(const std::string& power)
{
    return indexOf(readingPowers(), power);
}

int LensRowOf(const std::string& sphere)
{
    return oneBased(indexOf(lensSpheres(), sphere));
}

int HighLensRowOf(const std::string& sphere)
{
    return oneBased(indexOf(highLensSpheres(), sphere));
}

int LensColumnOf(const std::string& cylinder)
{
    return oneBased(indexOf(lensCylinders(), cylinder));
}

std::string LensSphereText(int grid, int row)
{
    if (grid == 2)
        return row >= 1 && row <= 80 ? highLensSpheres()[static_cast<size_t>(row - 1)] : std::string();
    return row >= 1 && row <= 49 ? lensSpheres()[static_cast<size_t>(row - 1)] : std::string();
}

std::string LensCylinderText(int column)
{
    return column >= 1 && column <= 13 ? lensCylinders()[static_cast<size_t>(column - 1)] : std::string();
}

int FrameSizeOf(bool child, const std::string& size)
{
    static const std::array<std::string, 3> adult{"65", "67", "70"};
    static const std::array<std::string, 3> young{"57", "61", "65"};
    return indexOf(child ? young : adult, size);
}

TextBox* FrameBoxOf(Frm_LensFrames& screen, bool child, const std::string& size)
{
    switch (FrameSizeOf(child, size)) {
    case 0:
        return child ? &screen.Txt_FrameChild57 : &screen.Txt_FrameAdult65;
    case 1:
        return child ? &screen.Txt_FrameChild61 : &screen.Txt_FrameAdult67;
    case 2:
        return child ? &screen.Txt_FrameChild65 : &screen.Txt_FrameAdult70;
    default:
        return nullptr;
    }
}

}  // namespace vistrel
