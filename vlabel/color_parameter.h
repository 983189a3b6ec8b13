// Parses the parameter of a colour command: "red,green,blue".
#pragma once

#include <array>
#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// Returns red, green and blue, each rounded to a 32-bit whole number; captions use the low eight
/// bits. A single number is blue, and missing numbers are 0. Raises 6 for a number beyond 32 bits.
std::array<std::int32_t, 3> ColorComponents(TextView parameter);

}  // namespace lumenkit
