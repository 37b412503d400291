// The Marco Nidek ARK-20/30: announcement, request and result.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzDialogue("MARCONIDEK ARK-20/30", asText(data, size));
    return 0;
}
