// The visible windows among siblings, which are in tab order.
#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the next (GW_HWNDNEXT) or previous (GW_HWNDPREV) visible sibling; null if there is none.
HWND ShownSibling(HWND window, UINT direction);
ULONG ShownChildCount(HWND window);
/// Returns the visible child `index`, from 0; null if there are not so many.
HWND ShownChild(HWND window, ULONG index);

}  // namespace lumenkit::win32
