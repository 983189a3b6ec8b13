#pragma once

#include "runtime/ole/client_site.h"
#include "runtime/ole/ole_header.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::ole {

/// What of a control's object its activation works on.
class Activated {
 public:
    virtual ~Activated() = default;

    virtual const ClientSite& Site() const = 0;
    /// Started already.
    virtual win32::HostedControl& Started() = 0;
    /// The control as its frame talks to it while it is active.
    virtual IOleInPlaceActiveObject& ActiveObject() = 0;
    virtual Text Title() const = 0;
    /// The control has this size in pixels now.
    virtual void SizeChanged(SIZE pixels) = 0;
};

/// A control's window in its container: not there, there, or there with the keyboard.
class Activation {
 public:
    explicit Activation(Activated& control) : control_(control) {}

    bool IsActive() const { return site_ != nullptr; }
    bool IsUIActive() const { return uiActive_; }
    /// In the container's window, pixels; meaningful while active.
    const RECT& Place() const { return place_; }
    const ComPtr<IOleInPlaceSite>& InPlaceSite() const { return site_; }

    /// Puts the window into the container. Raises a ComError where the container refuses.
    void Activate();
    /// The same, with the keyboard.
    void ActivateUI();
    void DeactivateUI();
    void Deactivate();
    /// The same where nobody is to be told any more.
    void Abandon();
    void SetPlace(const RECT& place, const RECT& clip);
    /// The keyboard focus came into the control's windows, or left them all.
    void FocusChanged(bool inside);

 private:
    void ShowUI();
    void TellFrame(IOleInPlaceActiveObject* object);
    bool IsStillActive(const ComPtr<IOleInPlaceSite>& site) const {
        return site_.Get() == site.Get();
    }

    Activated& control_;
    ComPtr<IOleInPlaceSite> site_;
    ComPtr<IOleInPlaceFrame> frame_;
    ComPtr<IOleInPlaceUIWindow> document_;
    RECT place_ = {};
    bool uiActive_ = false;
};

}  // namespace lumenkit::ole
