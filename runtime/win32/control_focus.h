#pragma once

#include "runtime/win32/control_site.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// The keyboard focus of a control: one of its windows has it, or none.
class ControlFocus {
 public:
    /// All arguments must outlive the object.
    ControlFocus(const Window& window, const Surface& surface, ControlSite& site)
        : window_(window), surface_(surface), site_(site) {}

    /// Called when the control's own window got the focus, from the window `former`. Passes it on
    /// to a constituent, unless a constituent gave it away.
    void PassOn(HWND former) const;
    /// Whether the control has no use for the keyboard, because the constituents that take it
    /// cannot be used now.
    bool IsOutOfUse() const;
    /// Called when the focus moved. Notifies the site if the focus entered the control or left it.
    void FocusMoved();
    /// Gives the focus to the first (or last) constituent that takes it, otherwise to the control
    /// itself. Does nothing while the control is disabled.
    void Take(bool last);
    /// Whether the last notification of the site was that the control has the focus.
    bool IsInside() const { return isInside_; }

 private:
    const Window& window_;
    const Surface& surface_;
    ControlSite& site_;
    bool isInside_ = false;
};

}  // namespace lumenkit::win32
