#include "runtime/win32/keyboard.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <vector>

#include "frame/text.h"

namespace lumenkit::win32 {

namespace {

using Windows = std::vector<HWND>;

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
}

// Whether the user can use the window, regardless of its parents.
bool IsUsable(HWND window) {
    return (StyleOf(window) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

LRESULT Wishes(HWND window) {
    return SendMessageW(window, WM_GETDLGCODE, 0, 0);
}

bool IsOption(HWND window) {
    return (Wishes(window) & DLGC_RADIOBUTTON) != 0;
}

bool IsSelected(HWND option) {
    return SendMessageW(option, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

// All usable windows in `parent`, each before its children.
void Collect(HWND parent, Windows& found) {
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsUsable(child)) {
            found.push_back(child);
            Collect(child, found);
        }
    }
}

Windows UsableIn(HWND root) {
    Windows found;
    Collect(root, found);
    return found;
}

// The usable siblings of `option` that are option buttons, including itself.
Windows GroupOf(HWND option) {
    Windows group;
    for (HWND child = GetWindow(option, GW_HWNDFIRST); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsUsable(child) && IsOption(child)) {
            group.push_back(child);
        }
    }
    return group;
}

// Tab reaches only the selected button of a group, or the first one if none is selected.
HWND StopOf(const Windows& group) {
    const auto selected = std::ranges::find_if(group, IsSelected);
    return selected == group.end() ? group.front() : *selected;
}

bool IsStop(HWND window) {
    return IsOption(window) ? StopOf(GroupOf(window)) == window
                            : (StyleOf(window) & WS_TABSTOP) != 0;
}

Windows StopsIn(HWND root) {
    Windows found = UsableIn(root);
    std::erase_if(found, [](HWND window) { return !IsStop(window); });
    return found;
}

// Whether a window in `parent` is a tab stop, usable or not.
bool HasTabStop(HWND parent) {
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if ((StyleOf(child) & WS_TABSTOP) != 0 || HasTabStop(child)) {
            return true;
        }
    }
    return false;
}

// The position in the tab order while `focus` has the focus.
HWND PlaceInTabOrder(HWND focus) {
    return focus != nullptr && IsOption(focus) ? StopOf(GroupOf(focus)) : focus;
}

bool MoveByTab(HWND root, bool backwards) {
    const Windows stops = StopsIn(root);
    const auto present = std::ranges::find(stops, PlaceInTabOrder(GetFocus()));
    if (present == stops.end()) {
        return FocusFirst(root, backwards);
    }
    if (backwards ? present == stops.begin() : present + 1 == stops.end()) {
        return false;
    }
    SetFocus(backwards ? *(present - 1) : *(present + 1));
    return true;
}

bool MoveInGroup(HWND option, bool backwards) {
    const Windows group = GroupOf(option);
    const auto present = std::ranges::find(group, option);
    if (present == group.end()) {
        return false;
    }
    const auto index = static_cast<std::size_t>(present - group.begin());
    const HWND next = group[(index + (backwards ? group.size() - 1 : 1)) % group.size()];
    SetFocus(next);
    if (!IsSelected(next)) {
        SendMessageW(next, BM_CLICK, 0, 0);
    }
    return true;
}

bool IsHeld(int key) {
    return GetKeyState(key) < 0;
}

bool EditsText(WPARAM key) {
    constexpr std::array plain = {VK_LEFT,  VK_RIGHT, VK_UP,     VK_DOWN,   VK_HOME, VK_END,
                                  VK_PRIOR, VK_NEXT,  VK_DELETE, VK_INSERT, VK_BACK};
    constexpr std::array withControl = {'A', 'C', 'V', 'X', 'Y', 'Z'};
    const auto isOneOf = [&](const auto& keys) {
        return std::ranges::find(keys, static_cast<int>(key)) != keys.end();
    };
    return isOneOf(plain) || (IsHeld(VK_CONTROL) && isOneOf(withControl));
}

bool WantsKey(HWND window, WPARAM key) {
    const LRESULT wishes = Wishes(window);
    const bool isArrow = key == VK_LEFT || key == VK_RIGHT || key == VK_UP || key == VK_DOWN;
    if (key == VK_RETURN) {
        return (wishes & DLGC_HASSETSEL) != 0 && (StyleOf(window) & ES_MULTILINE) != 0;
    }
    return (isArrow && (wishes & DLGC_WANTARROWS) != 0) ||
           ((wishes & DLGC_HASSETSEL) != 0 && EditsText(key));
}

bool HandOver(const MSG& message) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
}

bool UseKey(HWND root, const MSG& message) {
    const WPARAM key = message.wParam;
    if (IsHeld(VK_MENU)) {
        return false;
    }
    if (key == VK_TAB) {
        return !IsHeld(VK_CONTROL) && MoveByTab(root, IsHeld(VK_SHIFT));
    }
    if (IsOption(message.hwnd) && !IsHeld(VK_CONTROL)) {
        if (key == VK_LEFT || key == VK_UP) {
            return MoveInGroup(message.hwnd, true);
        }
        if (key == VK_RIGHT || key == VK_DOWN) {
            return MoveInGroup(message.hwnd, false);
        }
    }
    return WantsKey(message.hwnd, key) && HandOver(message);
}

