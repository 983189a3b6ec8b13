#pragma once

#include "frame/color.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the system colour with this number of the platform (COLOR_BTNSHADOW).
constexpr Color SystemColor(std::uint32_t number) {
    return static_cast<Color>(0x80000000U | number);
}

/// Converts a colour to a COLORREF. A system colour becomes its current value.
inline COLORREF ToColorRef(Color color) {
    const auto bits = static_cast<std::uint32_t>(color);
    return IsSystemColor(color) ? GetSysColor(static_cast<int>(bits & 0xFFU)) : bits & 0xFFFFFFU;
}

}  // namespace lumenkit::win32
