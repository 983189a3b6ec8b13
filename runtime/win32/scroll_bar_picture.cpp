#include "runtime/win32/scroll_bar_picture.h"

#include <algorithm>

#include "runtime/win32/colors.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/edges.h"

namespace lumenkit::win32 {

namespace {

constexpr int shortestThumb = 8;

// A range along the bar, measured from its beginning.
struct Span {
    int begin;
    int end;
};

RECT Part(const RECT& area, bool vertical, Span span) {
    return vertical ? RECT{area.left, area.top + span.begin, area.right, area.top + span.end}
                    : RECT{area.left + span.begin, area.top, area.left + span.end, area.bottom};
}

// Returns the largest position.
int LastPosition(const SCROLLINFO& info) {
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

// `thickness` is the length of a thumb that represents no page.
Span ThumbOf(const SCROLLINFO& info, Span track, int thickness) {
    const int room = track.end - track.begin;
    const int range = info.nMax - info.nMin + 1;
    const int wanted =
        info.nPage == 0 ? thickness : MulDiv(room, static_cast<int>(info.nPage), range);
    const int length = std::min(std::max(wanted, shortestThumb), room);
    const int begin =
        track.begin + MulDiv(room - length, info.nPos - info.nMin, LastPosition(info) - info.nMin);
    return {begin, begin + length};
}

void DrawButton(Canvas& canvas, const RECT& place) {
    canvas.Fill(place, Color::ButtonFace);
    DrawRaisedEdge(canvas, place);
}

// A triangle in the middle of the button, about half as wide as the button.
void DrawArrow(Canvas& canvas, const RECT& place, Figure direction, bool active) {
    DrawButton(canvas, place);
    const auto shorter =
        static_cast<int>(std::min(place.right - place.left, place.bottom - place.top));
    const int half = std::max(shorter / 5, 1);
    const bool isUpright = direction == Figure::Up || direction == Figure::Down;
    const int width = isUpright ? 2 * half + 1 : half + 1;
    const int height = isUpright ? half + 1 : 2 * half + 1;
    const LONG left = (place.left + place.right - width) / 2;
    const LONG top = (place.top + place.bottom - height) / 2;
    canvas.FillFigure(direction, {left, top, left + width, top + height},
                      active ? Color::ButtonText : SystemColor(COLOR_GRAYTEXT));
}

}  // namespace

void DrawScrollBar(Canvas& canvas, const RECT& area, bool vertical, const SCROLLINFO& info,
                   bool enabled) {
    const auto width = static_cast<int>(area.right - area.left);
    const auto height = static_cast<int>(area.bottom - area.top);
    const int length = vertical ? height : width;
    const int thickness = vertical ? width : height;
    const int arrow = std::min(thickness, length / 2);
    const Span track = {arrow, length - arrow};
    const bool active = enabled && LastPosition(info) > info.nMin;
    canvas.Fill(Part(area, vertical, track), SystemColor(COLOR_SCROLLBAR));
    DrawArrow(canvas, Part(area, vertical, {0, arrow}), vertical ? Figure::Up : Figure::Left,
              active);
    DrawArrow(canvas, Part(area, vertical, {length - arrow, length}),
              vertical ? Figure::Down : Figure::Right, active);
    if (active && track.end - track.begin > shortestThumb) {
        DrawButton(canvas, Part(area, vertical, ThumbOf(info, track, thickness)));
    }
}

void DrawWindowBars(Canvas& canvas, HWND window) {
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    const bool hasVertical = (style & WS_VSCROLL) != 0;
    const bool hasHorizontal = (style & WS_HSCROLL) != 0;
    const RECT inside = ClientArea(window);
    RECT outside = {};
    GetWindowRect(window, &outside);
    // The edge is equally wide on all sides. The bars take the rest.
    const LONG right = outside.right - outside.left - inside.left;
    const LONG bottom = outside.bottom - outside.top - inside.top;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    const bool enabled = (style & WS_DISABLED) == 0;
    if (hasVertical) {
        GetScrollInfo(window, SB_VERT, &info);
        DrawScrollBar(canvas, {inside.right, inside.top, right, inside.bottom}, true, info,
                      enabled);
    }
    if (hasHorizontal) {
        GetScrollInfo(window, SB_HORZ, &info);
        DrawScrollBar(canvas, {inside.left, inside.bottom, inside.right, bottom}, false, info,
                      enabled);
    }
    if (hasVertical && hasHorizontal) {
        canvas.Fill({inside.right, inside.bottom, right, bottom}, Color::ButtonFace);
    }
}

}  // namespace lumenkit::win32
