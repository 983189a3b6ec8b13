#include "runtime/ole/control/activation.h"

#include <utility>

#include "runtime/ole/control/extent.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

void Activation::Activate() {
    if (HasWindow()) {
        control_.Started().SetVisible(true);
        return;
    }
    Deactivate();  // the window that the control was in is destroyed
    const ComPtr<IOleInPlaceSite> site = control_.Site().As<IOleInPlaceSite>();
    if (site == nullptr) {
        throw ComError(E_UNEXPECTED);
    }
    win32::HostedControl& control = control_.Started();
    if (site->CanInPlaceActivate() != S_OK) {
        throw ComError(E_FAIL);
    }
    HWND parent = nullptr;
    Check(site->GetWindow(&parent));
    if (IsWindow(parent) == FALSE || control.Handle() == nullptr) {
        throw ComError(OLE_E_INVALIDHWND);
    }
    OLEINPLACEFRAMEINFO information = {};
    information.cb = sizeof information;
    RECT place = {};
    RECT clip = {};
    Check(site->GetWindowContext(frame_.ReleaseAndGetAddressOf(),
                                 document_.ReleaseAndGetAddressOf(), &place, &clip, &information));
    Check(site->OnInPlaceActivate());
    if (!control_.Site().Exists()) {
        throw ComError(E_UNEXPECTED);  // the container has released the control meanwhile
    }
    site_ = site;
    place_ = place;
    control.Attach(parent, place);
    if (IsStillActive(site)) {
        if (!control.IsAttached()) {
            Deactivate();
            throw ComError(OLE_E_INVALIDHWND);
        }
        SetPlace(place, clip);
    }
    if (control_.Site().Exists()) {
        control_.Site().Get()->ShowObject();
    }
}

void Activation::ActivateUI() {
    Activate();
    if (!IsActive() || uiActive_) {
        return;
    }
    ShowUI();
    if (uiActive_ && !control_.Started().HasFocus()) {
        control_.Started().Focus();
    }
}

void Activation::ShowUI() {
    const ComPtr<IOleInPlaceSite> site = site_;
    uiActive_ = true;
    if (FAILED(site->OnUIActivate())) {
        uiActive_ = false;
        return;
    }
    if (uiActive_ && IsStillActive(site)) {
        TellFrame(&control_.ActiveObject());
    }
}

void Activation::DeactivateUI() {
    if (!uiActive_) {
        return;
    }
    uiActive_ = false;
    const ComPtr<IOleInPlaceSite> site = site_;
    TellFrame(nullptr);
    if (site != nullptr) {
        site->OnUIDeactivate(FALSE);
    }
}

void Activation::Deactivate() {
    if (!IsActive()) {
        return;
    }
    DeactivateUI();
    const ComPtr<IOleInPlaceSite> site = site_;
    site_.Reset();
    control_.Started().Detach();
    if (site != nullptr) {
        site->OnInPlaceDeactivate();
    }
    frame_.Reset();
    document_.Reset();
}

void Activation::Abandon() {
    uiActive_ = false;
    const auto site = std::exchange(site_, nullptr);
    const auto frame = std::exchange(frame_, nullptr);
    const auto document = std::exchange(document_, nullptr);
    if (site != nullptr) {
        control_.Started().Detach();
    }
}

void Activation::SetPlace(const RECT& place, const RECT& clip) {
    place_ = place;
    win32::HostedControl& control = control_.Started();
    control.Place(place, clip);
    control_.SizeChanged(control.Size());
}

void Activation::FocusChanged(bool inside) {
    const ComPtr<IOleControlSite> site = control_.Site().As<IOleControlSite>();
    if (site != nullptr) {
        site->OnFocus(inside ? TRUE : FALSE);
    }
    if (inside && IsActive() && !uiActive_) {
        ShowUI();
    }
}

void Activation::TellFrame(IOleInPlaceActiveObject* object) {
    const std::wstring title = win32::ToWide(control_.Title());
    const wchar_t* name = object == nullptr ? nullptr : title.c_str();
    const ComPtr<IOleInPlaceFrame> frame = frame_;
    const ComPtr<IOleInPlaceUIWindow> document = document_;
    if (frame != nullptr) {
        frame->SetActiveObject(object, name);
        if (object != nullptr) {
            frame->SetBorderSpace(nullptr);
        }
    }
    if (document != nullptr) {
        document->SetActiveObject(object, name);
        if (object != nullptr) {
            document->SetBorderSpace(nullptr);
        }
    }
}

}  // namespace lumenkit::ole
