#include "runtime/ole/active_object.h"

#include "runtime/ole/result.h"

namespace lumenkit::ole {

namespace {

// The modifier flags of IOleControlSite::TranslateAccelerator.
constexpr DWORD shiftHeld = 1;
constexpr DWORD controlHeld = 2;
constexpr DWORD altHeld = 4;

DWORD HeldKeys() {
    const auto held = [](int key) { return GetKeyState(key) < 0; };
    return (held(VK_SHIFT) ? shiftHeld : 0U) | (held(VK_CONTROL) ? controlHeld : 0U) |
           (held(VK_MENU) ? altHeld : 0U);
}

}  // namespace

HRESULT ActiveObject::GetWindow(HWND* window) {
    return Guarded([&] {
        Checked(window) = nullptr;
        if (!core_.GetActivation().IsActive()) {
            return E_FAIL;
        }
        *window = core_.Hosted().Handle();
        return S_OK;
    });
}

HRESULT ActiveObject::TranslateAccelerator(MSG* message) {
    return Guarded([&]() -> HRESULT {
        Checked(message);
        if (!core_.GetActivation().IsActive()) {
            return S_FALSE;
        }
        if (core_.Hosted().TranslateKey(*message)) {
            return S_OK;
        }
        const ComPtr<IOleControlSite> site = core_.Site().As<IOleControlSite>();
        return site != nullptr && site->TranslateAccelerator(message, HeldKeys()) == S_OK ? S_OK
                                                                                          : S_FALSE;
    });
}

}  // namespace lumenkit::ole
