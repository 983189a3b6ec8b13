#pragma once

#include "runtime/ole/control/client_site.h"
#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::ole {

/// The part of a control's object that its activation uses.
class Activated {
 public:
    virtual ~Activated() = default;

    virtual const ClientSite& Site() const = 0;
    /// Returns the control and starts it if needed.
    virtual win32::HostedControl& Started() = 0;
    /// The interface of the active control for its frame.
    virtual IOleInPlaceActiveObject& ActiveObject() = 0;
    virtual Text Title() const = 0;
    /// Called when the control has this size in pixels.
    virtual void SizeChanged(SIZE pixels) = 0;
};

/// The activation of a control in its container: inactive, in-place active, or UI-active.
class Activation {
 public:
    explicit Activation(Activated& control) : control_(control) {}

    bool IsActive() const { return site_ != nullptr; }
    /// Whether the control is active and its window is in the container. The window leaves the
    /// container without a deactivation when the container's window is destroyed.
    bool HasWindow() const { return IsActive() && control_.Started().IsAttached(); }
    /// The position in the container's window, in pixels. Meaningful only while active.
    const RECT& Place() const { return place_; }
    const ComPtr<IOleInPlaceSite>& InPlaceSite() const { return site_; }

    /// Puts the window into the container. Raises a ComError if the container refuses or if there
    /// is no window to put or to put it into.
    void Activate();
    /// Activates the control and gives it the keyboard.
    void ActivateUI();
    void DeactivateUI();
    void Deactivate();
    /// Deactivates without notifying the container.
    void Abandon();
    void SetPlace(const RECT& place, const RECT& clip);
    /// Called when the keyboard focus entered one of the control's windows or left all of them.
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
