// The fixed metrics of this runtime, simple enough to compute expected values by hand.
#pragma once

#include <cstdint>

namespace lumenkit::memory {

inline constexpr std::int16_t twipsPerPixel = 15;

/// Width of a UTF-16 unit and height of a line, in twips per point of font size.
inline constexpr double unitWidthPerPoint = 10.0;
inline constexpr double boldUnitWidthPerPoint = 11.0;
inline constexpr double lineHeightPerPoint = 24.0;

/// Border of a picture box on each side, in twips: two pixels.
inline constexpr float pictureBoxBorder = 2.0F * twipsPerPixel;

}  // namespace lumenkit::memory
