#pragma once

#include "runtime/win32/context.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// Sent to the window of the control or page when the keyboard focus enters one of its constituents
/// (wParam 1) or leaves it (wParam 0). The result is ignored.
inline constexpr UINT constituentFocusMessage = WM_APP + 1;

/// The elements of one control or page have this in common: the component, the window that they are
/// in, and the mode in which the container runs the control.
struct Elements {
    const Context& context;
    Window& window;
    bool userMode = true;  ///< passed on to embedded controls
};

}  // namespace lumenkit::win32
