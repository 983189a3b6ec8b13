#include "tests/contract/windows_user.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "runtime/win32/window.h"

namespace lumenkit::contract {

namespace {

// The window of a constituent.
template <typename Constituent>
HWND WindowOf(Constituent& constituent) {
    return dynamic_cast<win32::Window&>(constituent).Handle();
}

// Whether the user can use the window.
bool IsUsable(HWND window) {
    for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        if (at == GetDesktopWindow()) {
            break;
        }
        if (IsWindowEnabled(at) == FALSE) {
            return false;
        }
    }
    return IsWindowVisible(window) != FALSE;
}

void ClickInside(HWND window) {
    if (!IsUsable(window)) {
        return;
    }
    RECT area = {};
    GetClientRect(window, &area);
    const LPARAM centre = MAKELPARAM(area.right / 2, area.bottom / 2);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, centre);
    SendMessageW(window, WM_LBUTTONUP, 0, centre);
}

// Sets the state of Ctrl for this thread while a key is typed.
class HeldControl {
 public:
    explicit HeldControl(bool isHeld) {
        GetKeyboardState(former_);
        BYTE keys[256];
        GetKeyboardState(keys);
        keys[VK_CONTROL] = isHeld ? 0x80 : 0;
        SetKeyboardState(keys);
    }
    ~HeldControl() { SetKeyboardState(former_); }
    HeldControl(const HeldControl&) = delete;
    HeldControl& operator=(const HeldControl&) = delete;

 private:
    BYTE former_[256] = {};
};

// Delivers the messages of a key in the order of a real queue. WM_CHAR waits in the queue while
// WM_KEYDOWN is handled, so that the handler can remove it.
void Strike(HWND window, char16_t unit) {
    const bool isControl = unit < 0x20 && unit != u'\b' && unit != u'\t' && unit != u'\r';
    const HeldControl held(isControl);
    const WCHAR shown = static_cast<WCHAR>(isControl ? unit + u'@' : unit);
    const WPARAM key = LOBYTE(VkKeyScanW(shown));
    PostMessageW(window, WM_CHAR, unit, 1);
    SendMessageW(window, WM_KEYDOWN, key, 1);
    MSG message = {};
    while (PeekMessageW(&message, window, WM_CHAR, WM_CHAR, PM_REMOVE) != FALSE) {
        DispatchMessageW(&message);
    }
    SendMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
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

// Gives the window the focus. Returns false if the user cannot use the window.
bool Reach(HWND window) {
    if (!IsUsable(window)) {
        return false;
    }
    SetFocus(window);
    return true;
}

}  // namespace

void WindowsUser::Focus(host::TextBox& box) {
    Reach(WindowOf(box));
}

void WindowsUser::Type(host::TextBox& box, TextView text) {
    const HWND window = WindowOf(box);
    for (const char16_t unit : text) {
        if (!Reach(window)) {
            return;
        }
        Strike(window, unit);
    }
}

bool WindowsUser::HasFocus(host::TextBox& box) {
    return GetFocus() == WindowOf(box);
}

void WindowsUser::Press(host::TextBox& box, std::int16_t keyCode) {
    const HWND window = WindowOf(box);
    if (Reach(window)) {
        constexpr LPARAM extended = 0x01000001;
        SendMessageW(window, WM_KEYDOWN, static_cast<WPARAM>(keyCode), extended);
        SendMessageW(window, WM_KEYUP, static_cast<WPARAM>(keyCode),
                     extended | static_cast<LPARAM>(0xC0000000));
    }
}

void WindowsUser::Select(host::TextBox& box, std::int32_t start, std::int32_t length) {
    if (Reach(WindowOf(box))) {
        SendMessageW(WindowOf(box), EM_SETSEL, static_cast<WPARAM>(start), start + length);
    }
}

void WindowsUser::Paste(host::TextBox& box, TextView text) {
    if (Reach(WindowOf(box))) {
        PutOnClipboard(FormWindow(), text);
        SendMessageW(WindowOf(box), WM_PASTE, 0, 0);
    }
}

void WindowsUser::Click(host::OptionButton& button) {
    ClickInside(WindowOf(button));
}

void WindowsUser::Click(host::CheckBox& box) {
    ClickInside(WindowOf(box));
}

void WindowsUser::Click(host::CommandButton& button) {
    ClickInside(WindowOf(button));
}

void WindowsUser::Scroll(host::ScrollBar& bar, std::int16_t value) {
    const HWND window = WindowOf(bar);
    const HWND parent = GetAncestor(window, GA_PARENT);
    for (const int step : {SB_THUMBTRACK, SB_THUMBPOSITION, SB_ENDSCROLL}) {
        SendMessageW(parent, WM_HSCROLL, MAKEWPARAM(step, value), reinterpret_cast<LPARAM>(window));
    }
}

void WindowsUser::ClickSurface() {
    ClickInside(ControlWindow());
}

}  // namespace lumenkit::contract
