#include "runtime/win32/edges.h"

#include "runtime/win32/colors.h"

namespace lumenkit::win32 {

namespace {

constexpr Color shadow = SystemColor(COLOR_BTNSHADOW);
constexpr Color darkShadow = SystemColor(COLOR_3DDKSHADOW);
constexpr Color light = SystemColor(COLOR_3DLIGHT);
constexpr Color highlight = SystemColor(COLOR_BTNHIGHLIGHT);

// Draws a frame that is one pixel wide.
void DrawRing(Canvas& canvas, const RECT& box, Color upperLeft, Color lowerRight) {
    canvas.Fill({box.left, box.top, box.right, box.top + 1}, upperLeft);
    canvas.Fill({box.left, box.top, box.left + 1, box.bottom}, upperLeft);
    canvas.Fill({box.left, box.bottom - 1, box.right, box.bottom}, lowerRight);
    canvas.Fill({box.right - 1, box.top, box.right, box.bottom}, lowerRight);
}

RECT Inside(RECT box) {
    InflateRect(&box, -1, -1);
    return box;
}

}  // namespace

void DrawSunkenEdge(Canvas& canvas, const RECT& box) {
    DrawRing(canvas, box, shadow, highlight);
    DrawRing(canvas, Inside(box), darkShadow, light);
}

void DrawRaisedEdge(Canvas& canvas, const RECT& box) {
    DrawRing(canvas, box, light, darkShadow);
    DrawRing(canvas, Inside(box), highlight, shadow);
}

void DrawEtchedEdge(Canvas& canvas, const RECT& box) {
    DrawRing(canvas, box, shadow, highlight);
    DrawRing(canvas, Inside(box), highlight, shadow);
}

}  // namespace lumenkit::win32
