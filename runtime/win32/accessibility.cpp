#include "runtime/win32/accessibility.h"

#include <algorithm>
#include <cwchar>

#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

// A control without constituents is a static text: the returned number is the platform's class
// index for STATIC windows.
std::optional<LRESULT> AccessibleKind(HWND window, LPARAM object) {
    constexpr LRESULT staticText = 65536 + 3;
    const bool asksForKind = static_cast<LONG>(object) == OBJID_QUERYCLASSNAMEIDX;
    if (asksForKind && GetWindow(window, GW_CHILD) == nullptr) {
        return staticText;
    }
    return std::nullopt;
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
