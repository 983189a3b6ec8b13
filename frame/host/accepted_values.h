// What properties of surfaces and constituents accept, on every runtime. Anything else raises 380.
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

/// `number`, which must lie from `lowest` to `highest`.
template <typename Number>
Number AcceptedNumber(Number number, Number lowest, Number highest) {
    Require(number >= lowest && number <= highest);
    return number;
}

/// Not negative; in twips.
inline void RequireSize(float width, float height) {
    Require(width >= 0 && height >= 0);
}

/// A member of MousePointer.
inline void RequirePointer(std::int32_t pointer) {
    Require((pointer >= 0 && pointer <= static_cast<std::int32_t>(host::MousePointer::SizeAll)) ||
            pointer == static_cast<std::int32_t>(host::MousePointer::Custom));
}

}  // namespace lumenkit
