#include "runtime/win32/scroll_bar_picture.h"

#include <algorithm>

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

Span ThumbOf(const SCROLLINFO& info, Span track) {
    const int room = track.end - track.begin;
    const int range = info.nMax - info.nMin + 1;
    const int wanted = info.nPage == 0 ? GetSystemMetrics(SM_CXHTHUMB)
                                       : MulDiv(room, static_cast<int>(info.nPage), range);
    const int length = std::min(std::max(wanted, shortestThumb), room);
    const int begin =
        track.begin + MulDiv(room - length, info.nPos - info.nMin, LastPosition(info) - info.nMin);
    return {begin, begin + length};
}

void DrawArrow(HDC device, RECT place, UINT direction, bool active) {
    DrawFrameControl(device, &place, DFC_SCROLL, direction | (active ? 0U : DFCS_INACTIVE));
}

}  // namespace

void DrawScrollBar(HDC device, const RECT& area, bool vertical, const SCROLLINFO& info,
                   bool enabled) {
    const auto length =
        static_cast<int>(vertical ? area.bottom - area.top : area.right - area.left);
    const int arrow =
        std::min(GetSystemMetrics(vertical ? SM_CYVSCROLL : SM_CXHSCROLL), length / 2);
    const Span track = {arrow, length - arrow};
    const bool active = enabled && LastPosition(info) > info.nMin;
    const RECT trackPlace = Part(area, vertical, track);
    FillRect(device, &trackPlace, GetSysColorBrush(COLOR_SCROLLBAR));
    DrawArrow(device, Part(area, vertical, {0, arrow}), vertical ? DFCS_SCROLLUP : DFCS_SCROLLLEFT,
              active);
    DrawArrow(device, Part(area, vertical, {length - arrow, length}),
              vertical ? DFCS_SCROLLDOWN : DFCS_SCROLLRIGHT, active);
    if (active && track.end - track.begin > shortestThumb) {
        RECT thumb = Part(area, vertical, ThumbOf(info, track));
        DrawFrameControl(device, &thumb, DFC_BUTTON, DFCS_BUTTONPUSH);
    }
}

void DrawWindowBars(HWND window, HDC device) {
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    const bool hasVertical = (style & WS_VSCROLL) != 0;
    const bool hasHorizontal = (style & WS_HSCROLL) != 0;
    RECT outside = {};
    RECT inside = {};
    GetWindowRect(window, &outside);
    GetClientRect(window, &inside);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    OffsetRect(&inside, -outside.left, -outside.top);
    const LONG right = inside.right + (hasVertical ? GetSystemMetrics(SM_CXVSCROLL) : 0);
    const LONG bottom = inside.bottom + (hasHorizontal ? GetSystemMetrics(SM_CYHSCROLL) : 0);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    const bool enabled = (style & WS_DISABLED) == 0;
    if (hasVertical) {
        GetScrollInfo(window, SB_VERT, &info);
        DrawScrollBar(device, {inside.right, inside.top, right, inside.bottom}, true, info,
                      enabled);
    }
    if (hasHorizontal) {
        GetScrollInfo(window, SB_HORZ, &info);
        DrawScrollBar(device, {inside.left, inside.bottom, inside.right, bottom}, false, info,
                      enabled);
    }
    if (hasVertical && hasHorizontal) {
        const RECT corner = {inside.right, inside.bottom, right, bottom};
        FillRect(device, &corner, GetSysColorBrush(COLOR_BTNFACE));
    }
}

}  // namespace lumenkit::win32
