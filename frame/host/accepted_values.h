// Checks of property values of surfaces and constituents, shared by all runtimes. A value that is
// not accepted raises 380.
#pragma once

#include <cstdint>

#include "frame/host/enumerations.h"
#include "frame/runtime_error.h"

namespace lumenkit {

inline void Require(bool accepted) {
    if (!accepted) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
}

/// Returns `number`. Raises 380 unless it is between `lowest` and `highest`, inclusive.
template <typename Number>
Number AcceptedNumber(Number number, Number lowest, Number highest) {
    Require(number >= lowest && number <= highest);
    return number;
}

/// Raises 380 when `width` or `height`, in twips, is negative.
inline void RequireSize(float width, float height) {
    Require(width >= 0 && height >= 0);
}

/// Raises 380 when `pointer` is not a member of MousePointer.
inline void RequirePointer(std::int32_t pointer) {
    Require((pointer >= 0 && pointer <= static_cast<std::int32_t>(host::MousePointer::SizeAll)) ||
            pointer == static_cast<std::int32_t>(host::MousePointer::Custom));
}

}  // namespace lumenkit
