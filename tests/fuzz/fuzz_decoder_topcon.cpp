// The Topcon KR-3000-7000.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"TOPCON KR-3000-7000"}, asText(data, size));
    return 0;
}
