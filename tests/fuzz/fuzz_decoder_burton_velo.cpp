// The Burton Velo 20-10.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"BURTON VELO 20-10"}, asText(data, size));
    return 0;
}
