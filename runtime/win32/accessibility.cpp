#include "runtime/win32/accessibility.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <string>

#include "runtime/win32/spoken_text.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

// The platform's class index for STATIC windows.
constexpr LRESULT staticText = 65536 + 3;

// Asks a window that may belong to a program that does not respond.
std::optional<LRESULT> Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT patience = 500;  // milliseconds
    DWORD_PTR answer = 0;
    const bool answered = SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG,
                                              patience, &answer) != 0;
    return answered ? std::optional(static_cast<LRESULT>(answer)) : std::nullopt;
}

bool HasClass(HWND window, const wchar_t* name) {
    std::array<wchar_t, 64> own{};
    return RealGetWindowClassW(window, own.data(), static_cast<UINT>(own.size())) != 0 &&
           CompareStringOrdinal(own.data(), -1, name, -1, TRUE) == CSTR_EQUAL;
}

std::wstring TextOf(HWND window) {
    const LRESULT length = Ask(window, WM_GETTEXTLENGTH, 0, 0).value_or(0);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied =
        Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())).value_or(0);
    text.resize(static_cast<std::size_t>(std::clamp<LRESULT>(copied, 0, length)));
    return text;
}

}  // namespace

// A control that draws a text is a static text.
std::optional<LRESULT> AccessibleKind(HWND window, LPARAM object) {
    const bool asksForKind = static_cast<LONG>(object) == OBJID_QUERYCLASSNAMEIDX;
    if (asksForKind && GetWindow(window, GW_CHILD) == nullptr) {
        return staticText;
    }
    return std::nullopt;
}

bool IsStaticText(HWND window) {
    return HasClass(window, L"Static") ||
           Ask(window, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_QUERYCLASSNAMEIDX)) == staticText;
}

Text SpokenLabel(HWND label) {
    const bool hasMnemonic =
        HasClass(label, L"Static") && (GetWindowLongW(label, GWL_STYLE) & SS_NOPREFIX) == 0;
    const std::wstring text = TextOf(label);
    return SpokenLine(hasMnemonic ? WithoutMnemonic(AsText(text)) : Text(AsText(text)));
}

LRESULT CopyText(TextView text, std::size_t room, wchar_t* target) {
    if (target == nullptr) {
        return static_cast<LRESULT>(text.size());
    }
    if (room == 0) {
        return 0;
    }
    const std::size_t length = std::min(text.size(), room - 1);
    std::wmemcpy(target, AsWide(text.data()), length);
    target[length] = L'\0';
    return static_cast<LRESULT>(length);
}

}  // namespace lumenkit::win32
