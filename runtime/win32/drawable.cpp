#include "runtime/win32/drawable.h"

#include "runtime/win32/canvas_part.h"
#include "runtime/win32/device.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

bool HasVisibleStyle(HWND window) {
    return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

RECT PlaceInParent(HWND parent, HWND child) {
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

RECT ClientArea(HWND window) {
    RECT outside = {};
    RECT inside = {};
    GetWindowRect(window, &outside);
    GetClientRect(window, &inside);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    OffsetRect(&inside, static_cast<int>(-outside.left), static_cast<int>(-outside.top));
    return inside;
}

namespace {

// Returns the child as something to draw; null if it is hidden.
Drawable* Shown(HWND child) {
    return HasVisibleStyle(child) ? dynamic_cast<Drawable*>(Window::Of(child)) : nullptr;
}

// Each child is drawn at the origin of a separate bitmap, because window classes of the platform
// clip by device coordinates and ignore the origin.
void DrawChild(HWND parent, HWND child, HDC device) {
    Drawable* const drawable = Shown(child);
    if (drawable == nullptr) {
        return;
    }
    const RECT place = PlaceInParent(parent, child);
    const SIZE size = SizeOf(place);
    const MemoryDevice own(device, size);
    BitBlt(own.Handle(), 0, 0, size.cx, size.cy, device, place.left, place.top, SRCCOPY);
    drawable->DrawOn(own.Handle());
    BitBlt(device, place.left, place.top, size.cx, size.cy, own.Handle(), 0, 0, SRCCOPY);
}

HWND Backmost(HWND parent) {
    const HWND front = GetWindow(parent, GW_CHILD);
    return front == nullptr ? nullptr : GetWindow(front, GW_HWNDLAST);
}

void DrawChildShape(HWND parent, HWND child, Canvas& canvas) {
    Drawable* const drawable = Shown(child);
    const RECT place = PlaceInParent(parent, child);
    RECT inside = {};
    RECT seen = {};
    GetClientRect(parent, &inside);
    if (drawable != nullptr && IntersectRect(&seen, &place, &inside) != FALSE) {
        CanvasPart part(canvas, place);
        drawable->DrawShapes(part);
    }
}

}  // namespace

void DrawChildren(HWND parent, HDC device) {
    for (HWND child = Backmost(parent); child != nullptr; child = GetWindow(child, GW_HWNDPREV)) {
        DrawChild(parent, child, device);
    }
}

void DrawChildShapes(HWND parent, Canvas& canvas) {
    for (HWND child = Backmost(parent); child != nullptr; child = GetWindow(child, GW_HWNDPREV)) {
        DrawChildShape(parent, child, canvas);
    }
}

}  // namespace lumenkit::win32
