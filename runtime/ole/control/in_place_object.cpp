#include "runtime/ole/control/in_place_object.h"

#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT InPlaceObject::GetWindow(HWND* window) {
    return Guarded([&] {
        Checked(window) = nullptr;
        *window = core_.ActiveWindow();
    });
}

HRESULT InPlaceObject::InPlaceDeactivate() {
    return Guarded([&] { core_.GetActivation().Deactivate(); });
}

HRESULT InPlaceObject::UIDeactivate() {
    return Guarded([&] { core_.GetActivation().DeactivateUI(); });
}

HRESULT InPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) {
    return Guarded([&] {
        const RECT& whole = Checked(place);
        if (whole.right < whole.left || whole.bottom < whole.top) {
            return E_INVALIDARG;
        }
        if (!core_.GetActivation().HasWindow()) {
            return E_UNEXPECTED;
        }
        core_.GetActivation().SetPlace(whole, clip == nullptr ? whole : *clip);
        return S_OK;
    });
}

}  // namespace lumenkit::ole
