#pragma once

#include "frame/control.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The services that a hosted control needs from the object between it and its container. The site
/// must outlive the control.
class ControlSite {
 public:
    virtual ~ControlSite() = default;

    virtual host::Container& GetContainer() = 0;
    virtual host::Ambient& GetAmbient() = 0;
    virtual Object& GetExtender() = 0;

    /// Requests another size for the control, in pixels, border included. If the container agrees,
    /// HostedControl::SetSize has run before the call returns.
    virtual void RequestSize(SIZE size) = 0;
    /// Called when the picture that the control shows has changed.
    virtual void PictureChanged() = 0;
    /// Called when the keyboard focus entered one of the control's windows or left all of them.
    virtual void FocusChanged(bool inside) = 0;
    /// Called some time after the mnemonics inside the control may have changed.
    virtual void MnemonicsMayHaveChanged() {}
    /// Whether the user may use the control. Otherwise it receives neither mouse nor keyboard.
    virtual bool AcceptsInput() { return GetAmbient().UserMode(); }
};

}  // namespace lumenkit::win32
