#include "runtime/win32/drawable.h"

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

namespace {

// Each child is drawn at the origin of a separate bitmap, because window classes of the platform
// clip by device coordinates and ignore the origin.
void DrawChild(HWND parent, HWND child, HDC device) {
    auto* const drawable = dynamic_cast<Drawable*>(Window::Of(child));
    if (drawable == nullptr || !HasVisibleStyle(child)) {
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

}  // namespace

void DrawChildren(HWND parent, HDC device) {
    for (HWND child = Backmost(parent); child != nullptr; child = GetWindow(child, GW_HWNDPREV)) {
        DrawChild(parent, child, device);
    }
}

}  // namespace lumenkit::win32
