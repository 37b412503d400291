// The Nikon Retinomax, Retinomax 2 and Retinomax 3.

#include "FuzzDecoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vistrel::fuzz;
    fuzzOneShot({"NIKON RETINOMAX", "NIKON RETINOMAX2", "NIKON RETINOMAX3"}, asText(data, size));
    return 0;
}
