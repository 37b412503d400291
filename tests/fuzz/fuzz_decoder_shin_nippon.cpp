// The Shin Nippon 8001 and the Reichert RK600, which share one report.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"SHIN NIPPON 8001", "REICHERT RK600"}, asText(data, size));
    return 0;
}
