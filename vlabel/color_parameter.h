// The numbers in the parameter of a colour command: "red,green,blue".
#pragma once

#include <array>
#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// Red, green and blue, each rounded to a whole number of whatever size; captions use the low eight
/// bits. A number alone is blue, what is not there is 0. Raises 6 for a number beyond 32 bits.
std::array<std::int32_t, 3> ColorComponents(TextView parameter);

}  // namespace lumenkit
