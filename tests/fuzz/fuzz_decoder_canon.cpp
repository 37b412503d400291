// The Canon RK-2: acknowledged lines, then the one that releases the reading.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzDialogue("CANON RK-2", asText(data, size));
    return 0;
}
