// Conversion of font sizes between points and the platform's fixed-point numbers.
#pragma once

#include "frame/checked_integer.h"
#include "frame/runtime_error.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

inline constexpr double fontSizeUnit = 10000.0;
inline constexpr double largestFontSize = 2160.0;

/// Raises 380 for a size that is not above 0 after rounding to four decimal places, or above 2160.
inline CY FontSize(float points) {
    const double units = RoundHalfToEven(static_cast<double>(points) * fontSizeUnit);
    if (!(units > 0 && units <= largestFontSize * fontSizeUnit)) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    CY size = {};
    size.int64 = static_cast<LONGLONG>(units);
    return size;
}

inline float FontPoints(CY size) {
    return static_cast<float>(static_cast<double>(size.int64) / fontSizeUnit);
}

}  // namespace lumenkit::ole
