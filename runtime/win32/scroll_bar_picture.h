#pragma once

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// Draws a scroll bar over `area`. The platform draws its scroll bars only on their windows. `info`
/// contains the range, the page and the position.
void DrawScrollBar(Canvas& canvas, const RECT& area, bool vertical, const SCROLLINFO& info,
                   bool enabled);

/// Draws the scroll bars of one of the platform's windows, and the corner between them, in the same
/// way. The origin is the window's upper left corner, border included.
void DrawWindowBars(Canvas& canvas, HWND window);

}  // namespace lumenkit::win32
