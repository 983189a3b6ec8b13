// Messages that newer versions of the platform send to child windows when their top-level window
// moves to a monitor of another resolution, in programs that handle resolutions themselves.
#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

inline constexpr UINT resolutionChangesMessage = 0x02E2;  // WM_DPICHANGED_BEFOREPARENT
inline constexpr UINT resolutionChangedMessage = 0x02E3;  // WM_DPICHANGED_AFTERPARENT

}  // namespace lumenkit::win32
