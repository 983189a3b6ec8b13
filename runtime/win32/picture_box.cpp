#include "runtime/win32/picture_box.h"

#include "runtime/win32/scroll_bar.h"

namespace lumenkit::win32 {

namespace {

host::Orientation DirectionOf(UINT message, WPARAM wParam) {
    const bool isSideways =
        message == WM_MOUSEHWHEEL || (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT) != 0;
    return isSideways ? host::Orientation::Horizontal : host::Orientation::Vertical;
}

// Returns the usable scroll bar in `box`; null if there is none.
HWND BarIn(HWND box, host::Orientation direction) {
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const auto* const bar = dynamic_cast<const ScrollBar*>(Window::Of(child));
        if (bar != nullptr && bar->Direction() == direction && bar->IsVisible() &&
            bar->IsEnabled()) {
            return child;
        }
    }
    return nullptr;
}

}  // namespace

PictureBox::PictureBox(const Elements& elements, const host::Design& design)
    : BasicConstituent(
          elements,
          {.style = WS_CLIPCHILDREN, .extendedStyle = WS_EX_CLIENTEDGE | WS_EX_CONTROLPARENT},
          design) {}

RECT PictureBox::Inside() const {
    RECT inside = {};
    GetClientRect(Handle(), &inside);
    return inside;
}

float PictureBox::ScaleWidth() const {
    return ToTwips(static_cast<int>(Inside().right), PixelsPerInch().x);
}

float PictureBox::ScaleHeight() const {
    return ToTwips(static_cast<int>(Inside().bottom), PixelsPerInch().y);
}

LRESULT PictureBox::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        FillBackground(reinterpret_cast<HDC>(wParam));
        return 1;
    }
    // Windows in the box that do not use the wheel themselves pass it on to their parent.
    if (message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL) {
        if (const HWND bar = BarIn(Handle(), DirectionOf(message, wParam))) {
            return SendMessageW(bar, message, wParam, lParam);
        }
    }
    return BasicConstituent::HandleMessage(message, wParam, lParam);
}

}  // namespace lumenkit::win32
