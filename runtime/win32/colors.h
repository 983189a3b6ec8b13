#pragma once

#include "frame/color.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Converts a colour to a COLORREF. A system colour becomes its current value.
inline COLORREF ToColorRef(Color color) {
    const auto bits = static_cast<std::uint32_t>(color);
    return IsSystemColor(color) ? GetSysColor(static_cast<int>(bits & 0xFFU)) : bits & 0xFFFFFFU;
}

}  // namespace lumenkit::win32
