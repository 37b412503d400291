// The Welch Allyn Suresight.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"WELCHALLYN SURESIGHT"}, asText(data, size));
    return 0;
}
