#include "runtime/ole/control/active_object.h"

#include "runtime/ole/values/result.h"
#include "runtime/win32/mouse.h"

namespace lumenkit::ole {

HRESULT ActiveObject::GetWindow(HWND* window) {
    return Guarded([&] {
        Checked(window) = nullptr;
        *window = core_.ActiveWindow();
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
        const auto held = static_cast<DWORD>(win32::HeldKeys());
        return site != nullptr && site->TranslateAccelerator(message, held) == S_OK ? S_OK
                                                                                    : S_FALSE;
    });
}

}  // namespace lumenkit::ole
