#include "runtime/win32/accessible_answers.h"

#include "runtime/win32/wide_text.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

std::optional<Description> DescriptionOf(HWND handle) noexcept {
    try {
        Window* const window = Window::Of(handle);
        auto* const described = dynamic_cast<Described*>(window);
        if (described == nullptr) {
            return std::nullopt;
        }
        const Life::Hold hold(window->GetLife());
        return described->Describe();
    } catch (...) {
        return std::nullopt;
    }
}

HRESULT Give(TextView text, BSTR* target) noexcept {
    *target = nullptr;
    if (text.empty()) {
        return S_FALSE;
    }
    *target = SysAllocStringLen(AsWide(text.data()), static_cast<UINT>(text.size()));
    return *target == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT Give(LONG number, VARIANT* target) noexcept {
    V_VT(target) = VT_I4;
    V_I4(target) = number;
    return S_OK;
}

}  // namespace lumenkit::win32
