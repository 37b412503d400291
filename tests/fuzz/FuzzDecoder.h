#pragma once

// The shared body of the decoder fuzz targets: the input runs through every
// device type of the target's family, and anything outside the decoders'
// limits traps.

#include "DecoderInvariants.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace vistrel::fuzz {

inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

inline std::string_view asText(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// A model that sends its reading at once: from empty boxes and from filled
// ones, which a decoder may leave standing.
inline void fuzzOneShot(std::initializer_list<const char*> types, std::string_view message)
{
    for (const char* type : types) {
        CaptureBoxes empty;
        require(invariants::decodesWithinLimits(type, message, empty));
        CaptureBoxes filled{{"#", "#"}, {"#", "#"}, {"#", "#"}, "#"};
        require(invariants::decodesWithinLimits(type, message, filled));
    }
}

// A dialogue model: the whole input as one transmission, then as the
// transmissions of a dialogue, the boxes kept from one to the next.
inline void fuzzDialogue(const char* type, std::string_view input)
{
    CaptureBoxes whole;
    require(invariants::decodesWithinLimits(type, input, whole));
    CaptureBoxes boxes;
    for (std::string_view transmission : invariants::transmissions(input))
        require(invariants::decodesWithinLimits(type, transmission, boxes));
}

}  // namespace vistrel::fuzz