std::wstring CaptionOf(HWND window) {
    const LRESULT wishes = Wishes(window);
    if ((wishes & (DLGC_BUTTON | DLGC_STATIC)) == 0) {
        return {};  // its text is the user's input
    }
    if ((wishes & DLGC_STATIC) != 0 && (StyleOf(window) & SS_NOPREFIX) != 0) {
        return {};  // it has no mnemonic
    }
    std::array<wchar_t, 256> caption{};
    GetWindowTextW(window, caption.data(), static_cast<int>(caption.size()));
    return caption.data();
}

bool HasMnemonic(HWND window, wchar_t unit) {
    return AnswersTo(CaptionOf(window).c_str(), unit);
}

wchar_t Lower(wchar_t unit) {
    return static_cast<wchar_t>(LowerUnit(static_cast<char16_t>(unit)));
}

// Calls `call` with each mnemonic of a caption, in lower case, until it returns true.
template <typename Call>
bool AnyMnemonic(const wchar_t* text, Call&& call) {
    for (const wchar_t* at = std::wcschr(text, L'&'); at != nullptr; at = std::wcschr(at, L'&')) {
        const wchar_t mnemonic = at[1];
        if (mnemonic == L'\0') {
            return false;
        }
        if (mnemonic != L'&' && call(Lower(mnemonic))) {
            return true;
        }
        at += 2;
    }
    return false;
}

bool UseMnemonicOf(HWND window, const Windows& usable) {
    if ((Wishes(window) & DLGC_BUTTON) != 0) {
        SetFocus(window);
        SendMessageW(window, BM_CLICK, 0, 0);
        return true;
    }
    // A label or frame names the next tab stop.
    const auto next = std::find_if(std::ranges::find(usable, window), usable.end(), IsStop);
    if (next == usable.end()) {
        return false;
    }
    SetFocus(*next);
    return true;
}

// The search begins after the window with the focus, so that equal mnemonics take turns.
bool UseMnemonic(HWND root, wchar_t unit) {
    Windows usable = UsableIn(root);
    const Windows inOrder = usable;
    const auto present = std::ranges::find(usable, GetFocus());
    if (present != usable.end()) {
        std::rotate(usable.begin(), present + 1, usable.end());
    }
    const auto answering =
        std::ranges::find_if(usable, [&](HWND window) { return HasMnemonic(window, unit); });
    return answering != usable.end() && UseMnemonicOf(*answering, inOrder);
}

}  // namespace

bool FocusFirst(HWND root, bool last) {
    const Windows stops = StopsIn(root);
    if (stops.empty()) {
        return false;
    }
    SetFocus(last ? stops.back() : stops.front());
    return true;
}

bool AreStopsOutOfUse(HWND root) {
    return root != nullptr && HasTabStop(root) && StopsIn(root).empty();
}

HWND FocusAfter(HWND root, HWND leaving) {
    Windows usable = UsableIn(root);
    const auto own = std::ranges::find(usable, leaving);
    std::rotate(usable.begin(), own, usable.end());
    const auto next = std::ranges::find_if(usable, [&](HWND window) {
        return window != leaving && IsChild(leaving, window) == FALSE && IsStop(window);
    });
    return next == usable.end() ? nullptr : *next;
}

bool HasFocusInside(HWND root) {
    const HWND focus = GetFocus();
    return root != nullptr && focus != nullptr && (focus == root || IsChild(root, focus) != FALSE);
}

bool TranslateKeyInside(HWND root, const MSG& message) {
    if (root == nullptr || (message.hwnd != root && IsChild(root, message.hwnd) == FALSE)) {
        return false;
    }
    if (message.message == WM_KEYDOWN) {
        return UseKey(root, message);
    }
    return message.message == WM_SYSCHAR && UseMnemonic(root, static_cast<wchar_t>(message.wParam));
}

std::wstring MnemonicsInside(HWND root) {
    std::wstring found;
    for (const HWND window : UsableIn(root)) {
        AnyMnemonic(CaptionOf(window).c_str(), [&](wchar_t mnemonic) {
            if (found.find(mnemonic) == std::wstring::npos) {
                found.push_back(mnemonic);
            }
            return false;
        });
    }
    return found;
}

bool UseMnemonicInside(HWND root, wchar_t unit) {
    return root != nullptr && UseMnemonic(root, unit);
}

bool AnswersTo(const wchar_t* text, wchar_t unit) {
    return AnyMnemonic(text, [&](wchar_t mnemonic) { return mnemonic == Lower(unit); });
}

}  // namespace lumenkit::win32
