#include "runtime/win32/drawable.h"

#include "runtime/win32/device.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

namespace {

bool IsShown(HWND window) {
    return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

// Each child is drawn at the origin of a separate bitmap, because window classes of the platform
// clip by device coordinates and ignore the origin.
void DrawChild(HWND parent, HWND child, HDC device) {
    auto* const drawable = dynamic_cast<Drawable*>(Window::Of(child));
    if (drawable == nullptr || !IsShown(child)) {
        return;
    }
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    const SIZE size = {place.right - place.left, place.bottom - place.top};
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
