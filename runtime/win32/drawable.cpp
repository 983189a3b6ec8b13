#include "runtime/win32/drawable.h"

#include "runtime/win32/window.h"

namespace lumenkit::win32 {

namespace {

bool IsShown(HWND window) {
    return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

void DrawChild(HWND parent, HWND child, HDC device) {
    auto* const drawable = dynamic_cast<Drawable*>(Window::Of(child));
    if (drawable == nullptr || !IsShown(child)) {
        return;
    }
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    const int state = SaveDC(device);
    IntersectClipRect(device, place.left, place.top, place.right, place.bottom);
    OffsetWindowOrgEx(device, -place.left, -place.top, nullptr);
    drawable->DrawTo(device);
    RestoreDC(device, state);
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
