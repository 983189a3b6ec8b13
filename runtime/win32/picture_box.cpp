#include "runtime/win32/picture_box.h"

namespace lumenkit::win32 {

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
    return BasicConstituent::HandleMessage(message, wParam, lParam);
}

}  // namespace lumenkit::win32
