#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Draws a scroll bar over `area` on any device: the platform draws its own on their windows only.
/// `info` has range, page and position.
void DrawScrollBar(HDC device, const RECT& area, bool vertical, const SCROLLINFO& info,
                   bool enabled);

/// The same for the scroll bars of a window of the platform's own, and the corner between them. The
/// origin is the window's upper left corner, border included.
void DrawWindowBars(HWND window, HDC device);

}  // namespace lumenkit::win32
