#include "runtime/win32/mouse.h"

#include <array>

#include <windowsx.h>

namespace lumenkit::win32 {

namespace {

std::int16_t ButtonsHeld(WPARAM keys) {
    return static_cast<std::int16_t>(((keys & MK_LBUTTON) != 0 ? leftButton : 0) |
                                     ((keys & MK_RBUTTON) != 0 ? rightButton : 0) |
                                     ((keys & MK_MBUTTON) != 0 ? middleButton : 0));
}

std::int16_t ButtonOf(UINT message, WPARAM keys) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return leftButton;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_RBUTTONDBLCLK:
            return rightButton;
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
        case WM_MBUTTONDBLCLK:
            return middleButton;
        default:
            return ButtonsHeld(keys);
    }
}

}  // namespace

std::int16_t HeldKeys() {
    std::array<BYTE, 256> keys = {};
    GetKeyboardState(keys.data());
    const auto ifHeld = [&](std::size_t key, int value) {
        return (keys[key] & 0x80U) != 0 ? value : 0;
    };
    return static_cast<std::int16_t>(ifHeld(VK_SHIFT, 1) | ifHeld(VK_CONTROL, 2) |
                                     ifHeld(VK_MENU, 4));
}

host::MouseArguments MouseArgumentsOf(UINT message, WPARAM wParam, LPARAM lParam,
                                      Resolution resolution) {
    return {.button = ButtonOf(message, wParam),
            .shift = HeldKeys(),
            .x = ToTwips(GET_X_LPARAM(lParam), resolution.x),
            .y = ToTwips(GET_Y_LPARAM(lParam), resolution.y)};
}

}  // namespace lumenkit::win32
