// The Humphrey 597.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"HUMPHREY 597"}, asText(data, size));
    return 0;
}
