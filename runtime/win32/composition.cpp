#include "runtime/win32/composition.h"

#include <imm.h>

namespace lumenkit::win32 {

namespace {

class InputContext {
 public:
    explicit InputContext(HWND window) : window_(window), handle_(ImmGetContext(window)) {}
    ~InputContext() {
        if (handle_ != nullptr) {
            ImmReleaseContext(window_, handle_);
        }
    }
    InputContext(const InputContext&) = delete;
    InputContext& operator=(const InputContext&) = delete;

    /// Null if the window has no input method.
    HIMC Get() const { return handle_; }

 private:
    HWND window_;
    HIMC handle_;
};

}  // namespace

CompositionChange CompositionChange::Of(LPARAM changes) {
    constexpr LPARAM finished = GCS_RESULTSTR;
    return {.finishes = (changes & finished) != 0, .others = changes & ~finished};
}

Text FinishedText(HWND window) {
    const InputContext context(window);
    if (context.Get() == nullptr) {
        return {};
    }
    const LONG bytes = ImmGetCompositionStringW(context.Get(), GCS_RESULTSTR, nullptr, 0);
    if (bytes <= 0) {
        return {};
    }
    Text text(static_cast<std::size_t>(bytes) / sizeof(char16_t), u'\0');
    ImmGetCompositionStringW(context.Get(), GCS_RESULTSTR, text.data(), static_cast<DWORD>(bytes));
    return text;
}

void PlaceComposition(HWND window, POINT place, HFONT font) {
    const InputContext context(window);
    if (context.Get() == nullptr) {
        return;
    }
    COMPOSITIONFORM form = {};
    form.dwStyle = CFS_POINT;
    form.ptCurrentPos = place;
    ImmSetCompositionWindow(context.Get(), &form);
    LOGFONTW description = {};
    GetObjectW(font, sizeof description, &description);
    ImmSetCompositionFontW(context.Get(), &description);
}

void FinishComposition(HWND window) {
    const InputContext context(window);
    if (context.Get() != nullptr) {
        ImmNotifyIME(context.Get(), NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
    }
}

}  // namespace lumenkit::win32
