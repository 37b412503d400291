#pragma once

// The decoder of each device family, one source file per family. Each is a
// pure function of the received message: it writes the boxes its layout
// gives and leaves the others as they stand. Internal to Decoders.cpp.

#include "Decoders.h"

#include <string_view>

namespace vistrel::autoref {

DecodeOutcome DecodeRetinomax(std::string_view message, CaptureBoxes& boxes);   // Retinomax and Retinomax 2
DecodeOutcome DecodeRetinomax3(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeTopcon(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeBurtonVelo(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeShinNippon(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeReichertRK600(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeHumphrey(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeSuresight(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeMarcoNidek(std::string_view message, CaptureBoxes& boxes);
DecodeOutcome DecodeCanon(std::string_view message, CaptureBoxes& boxes);

// Box indexes of the two eyes.
constexpr int Left = 0;
constexpr int Right = 1;

}  // namespace vistrel::autoref
