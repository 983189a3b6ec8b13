#include "runtime/win32/clipboard_text.h"

#include <algorithm>

namespace lumenkit::win32 {

namespace {

Text TextOf(HANDLE memory) {
    const auto* const units = static_cast<const char16_t*>(GlobalLock(memory));
    if (units == nullptr) {
        return {};
    }
    const auto* const end = units + GlobalSize(memory) / sizeof(char16_t);
    Text text(units, std::find(units, end, u'\0'));
    GlobalUnlock(memory);
    return text;
}

}  // namespace

Text ClipboardText(HWND owner) {
    if (OpenClipboard(owner) == FALSE) {
        return {};
    }
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    Text text = memory == nullptr ? Text{} : TextOf(memory);
    CloseClipboard();
    return text;
}

}  // namespace lumenkit::win32
