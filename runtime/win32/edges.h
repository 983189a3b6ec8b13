// The edges of windows as the platform draws them, made of boxes.
#pragma once

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// The width of each edge, in pixels.
inline constexpr int edgeWidth = 2;

void DrawSunkenEdge(Canvas& canvas, const RECT& box);
void DrawRaisedEdge(Canvas& canvas, const RECT& box);
/// A groove.
void DrawEtchedEdge(Canvas& canvas, const RECT& box);

}  // namespace lumenkit::win32
