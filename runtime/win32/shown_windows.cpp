#include "runtime/win32/shown_windows.h"

#include "runtime/win32/drawable.h"

namespace lumenkit::win32 {

namespace {

// Returns the first visible window from `window` on in the direction.
HWND Shown(HWND window, UINT direction) {
    while (window != nullptr && !HasVisibleStyle(window)) {
        window = GetWindow(window, direction);
    }
    return window;
}

}  // namespace

HWND ShownSibling(HWND window, UINT direction) {
    return Shown(GetWindow(window, direction), direction);
}

ULONG ShownChildCount(HWND window) {
    ULONG count = 0;
    for (HWND child = ShownChild(window, 0); child != nullptr;
         child = ShownSibling(child, GW_HWNDNEXT)) {
        ++count;
    }
    return count;
}

HWND ShownChild(HWND window, ULONG index) {
    HWND child = Shown(GetWindow(window, GW_CHILD), GW_HWNDNEXT);
    for (; child != nullptr && index > 0; --index) {
        child = ShownSibling(child, GW_HWNDNEXT);
    }
    return child;
}

}  // namespace lumenkit::win32
