#include "tests/unit/win32/parts_form.h"

#include <algorithm>

namespace lumenkit::win32 {

namespace {

constexpr LPARAM wasDown = static_cast<LPARAM>(0xC0000001);

LPARAM PlaceOf(POINT place) {
    return MAKELPARAM(place.x, place.y);
}

}  // namespace

Panel::Panel(HINSTANCE module, HWND parent) {
    Create({.module = module,
            .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
            .extendedStyle = WS_EX_CONTROLPARENT,
            .place = {0, 0, 600, 400},
            .parent = parent});
}

LRESULT Panel::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == constituentFocusMessage) {
        ++(wParam == 1 ? focusCame : focusLeft);
        return 0;
    }
    return Default(message, wParam, lParam);
}

void Strike(HWND window, WORD key, char16_t unit) {
    SendMessageW(window, WM_KEYDOWN, key, 1);
    if (unit != 0) {
        SendMessageW(window, WM_CHAR, unit, 1);
    }
    SendMessageW(window, WM_KEYUP, key, wasDown);
}

void TypeText(HWND window, TextView text) {
    for (const char16_t unit : text) {
        Strike(window, LOBYTE(VkKeyScanW(static_cast<WCHAR>(unit))), unit);
    }
}

void PressButton(HWND window, POINT place) {
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, PlaceOf(place));
}

void LiftButton(HWND window, POINT place) {
    SendMessageW(window, WM_LBUTTONUP, 0, PlaceOf(place));
}

void ClickAt(HWND window, POINT place) {
    PressButton(window, place);
    LiftButton(window, place);
}

void PutOnClipboard(HWND owner, TextView text) {
    ASSERT_NE(OpenClipboard(owner), FALSE);
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t));
    auto* const target = static_cast<char16_t*>(GlobalLock(memory));
    *std::copy(text.begin(), text.end(), target) = u'\0';
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

HeldKey::HeldKey(int key) {
    GetKeyboardState(former_);
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[key] = 0x80;
    SetKeyboardState(keys);
}

HeldKey::~HeldKey() {
    SetKeyboardState(former_);
}

}  // namespace lumenkit::win32
